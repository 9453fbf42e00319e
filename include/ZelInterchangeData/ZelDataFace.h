/// @file
/// The interfaces of ZelInterchangeData.h, and the face over them: factories that return the new
/// object, operations that throw instead of returning a code, loops over items, safe files, and
/// escaping for texts that are written as given.
///
/// Nothing here is part of the binary interface: all of it is compiled into the caller. It is a
/// separate header so that programs that handle the codes themselves can use short names such as
/// check and items for their own functions. It needs exceptions: a program that is compiled without
/// them includes ZelInterchangeData.h.

#ifndef ZELINTERCHANGEDATA_ZELDATAFACE_H
#define ZELINTERCHANGEDATA_ZELDATAFACE_H

#include "ZelInterchangeData/ZelDataCall.h"
#include "ZelInterchangeData/ZelDataCheck.h"
#include "ZelInterchangeData/ZelDataCheckedCaptionFormatter.h"
#include "ZelInterchangeData/ZelDataCheckedCaptionItem.h"
#include "ZelInterchangeData/ZelDataCheckedCaptions.h"
#include "ZelInterchangeData/ZelDataCheckedDocument.h"
#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataCheckedHeader.h"
#include "ZelInterchangeData/ZelDataCheckedHeaderFormatter.h"
#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataCheckedScreenText.h"
#include "ZelInterchangeData/ZelDataCheckedScreenTextFormatter.h"
#include "ZelInterchangeData/ZelDataCheckedScreenTextItem.h"
#include "ZelInterchangeData/ZelDataCheckedToc.h"
#include "ZelInterchangeData/ZelDataCheckedTocFormatter.h"
#include "ZelInterchangeData/ZelDataCheckedTocItem.h"
#include "ZelInterchangeData/ZelDataError.h"
#include "ZelInterchangeData/ZelDataEscaped.h"
#include "ZelInterchangeData/ZelDataFactories.h"
#include "ZelInterchangeData/ZelDataFiles.h"
#include "ZelInterchangeData/ZelDataItems.h"
#include "ZelInterchangeData/ZelDataOneLine.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/ZelInterchangeData.h"

#endif
