/// @file
/// All that an operation can deliver through its arguments.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OUTS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_OUTS_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/TempFile.h"

#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// An object that an operation hands out; it is deleted here.
template <class Interface>
struct HandedOut {
    HandedOut() = default;
    ~HandedOut() { delete object; }
    HandedOut(const HandedOut&) = delete;
    HandedOut& operator=(const HandedOut&) = delete;

    Interface* object = nullptr;
};

/// Objects that an operation hands out; they are deleted here.
template <class Interface>
struct AllHandedOut {
    AllHandedOut() = default;
    ~AllHandedOut()
    {
        for (Interface* object : objects)
            delete object;
    }
    AllHandedOut(const AllHandedOut&) = delete;
    AllHandedOut& operator=(const AllHandedOut&) = delete;

    std::vector<Interface*> objects;
};

/// Arguments for an operation to deliver its results to. They begin with values that none delivers.
class Outs {
public:
    Outs();

    /// What all of them hold.
    [[nodiscard]] std::string described() const;

    std::string text = "a text that was there before the operation began";
    /// Short, so that a longer text needs an allocation.
    std::string shortText = "before";
    std::string id = "en-a-language-that-is-too-long-for-a-short-string";
    std::vector<std::string> list = {"a value that was there before the operation began"};
    bool flag = true;
    unsigned long number = 7001;
    long long time = 7002;
    unsigned long long offset = 7003;
    ZelAlignment_tags alignment = ZelAlignTop;
    float red = 0.125F;
    float green = 0.25F;
    float blue = 0.375F;

    HandedOut<i_ZelDataHeader> header;
    HandedOut<i_ZelDataCaptions> captions;
    HandedOut<i_ZelDataToc> toc;
    HandedOut<i_ZelDataScreenText> screenText;
    HandedOut<i_ZelDataCaptionItem> caption;
    HandedOut<i_ZelDataTocItem> entry;
    HandedOut<i_ZelDataScreenTextItem> screenTextItem;
    HandedOut<i_ZelDataHeaderFormatter> headerFormatter;
    HandedOut<i_ZelDataCaptionFormatter> captionFormatter;
    HandedOut<i_ZelDataTocFormatter> tocFormatter;
    HandedOut<i_ZelDataScreenTextFormatter> screenTextFormatter;
    HandedOut<i_ZelInterchangeDataCore> document;
    AllHandedOut<i_ZelDataCaptionItem> captionItems;
    AllHandedOut<i_ZelDataTocItem> entries;
    AllHandedOut<i_ZelDataScreenTextItem> screenTextItems;
    std::vector<ZelDataFinding> findings{ZelDataFinding()};

    /// Objects to copy into.
    std::unique_ptr<i_ZelDataHeader> headerTarget;
    std::unique_ptr<i_ZelDataCaptions> captionsTarget;
    std::unique_ptr<i_ZelDataToc> tocTarget;
    std::unique_ptr<i_ZelDataScreenText> screenTextTarget;
    /// A file to write to.
    TempFile file;
};

/// What an operation is called with for an argument of its entry. A pointer to a member of Outs becomes
/// that member of @p outs, a function becomes what it returns, and any other value stays as it is.
/// @{
template <class Value>
const Value& argument(Outs& /*outs*/, const Value& value)
{
    return value;
}

template <class Value>
Value& argument(Outs& /*outs*/, Value& (*given)())
{
    return given();
}

template <class Value>
Value& argument(Outs& outs, Value Outs::*place)
{
    return outs.*place;
}

template <class Interface>
Interface** argument(Outs& outs, HandedOut<Interface> Outs::*place)
{
    return &(outs.*place).object;
}

template <class Interface>
std::vector<Interface*>& argument(Outs& outs, AllHandedOut<Interface> Outs::*place)
{
    return (outs.*place).objects;
}

template <class Interface>
Interface& argument(Outs& outs, std::unique_ptr<Interface> Outs::*target)
{
    return *(outs.*target);
}

inline const std::string& argument(Outs& outs, TempFile Outs::*file)
{
    return (outs.*file).path();
}
/// @}

} // namespace ZelInterchangeData

#endif
