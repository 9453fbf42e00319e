/// @file
/// Everything that a caller needs.

#ifndef ZELINTERCHANGEDATA_ZELINTERCHANGEDATA_H
#define ZELINTERCHANGEDATA_ZELINTERCHANGEDATA_H

#include "ZelInterchangeData/ZELDataCreator.h"
#include "ZelInterchangeData/ZelAlignment_tags.h"
#include "ZelInterchangeData/ZelDataException.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataFinding.h"
#include "ZelInterchangeData/ZelDataFindingSeverity_tags.h"
#include "ZelInterchangeData/ZelDataFindingSubject_tags.h"
#include "ZelInterchangeData/ZelDataFinding_tags.h"
#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataFormatType_tags.h"
#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataReplaceFile.h"
#include "ZelInterchangeData/ZelDataResultText.h"
#include "ZelInterchangeData/ZelDataResult_tags.h"
#include "ZelInterchangeData/ZelDataStandardLibrary.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/ZelDataVersion.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataFormatterBase.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"
#include "ZelInterchangeData/i_ZelDataResult.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

/// Everything that the library declares.
namespace ZelInterchangeData {
}

#endif
