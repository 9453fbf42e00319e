/// @file
/// The document: the four data sets of a video, and the packet made from them.

#ifndef ZELINTERCHANGEDATA_I_ZELINTERCHANGEDATACORE_H
#define ZELINTERCHANGEDATA_I_ZELINTERCHANGEDATACORE_H

#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

namespace ZelInterchangeData {

class i_ZelDataCaptions;
class i_ZelDataHeader;
class i_ZelDataScreenText;
class i_ZelDataToc;

/// Holds a copy of each data set that it was given and writes them as one XMP packet.
///
/// - `writeString`: the packet without an XML declaration. With @p flag it appends to the text
///   instead of replacing it. The text stays as it was on failure.
/// - `writeFile`: the XML declaration and the packet, with nothing between them; @p flag is not
///   used. The packet ends at its first zero byte. #ZelData_Ok says that the file was opened: what
///   fails later (a full device, say) is not reported. On any failure no file is touched.
/// - Both: #ZelData_UnsupportedFormat for a format other than #ZelDataFormat_Xmp;
///   #ZelData_InvalidArgument without a header or with one whose length, width or height is 0; the
///   code of copying a set or of its formatter; #ZelData_FileOpenFailed when the file cannot be
///   opened, for example because the path is empty or holds a zero byte.
/// - Both keep this document as it is, and neither stores its final code as the last error: only an
///   unsupported format and a failure to copy a set are stored.
/// - The packet's languages are those of the captions, in order, or "en-US" alone without any.
///   Those of the header are not used.
/// - `readString`, `readFile`: always #ZelData_NotImplemented.
class ZELINTERCHANGEDATA_API i_ZelInterchangeDataCore : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelInterchangeDataCore);
    ~i_ZelInterchangeDataCore() override;

    /// @name Data sets
    /// A getter replaces the contents of @p target with a copy of the document's set.
    /// - #ZelData_NoData: the document was never given one; @p target is left alone.
    /// - The code of the copying: @p target is partly filled.
    ///
    /// A setter replaces the document's set with a copy of @p source.
    /// - The code of the copying: the document's set is partly filled. From setDataHeader() it is
    ///   the last error of the captions that the document holds, whatever that is, or the header's
    ///   own where it holds none.
    /// @{

    /// The header.
    virtual ZelDataResult_tags getDataHeader(i_ZelDataHeader& target) const = 0;
    /// A packet needs a header. One that is not valid is copied in part only.
    virtual ZelDataResult_tags setDataHeader(const i_ZelDataHeader& source) = 0;
    /// The captions.
    virtual ZelDataResult_tags getDataCaptions(i_ZelDataCaptions& target) const = 0;
    /// The languages of the packet are those of the captions.
    virtual ZelDataResult_tags setDataCaptions(const i_ZelDataCaptions& source) = 0;
    /// The table of contents.
    virtual ZelDataResult_tags getDataToc(i_ZelDataToc& target) const = 0;
    /// The frame rate of the table is not copied.
    virtual ZelDataResult_tags setDataToc(const i_ZelDataToc& source) = 0;
    /// The screen text.
    virtual ZelDataResult_tags getDataScreenText(i_ZelDataScreenText& target) const = 0;
    /// The screen text keeps its frame rate.
    virtual ZelDataResult_tags setDataScreenText(const i_ZelDataScreenText& source) = 0;
    /// @}

    /// @name New data objects
    /// Each hands out a new object with its defaults; the document keeps no reference to it.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not; `*out` is left alone.
    /// @{

    /// See ZelDataUtilities::createHeaderData().
    virtual ZelDataResult_tags createDataHeader(i_ZelDataHeader** out) const = 0;
    /// See ZelDataUtilities::createCaptionData().
    virtual ZelDataResult_tags createDataCaptions(i_ZelDataCaptions** out) const = 0;
    /// See ZelDataUtilities::createTocData().
    virtual ZelDataResult_tags createDataToc(i_ZelDataToc** out) const = 0;
    /// See ZelDataUtilities::createScreenTextData().
    virtual ZelDataResult_tags createDataScreenText(i_ZelDataScreenText** out) const = 0;
    /// @}
};

} // namespace ZelInterchangeData

#endif
