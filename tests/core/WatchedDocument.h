/// @file
/// A document whose own data sets a test can access, and the four kinds of data sets.

#ifndef ZELINTERCHANGEDATA_TESTS_CORE_WATCHEDDOCUMENT_H
#define ZELINTERCHANGEDATA_TESTS_CORE_WATCHEDDOCUMENT_H

#include "core/SampleSets.h"
#include "core/Troubled.h"
#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <tuple>

namespace ZelInterchangeData {

/// A document of the class @p Core that holds troubled sets.
template <class Core>
class WatchedDocument : public Core {
public:
    using Code = ZelDataResult_tags;

    /// The set of the class @p Fake that this document made last.
    template <class Fake>
    Fake& held() const
    {
        return *std::get<Fake*>(held_);
    }
    /// Makes every further creation of a set return @p code and store @p lastError.
    void refuseSets(Code code, Code lastError)
    {
        refusal_ = code;
        refusalLastError_ = lastError;
    }

    Code createDataHeader(i_ZelDataHeader** out) const override
    {
        return create<TroubledHeader>(out);
    }
    Code createDataCaptions(i_ZelDataCaptions** out) const override
    {
        return create<TroubledCaptions>(out);
    }
    Code createDataToc(i_ZelDataToc** out) const override { return create<TroubledToc>(out); }
    Code createDataScreenText(i_ZelDataScreenText** out) const override
    {
        return create<TroubledScreenText>(out);
    }

private:
    template <class Fake, class Interface>
    Code create(Interface** out) const
    {
        if (refusal_) {
            this->setLastError(refusalLastError_);
            return *refusal_;
        }
        *out = std::get<Fake*>(held_) = new Fake;
        this->setLastError(ZelData_Ok);
        return ZelData_Ok;
    }

    mutable std::tuple<TroubledHeader*, TroubledCaptions*, TroubledToc*, TroubledScreenText*> held_;
    std::optional<Code> refusal_;
    Code refusalLastError_ = ZelData_Ok;
};

struct HeaderSet {
    using Interface = i_ZelDataHeader;
    using Fake = TroubledHeader;
    static constexpr auto set = &i_ZelInterchangeDataCore::setDataHeader;
    static constexpr auto get = &i_ZelInterchangeDataCore::getDataHeader;
    static constexpr auto create = &i_ZelInterchangeDataCore::createDataHeader;
    static constexpr auto emptied = "";
    static constexpr auto contents = "Tea & \"Time\"";

    static std::unique_ptr<Interface> sample() { return sampleHeader(); }
    static std::string contentsOf(Interface& header)
    {
        std::string title;
        EXPECT_EQ(ZelData_Ok, header.getTitle(title));
        return title;
    }
};

struct CaptionsSet {
    using Interface = i_ZelDataCaptions;
    using Fake = TroubledCaptions;
    static constexpr auto set = &i_ZelInterchangeDataCore::setDataCaptions;
    static constexpr auto get = &i_ZelInterchangeDataCore::getDataCaptions;
    static constexpr auto create = &i_ZelInterchangeDataCore::createDataCaptions;
    static constexpr auto emptied = "Courier, 0 items";
    static constexpr auto contents = "Courier, 2 items";

    static std::unique_ptr<Interface> sample() { return sampleCaptions(); }
    static std::string contentsOf(Interface& captions)
    {
        std::string family;
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, captions.getFontFamily(family));
        EXPECT_EQ(ZelData_Ok, captions.getCaptionItemCount(count));
        return family + ", " + std::to_string(count) + " items";
    }
};

struct TocSet {
    using Interface = i_ZelDataToc;
    using Fake = TroubledToc;
    static constexpr auto set = &i_ZelInterchangeDataCore::setDataToc;
    static constexpr auto get = &i_ZelInterchangeDataCore::getDataToc;
    static constexpr auto create = &i_ZelInterchangeDataCore::createDataToc;
    static constexpr auto emptied = "<toc>.png, 0 items";
    static constexpr auto contents = "<toc>.png, 2 items";

    static std::unique_ptr<Interface> sample() { return sampleToc(); }
    static std::string contentsOf(Interface& toc)
    {
        std::string image;
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, toc.getImageFile(image));
        EXPECT_EQ(ZelData_Ok, toc.getTocItemCount(count));
        return image + ", " + std::to_string(count) + " items";
    }
};

struct ScreenTextSet {
    using Interface = i_ZelDataScreenText;
    using Fake = TroubledScreenText;
    static constexpr auto set = &i_ZelInterchangeDataCore::setDataScreenText;
    static constexpr auto get = &i_ZelInterchangeDataCore::getDataScreenText;
    static constexpr auto create = &i_ZelInterchangeDataCore::createDataScreenText;
    static constexpr auto emptied = "50, 0 items";
    static constexpr auto contents = "50, 2 items";

    static std::unique_ptr<Interface> sample() { return sampleScreenText(); }
    static std::string contentsOf(Interface& texts)
    {
        unsigned long rate = 0;
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, texts.getFrameRate(rate));
        EXPECT_EQ(ZelData_Ok, texts.getScreenTextItemCount(count));
        return std::to_string(rate) + ", " + std::to_string(count) + " items";
    }
};

using AllSets = ::testing::Types<HeaderSet, CaptionsSet, TocSet, ScreenTextSet>;

} // namespace ZelInterchangeData

#endif
