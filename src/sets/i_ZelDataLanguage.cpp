#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include "util/Guard.h"

namespace ZelInterchangeData {

i_ZelDataLanguage::~i_ZelDataLanguage() = default;

ZelDataResult_tags i_ZelDataLanguage::copyFrom(const i_ZelDataLanguage& other)
{
    if (&other == this) return store(ZelData_InternalError);
    return store(guarded([&] {
        if (const auto cleared = clearLanguages(); failed(cleared)) return cleared;
        std::vector<std::string> ids;
        if (failed(other.getOrderedLanguageIDs(ids))) return other.getLastError();
        for (const std::string& id : ids) {
            // cppcheck-suppress useStlAlgorithm ; each call changes the object, in this order
            if (failed(addLanguage(id))) return getLastError();
        }
        return ZelData_Ok;
    }));
}

} // namespace ZelInterchangeData
