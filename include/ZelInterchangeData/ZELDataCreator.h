/// @file
/// Creates documents.

#ifndef ZELINTERCHANGEDATA_ZELDATACREATOR_H
#define ZELINTERCHANGEDATA_ZELDATACREATOR_H

#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"

namespace ZelInterchangeData {

class i_ZelInterchangeDataCore;

/// Creates documents.
class ZELINTERCHANGEDATA_API ZELDataCreator {
public:
    ZELDataCreator() = delete;

    /// Returns a new document without data sets, which the caller owns and deletes. Throws
    /// ZelDataException ("Out of memory") if memory runs out.
    static i_ZelInterchangeDataCore* createInterchangeData();
};

} // namespace ZelInterchangeData

#endif
