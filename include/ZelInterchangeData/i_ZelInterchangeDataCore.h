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

/// Holds copies of the data sets and writes them as one XMP packet.
///
/// - `writeString` writes the packet without an XML declaration. If @p flag is true, it appends to
///   the text instead of replacing it. On failure, the text is unchanged.
/// - `writeFile` writes the XML declaration and, directly after it, the packet up to its first zero
///   byte; @p flag is not used. #ZelData_Ok means that the file was opened: later failures, such as
///   a full disk, are not reported; replaceFile() reports them. On failure, no file is changed.
/// - Both return #ZelData_UnsupportedFormat for a format other than #ZelDataFormat_Xmp;
///   #ZelData_InvalidArgument without a header, or with one whose length, width or height is 0; the
///   code of copying a set or of its formatter; #ZelData_FileOpenFailed if the file cannot be
///   opened, for example because the path is empty or contains a zero byte.
/// - Neither changes this document. Neither stores its final code as the last error, except an
///   unsupported format or a failure to copy a set.
/// - The packet's languages are those of the captions, in order, or only "en-US" if there are none.
///   Those of the header are ignored.
/// - `readString`, `readFile`: always #ZelData_NotImplemented.
class ZELINTERCHANGEDATA_API i_ZelInterchangeDataCore : public i_ZelDataFormatterBase {
public:
    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelInterchangeDataCore);
    ~i_ZelInterchangeDataCore() override;

    /// @name Data sets
    /// A getter replaces the contents of @p target with a copy of the document's set.
    /// - #ZelData_NoData: the document has none; @p target is unchanged.
    /// - The code of the failed copy: @p target is incomplete.
    ///
    /// A setter replaces the document's set with a copy of @p source.
    /// - The code of the failed copy: the document's set is incomplete. setDataHeader() instead
    ///   returns the last error of the document's captions, whatever it is, if the document has
    ///   captions.
    /// @{

    /// The header.
    virtual ZelDataResult_tags getDataHeader(i_ZelDataHeader& target) const = 0;
    /// A packet needs a header. A header that is not valid is copied only in part.
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
    /// Each stores a new object with default values in `*out`; the document keeps no reference to
    /// it.
    /// - #ZelData_InvalidArgument: @p out is null or `*out` is not; `*out` is unchanged.
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
