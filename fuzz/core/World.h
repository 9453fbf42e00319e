/// @file
/// Objects of every kind for operations to work on.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_WORLD_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_WORLD_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/ZelDataCoreXmp.h"
#include "support/Require.h"

#include <array>
#include <cstddef>
#include <memory>
#include <tuple>
#include <type_traits>

namespace fuzz {

/// A new object from one of the factories.
template <class Interface>
std::unique_ptr<Interface>
makeObject(ZelInterchangeData::ZelDataResult_tags (*factory)(Interface**))
{
    Interface* made = nullptr;
    require(factory(&made) == ZelInterchangeData::ZelData_Ok, "a factory fails");
    return std::unique_ptr<Interface>(made);
}

/// A new formatter from one of the factories.
template <class Interface>
std::unique_ptr<Interface> makeObject(ZelInterchangeData::ZelDataResult_tags (*factory)(
    Interface**, ZelInterchangeData::ZelDataFormatType_tags))
{
    Interface* made = nullptr;
    require(factory(&made, ZelInterchangeData::ZelDataFormat_Xmp) == ZelInterchangeData::ZelData_Ok,
            "a factory fails");
    return std::unique_ptr<Interface>(made);
}

/// Two objects from one of the factories.
template <class Factory>
auto pairOf(Factory factory)
{
    return std::array{makeObject(factory), makeObject(factory)};
}

/// Two objects of each kind of data, two formatters of each kind, and two documents: one that
/// callers get, and one of the class that writes.
class World {
    using Utilities = ZelInterchangeData::ZelDataUtilities;
    template <class Interface>
    using Pair = std::array<std::unique_ptr<Interface>, 2>;

public:
    /// The object for @p number. For a base class, an object of any class derived from it.
    template <class Interface>
    Interface& object(std::size_t number)
    {
        using namespace ZelInterchangeData;
        if constexpr (std::is_same_v<Interface, i_ZelDataLanguage>) {
            return oneOf<Interface, i_ZelDataHeader, i_ZelDataCaptions, i_ZelDataToc>(number);
        } else if constexpr (std::is_same_v<Interface, i_ZelDataFormatterBase>) {
            return oneOf<Interface, i_ZelDataHeaderFormatter, i_ZelDataCaptionFormatter,
                         i_ZelDataTocFormatter, i_ZelDataScreenTextFormatter,
                         i_ZelInterchangeDataCore>(number);
        } else {
            return *std::get<Pair<Interface>>(objects_)[number % 2];
        }
    }

    /// Calls @p take with every object.
    template <class Take>
    void forEach(Take&& take)
    {
        std::apply([&](auto&... pair) { (takeBoth(pair, take), ...); }, objects_);
    }

private:
    template <class Base, class... Kinds>
    Base& oneOf(std::size_t number)
    {
        const std::array<Base*, sizeof...(Kinds)> all{&object<Kinds>(number / sizeof...(Kinds))...};
        return *all[number % all.size()];
    }

    template <class Interface, class Take>
    static void takeBoth(Pair<Interface>& pair, Take& take)
    {
        take(*pair[0]);
        take(*pair[1]);
    }

    static Pair<ZelInterchangeData::i_ZelInterchangeDataCore> documents()
    {
        using namespace ZelInterchangeData;
        return {std::unique_ptr<i_ZelInterchangeDataCore>(ZELDataCreator::createInterchangeData()),
                std::make_unique<ZelDataCoreXmp>()};
    }

    std::tuple<
        Pair<ZelInterchangeData::i_ZelDataHeader>, Pair<ZelInterchangeData::i_ZelDataCaptionItem>,
        Pair<ZelInterchangeData::i_ZelDataCaptions>, Pair<ZelInterchangeData::i_ZelDataTocItem>,
        Pair<ZelInterchangeData::i_ZelDataToc>, Pair<ZelInterchangeData::i_ZelDataScreenTextItem>,
        Pair<ZelInterchangeData::i_ZelDataScreenText>,
        Pair<ZelInterchangeData::i_ZelDataHeaderFormatter>,
        Pair<ZelInterchangeData::i_ZelDataCaptionFormatter>,
        Pair<ZelInterchangeData::i_ZelDataTocFormatter>,
        Pair<ZelInterchangeData::i_ZelDataScreenTextFormatter>,
        Pair<ZelInterchangeData::i_ZelInterchangeDataCore>>
        objects_{pairOf(&Utilities::createHeaderData),
                 pairOf(&Utilities::createCaptionItemData),
                 pairOf(&Utilities::createCaptionData),
                 pairOf(&Utilities::createTocItemData),
                 pairOf(&Utilities::createTocData),
                 pairOf(&Utilities::createScreenTextItemData),
                 pairOf(&Utilities::createScreenTextData),
                 pairOf(&Utilities::createHeaderFormatter),
                 pairOf(&Utilities::createCaptionFormatter),
                 pairOf(&Utilities::createTocFormatter),
                 pairOf(&Utilities::createScreenTextFormatter),
                 documents()};
};

} // namespace fuzz

#endif
