/// @file
/// Where a document comes from.

#ifndef ZELINTERCHANGEDATA_ZELDATACREATOR_H
#define ZELINTERCHANGEDATA_ZELDATACREATOR_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

namespace ZelInterchangeData {

class i_ZelInterchangeDataCore;

/// Makes documents.
class ZELINTERCHANGEDATA_API ZELDataCreator {
public:
    ZELDataCreator() = delete;

    /// A new document without any data set; the caller owns it and deletes it. Throws
    /// ZelDataException ("Out of memory") when no document could be made.
    static i_ZelInterchangeDataCore* createInterchangeData();
};

} // namespace ZelInterchangeData

#endif
