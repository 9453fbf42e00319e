/// @file
/// The document object.

#ifndef ZELINTERCHANGEDATA_CORE_ZELDATACORE_H
#define ZELINTERCHANGEDATA_CORE_ZELDATACORE_H

#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"
#include "util/Ending.h"

#include <memory>

namespace ZelInterchangeData {

/// Holds the data sets. It writes through a ZelDataCoreXmp with copies of them, so writing never
/// changes this document.
class ZelDataCore : public i_ZelInterchangeDataCore {
public:
    ZelDataCore() = default;
    ~ZelDataCore() override;
    ZelDataCore(const ZelDataCore&) = delete;
    ZelDataCore& operator=(const ZelDataCore&) = delete;

    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool append) const override;
    ZelDataResult_tags readString(const std::string& text, ZelDataFormatType_tags format,
                                  bool flag) override;
    ZelDataResult_tags writeFile(const std::string& path, ZelDataFormatType_tags format,
                                 bool flag) const override;
    ZelDataResult_tags readFile(const std::string& path, ZelDataFormatType_tags format) override;

    ZelDataResult_tags getDataHeader(i_ZelDataHeader& target) const override;
    ZelDataResult_tags setDataHeader(const i_ZelDataHeader& source) override;
    ZelDataResult_tags getDataCaptions(i_ZelDataCaptions& target) const override;
    ZelDataResult_tags setDataCaptions(const i_ZelDataCaptions& source) override;
    ZelDataResult_tags getDataToc(i_ZelDataToc& target) const override;
    ZelDataResult_tags setDataToc(const i_ZelDataToc& source) override;
    ZelDataResult_tags getDataScreenText(i_ZelDataScreenText& target) const override;
    ZelDataResult_tags setDataScreenText(const i_ZelDataScreenText& source) override;

    ZelDataResult_tags createDataHeader(i_ZelDataHeader** out) const override;
    ZelDataResult_tags createDataCaptions(i_ZelDataCaptions** out) const override;
    ZelDataResult_tags createDataToc(i_ZelDataToc** out) const override;
    ZelDataResult_tags createDataScreenText(i_ZelDataScreenText** out) const override;

protected:
    /// Null if there is none, like the other three.
    const i_ZelDataHeader* header() const noexcept { return header_.get(); }
    const i_ZelDataCaptions* captions() const noexcept { return captions_.get(); }
    const i_ZelDataToc* toc() const noexcept { return toc_.get(); }
    const i_ZelDataScreenText* screenText() const noexcept { return screenText_.get(); }
    /// The header, which must exist. Writing is const but replaces its languages.
    i_ZelDataHeader& mutableHeader() const noexcept { return *header_; }

private:
    template <class Data>
    Ending makeSet(std::unique_ptr<Data>& set,
                   ZelDataResult_tags (ZelDataCore::*create)(Data**) const) const;
    template <class Data>
    ZelDataResult_tags setData(std::unique_ptr<Data>& set, const Data& source,
                               ZelDataResult_tags (ZelDataCore::*create)(Data**) const,
                               ZelDataResult_tags (Data::*clear)());
    template <class Data>
    ZelDataResult_tags getData(const std::unique_ptr<Data>& set, Data& target,
                               ZelDataResult_tags (Data::*clear)()) const;
    Ending copySetsTo(ZelDataCore& document) const;
    template <class Write>
    ZelDataResult_tags writeCopy(ZelDataFormatType_tags format, Write&& write) const;

    std::unique_ptr<i_ZelDataHeader> header_;
    std::unique_ptr<i_ZelDataCaptions> captions_;
    std::unique_ptr<i_ZelDataToc> toc_;
    std::unique_ptr<i_ZelDataScreenText> screenText_;
};

} // namespace ZelInterchangeData

#endif
