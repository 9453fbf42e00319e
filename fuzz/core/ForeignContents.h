/// @file
/// Fills objects of any implementation, only through their interfaces.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_FOREIGNCONTENTS_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_FOREIGNCONTENTS_H

#include "FakeCollections.h"
#include "FakeHeader.h"
#include "FakeItems.h"
#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/World.h"
#include "support/Input.h"

#include <memory>
#include <string>

namespace fuzz {

using Code = ZelInterchangeData::ZelDataResult_tags;

/// Ignores the code of a call that an object may refuse; the object then lacks the value.
inline void mayRefuse(Code /*code*/) {}

/// Fills the argument from @p input, except for values that its implementation refuses.
/// @{
void fill(ZelInterchangeData::i_ZelDataLanguage& languages, Input& input);
void fill(ZelInterchangeData::i_ZelDataHeader& header, Input& input);
void fill(ZelInterchangeData::i_ZelDataCaptionItem& item, Input& input);
void fill(ZelInterchangeData::i_ZelDataTocItem& item, Input& input);
void fill(ZelInterchangeData::i_ZelDataScreenTextItem& item, Input& input);
/// Styling or image, not the items.
void fill(ZelInterchangeData::i_ZelDataCaptions& captions, Input& input);
void fill(ZelInterchangeData::i_ZelDataToc& toc, Input& input);
void fill(ZelInterchangeData::i_ZelDataScreenText& screenText, Input& input);
/// @}

// Each kind of object: the interface, a caller's implementation of it, and our factory

struct HeaderKind {
    using Interface = ZelInterchangeData::i_ZelDataHeader;
    using Foreign = model::FakeHeader;
    using Formatter = ZelInterchangeData::i_ZelDataHeaderFormatter;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createHeaderData;
    static constexpr auto createFormatter =
        &ZelInterchangeData::ZelDataUtilities::createHeaderFormatter;
    static constexpr auto hold = &Formatter::setHeader;
    static constexpr auto set = &ZelInterchangeData::i_ZelInterchangeDataCore::setDataHeader;
    static constexpr auto get = &ZelInterchangeData::i_ZelInterchangeDataCore::getDataHeader;
};

struct CaptionItemKind {
    using Interface = ZelInterchangeData::i_ZelDataCaptionItem;
    using Foreign = model::FakeCaptionItem;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createCaptionItemData;
};

struct CaptionsKind {
    using Interface = ZelInterchangeData::i_ZelDataCaptions;
    using Foreign = model::FakeCaptions;
    using Items = CaptionItemKind;
    using Formatter = ZelInterchangeData::i_ZelDataCaptionFormatter;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createCaptionData;
    static constexpr auto add = &Interface::addCaptionItem;
    static constexpr auto createFormatter =
        &ZelInterchangeData::ZelDataUtilities::createCaptionFormatter;
    static constexpr auto hold = &Formatter::setCaptions;
    static constexpr auto set = &ZelInterchangeData::i_ZelInterchangeDataCore::setDataCaptions;
    static constexpr auto get = &ZelInterchangeData::i_ZelInterchangeDataCore::getDataCaptions;
};

struct TocItemKind {
    using Interface = ZelInterchangeData::i_ZelDataTocItem;
    using Foreign = model::FakeTocItem;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createTocItemData;
};

struct TocKind {
    using Interface = ZelInterchangeData::i_ZelDataToc;
    using Foreign = model::FakeToc;
    using Items = TocItemKind;
    using Formatter = ZelInterchangeData::i_ZelDataTocFormatter;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createTocData;
    static constexpr auto add = &Interface::addTocItem;
    static constexpr auto createFormatter =
        &ZelInterchangeData::ZelDataUtilities::createTocFormatter;
    static constexpr auto hold = &Formatter::setToc;
    static constexpr auto set = &ZelInterchangeData::i_ZelInterchangeDataCore::setDataToc;
    static constexpr auto get = &ZelInterchangeData::i_ZelInterchangeDataCore::getDataToc;
};

struct ScreenTextItemKind {
    using Interface = ZelInterchangeData::i_ZelDataScreenTextItem;
    using Foreign = model::FakeScreenTextItem;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createScreenTextItemData;
};

struct ScreenTextKind {
    using Interface = ZelInterchangeData::i_ZelDataScreenText;
    using Foreign = model::FakeScreenText;
    using Items = ScreenTextItemKind;
    using Formatter = ZelInterchangeData::i_ZelDataScreenTextFormatter;
    static constexpr auto create = &ZelInterchangeData::ZelDataUtilities::createScreenTextData;
    static constexpr auto add = &Interface::addScreenTextItem;
    static constexpr auto createFormatter =
        &ZelInterchangeData::ZelDataUtilities::createScreenTextFormatter;
    static constexpr auto hold = &Formatter::setScreenText;
    static constexpr auto set = &ZelInterchangeData::i_ZelInterchangeDataCore::setDataScreenText;
    static constexpr auto get = &ZelInterchangeData::i_ZelInterchangeDataCore::getDataScreenText;
};

template <class Kind, class = void>
inline constexpr bool hasItems = false;
template <class Kind>
inline constexpr bool hasItems<Kind, std::void_t<typename Kind::Items>> = true;

/// A caller's object with contents. With @p itemScript, each item that it returns follows that
/// script.
template <class Kind>
std::unique_ptr<typename Kind::Foreign> makeForeign(Input& input,
                                                    const model::FakeScript& itemScript)
{
    auto object = std::make_unique<typename Kind::Foreign>();
    typename Kind::Interface& interface = *object;
    fill(interface, input);
    if constexpr (hasItems<Kind>) {
        for (std::size_t more = input.below(4); more > 0; --more) {
            typename Kind::Items::Foreign item;
            fill(static_cast<typename Kind::Items::Interface&>(item), input);
            item.setScript(itemScript);
            object->addClone(item);
        }
    }
    return object;
}

/// One of our objects with contents.
template <class Kind>
std::unique_ptr<typename Kind::Interface> makeOwn(Input& input)
{
    auto object = makeObject(Kind::create);
    fill(*object, input);
    if constexpr (hasItems<Kind>) {
        for (std::size_t more = input.below(4); more > 0; --more) {
            const auto item = makeObject(Kind::Items::create);
            fill(*item, input);
            mayRefuse(((*object).*Kind::add)(*item));
        }
    }
    return object;
}

} // namespace fuzz

#endif
