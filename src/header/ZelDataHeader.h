/// @file
/// The header of a document.

#ifndef ZELINTERCHANGEDATA_HEADER_ZELDATAHEADER_H
#define ZELINTERCHANGEDATA_HEADER_ZELDATAHEADER_H

#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "sets/LanguageListOwner.h"
#include "util/SharedText.h"
#include "util/TextList.h"

#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// What clearing a header resets, in addition to its languages. Copies share the texts and keywords.
struct HeaderFields {
    SharedText appName;
    SharedText appVersion;
    SharedText title;
    SharedText creator;
    SharedText description;
    std::shared_ptr<const std::vector<std::string>> keywords; // null if never set
    bool iPodExplicit = false;
    unsigned long videoLength = 0;
    unsigned long videoWidth = 0;
    unsigned long videoHeight = 0;
};

/// The header that the library makes. Removing an absent language is a warning here.
class ZelDataHeader : public LanguageListOwner<i_ZelDataHeader, ZelData_WarnNoChange> {
public:
    ZelDataResult_tags isValid() const override;
    ZelDataResult_tags clearHeader() override;

    ZelDataResult_tags setAppName(const std::string& name) override;
    ZelDataResult_tags setAppVersion(const std::string& version) override;
    ZelDataResult_tags setTitle(const std::string& title) override;
    ZelDataResult_tags setCreator(const std::string& creator) override;
    ZelDataResult_tags setDescription(const std::string& description) override;
    ZelDataResult_tags setKeywords(const std::vector<std::string>& keywords) override;
    ZelDataResult_tags setIPodExplicit(bool isExplicit) override;
    ZelDataResult_tags setVideoLength(unsigned long milliseconds) override;
    ZelDataResult_tags setVideoWidth(unsigned long pixels) override;
    ZelDataResult_tags setVideoHeight(unsigned long pixels) override;

    ZelDataResult_tags getAppName(std::string& name) const override;
    ZelDataResult_tags getAppVersion(std::string& version) const override;
    ZelDataResult_tags getTitle(std::string& title) const override;
    ZelDataResult_tags getCreator(std::string& creator) const override;
    ZelDataResult_tags getDescription(std::string& description) const override;
    ZelDataResult_tags getKeywords(std::vector<std::string>& keywords) const override;
    ZelDataResult_tags getIPodExplicit(bool& isExplicit) const override;
    ZelDataResult_tags getVideoLength(unsigned long& milliseconds) const override;
    ZelDataResult_tags getVideoWidth(unsigned long& pixels) const override;
    ZelDataResult_tags getVideoHeight(unsigned long& pixels) const override;

    ZelDataResult_tags clearContentNames() override;
    ZelDataResult_tags addContentName(const std::string& name) override;
    ZelDataResult_tags removeContentName(const std::string& name) override;
    ZelDataResult_tags getContentNameCount(unsigned long& count) const override;
    ZelDataResult_tags getContentNames(std::vector<std::string>& names) const override;
    ZelDataResult_tags doesContentNameExist(std::string& name, bool& exists) const override;

    ZelDataResult_tags setShowSearchBar(bool show) override;
    ZelDataResult_tags getShowSearchBar(bool& show) const override;

    const HeaderFields& fields() const noexcept { return fields_; }
    const std::vector<std::string>& contentNames() const noexcept { return contentNames_.texts(); }
    bool showsSearchBar() const noexcept { return showSearchBar_; }
    using LanguageListOwner::languageIDs;

    /// As copyFrom(), with the same codes, last errors and half-copied state, but shares the texts.
    ZelDataResult_tags copyOwn(const ZelDataHeader& other);

private:
    ZelDataResult_tags setText(SharedText HeaderFields::*text, const std::string& value);
    ZelDataResult_tags getText(SharedText HeaderFields::*text, std::string& value) const;
    ZelDataResult_tags storeNonZero(unsigned long& field, unsigned long value) const;

    HeaderFields fields_;
    TextList contentNames_;
    bool showSearchBar_ = true;
};

} // namespace ZelInterchangeData

#endif
