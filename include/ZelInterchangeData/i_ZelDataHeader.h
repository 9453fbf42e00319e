/// @file
/// What describes a produced video as a whole.

#ifndef ZELINTERCHANGEDATA_I_ZELDATAHEADER_H
#define ZELINTERCHANGEDATA_I_ZELDATAHEADER_H

#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// Title, creator, producing application, size, length, languages and content files of a video.
///
/// Strings are stored as given (UTF-8 expected); only content names and language IDs are checked.
class ZELINTERCHANGEDATA_API i_ZelDataHeader : public i_ZelDataLanguage {
public:
    using i_ZelDataLanguage::copyFrom;

    ZELINTERCHANGEDATA_INLINE_COPIES(i_ZelDataHeader);
    ~i_ZelDataHeader() override;

    /// Checks that video length, width and height are set, nothing else.
    /// - #ZelData_InvalidArgument: one of them is 0.
    virtual ZelDataResult_tags isValid() const = 0;
    /// Resets the languages and all fields except the search-bar flag and the content names.
    virtual ZelDataResult_tags clearHeader() = 0;

    /// @name Setters
    /// All texts are empty by default, and there are no keywords. Keywords keep their order;
    /// duplicates are allowed.
    /// @{

    /// The producing application. The packet joins name and version.
    virtual ZelDataResult_tags setAppName(const std::string& name) = 0;
    /// The version of the producing application, in any form.
    virtual ZelDataResult_tags setAppVersion(const std::string& version) = 0;
    /// The title of the whole video.
    virtual ZelDataResult_tags setTitle(const std::string& title) = 0;
    /// Written without escaping: with one of `"&'<>` in it, the packet may not be well-formed XML.
    virtual ZelDataResult_tags setCreator(const std::string& creator) = 0;
    /// What the video is about.
    virtual ZelDataResult_tags setDescription(const std::string& description) = 0;
    /// Replaces all keywords.
    virtual ZelDataResult_tags setKeywords(const std::vector<std::string>& keywords) = 0;
    /// Marks the video as explicit for portable players. Default false.
    virtual ZelDataResult_tags setIPodExplicit(bool isExplicit) = 0;
    /// Length in milliseconds, at least 1; 0 by default, which is not valid. Where `long` has 32
    /// bits, at most 4294967295: 49 days.
    /// - #ZelData_InvalidArgument: @p milliseconds is 0.
    virtual ZelDataResult_tags setVideoLength(unsigned long milliseconds) = 0;
    /// Frame width in pixels, at least 1; 0 by default, which is not valid.
    /// - #ZelData_InvalidArgument: @p pixels is 0.
    virtual ZelDataResult_tags setVideoWidth(unsigned long pixels) = 0;
    /// Frame height in pixels, at least 1; 0 by default, which is not valid.
    /// - #ZelData_InvalidArgument: @p pixels is 0.
    virtual ZelDataResult_tags setVideoHeight(unsigned long pixels) = 0;
    /// @}

    /// @name Getters
    /// @{

    /// The producing application.
    virtual ZelDataResult_tags getAppName(std::string& name) const = 0;
    /// The version of the producing application.
    virtual ZelDataResult_tags getAppVersion(std::string& version) const = 0;
    /// The title of the whole video.
    virtual ZelDataResult_tags getTitle(std::string& title) const = 0;
    /// The creator, as it was set.
    virtual ZelDataResult_tags getCreator(std::string& creator) const = 0;
    /// What the video is about.
    virtual ZelDataResult_tags getDescription(std::string& description) const = 0;
    /// Replaces @p keywords with those of the header, in their order.
    virtual ZelDataResult_tags getKeywords(std::vector<std::string>& keywords) const = 0;
    /// Whether the video is marked as explicit.
    virtual ZelDataResult_tags getIPodExplicit(bool& isExplicit) const = 0;
    /// The length, in milliseconds.
    virtual ZelDataResult_tags getVideoLength(unsigned long& milliseconds) const = 0;
    /// The width, in pixels.
    virtual ZelDataResult_tags getVideoWidth(unsigned long& pixels) const = 0;
    /// The height, in pixels.
    virtual ZelDataResult_tags getVideoHeight(unsigned long& pixels) const = 0;
    /// @}

    /// @name Content names
    /// The files that make up the content, in the order in which they were added, without
    /// duplicates.
    /// @{

    /// Empties the list.
    virtual ZelDataResult_tags clearContentNames() = 0;
    /// Appends @p name.
    /// - #ZelData_InvalidUtf8: @p name is not UTF-8.
    /// - #ZelData_WarnNoChange: an identical name is listed.
    virtual ZelDataResult_tags addContentName(const std::string& name) = 0;
    /// Removes the entry identical to @p name.
    /// - #ZelData_WarnNoChange: there is none.
    virtual ZelDataResult_tags removeContentName(const std::string& name) = 0;
    /// The number of entries.
    virtual ZelDataResult_tags getContentNameCount(unsigned long& count) const = 0;
    /// Replaces @p names with the list.
    virtual ZelDataResult_tags getContentNames(std::vector<std::string>& names) const = 0;
    /// Sets @p exists to whether an entry identical to @p name is listed; @p name is unchanged.
    virtual ZelDataResult_tags doesContentNameExist(std::string& name, bool& exists) const = 0;
    /// @}

    /// Whether the player shows its search bar. Default true.
    virtual ZelDataResult_tags setShowSearchBar(bool show) = 0;
    /// Whether the player shows its search bar.
    virtual ZelDataResult_tags getShowSearchBar(bool& show) const = 0;

    /// Replaces everything with a copy of @p other: the languages, then the fields in the order of
    /// the setters, then the content names and the search-bar flag.
    /// - #ZelData_InternalError: @p other is this object; nothing changes.
    /// - #ZelData_InvalidArgument: a length, width or height of @p other is 0. What precedes it was
    ///   copied; the content names and the flag were not.
    /// - The code of a failed step, even a warning: what was copied before it stays.
    virtual ZelDataResult_tags copyFrom(const i_ZelDataHeader& other);
};

} // namespace ZelInterchangeData

#endif
