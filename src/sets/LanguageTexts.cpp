#include "sets/LanguageTexts.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/LanguageCatalogue.h"
#include "util/TextUtilities.h"

#include <utility>

namespace ZelInterchangeData {

namespace {

/// The maximum number of bytes that a change of packed texts copies.
constexpr std::size_t mostPackedBytes = 8192;

} // namespace

ZelDataResult_tags LanguageTexts::check(std::string_view text, std::string_view languageID)
{
    constexpr std::size_t codeLength = 2; // the code of a language is ASCII
    const bool valid =
        isLanguage(languageID) &&
        (languageID.size() == codeLength || !failed(verifyUtf8(languageID, false))) &&
        !failed(verifyUtf8(text, false));
    return valid ? ZelData_Ok : ZelData_InvalidItem;
}

std::optional<std::string_view> LanguageTexts::Map::find(std::string_view languageID) const
{
    const auto found = texts.find(languageID);
    return found == texts.end() ? std::optional<std::string_view>() : found->second;
}

bool LanguageTexts::Map::set(std::string_view text, std::string_view languageID)
{
    return !texts.insert_or_assign(std::string(languageID), std::string(text)).second;
}

LanguageTexts::Map LanguageTexts::unpacked() const
{
    Map map;
    forEach([&](std::string_view languageID, std::string_view text) { map.set(text, languageID); });
    return map;
}

std::size_t LanguageTexts::count() const noexcept
{
    return many_ ? many_->read().texts.size() : few_.count();
}

std::size_t LanguageTexts::sizeWithEntities() const
{
    if (!many_) return few_.byteCount(); // so few that their entities do not matter
    std::size_t size = 0;
    for (const auto& [languageID, text] : many_->read().texts)
        size += languageID.size() + ZelInterchangeData::sizeWithEntities(text);
    return size;
}

void LanguageTexts::clear() noexcept
{
    few_.clear();
    many_.reset();
}

bool LanguageTexts::replace(std::string_view text, std::string_view languageID)
{
    if (many_) return many_->write().set(text, languageID);
    if (few_.bytesWith(languageID.size() + text.size()) <= mostPackedBytes)
        return few_.set(text, languageID);
    Map map = unpacked();
    const bool replaced = map.set(text, languageID);
    many_.emplace(std::move(map));
    few_.clear();
    return replaced;
}

ZelDataResult_tags LanguageTexts::set(std::string_view text, std::string_view languageID)
{
    return replace(text, languageID) ? ZelData_WarnAlreadyExists : ZelData_Ok;
}

void LanguageTexts::addMissing(const std::vector<std::string>& languageIDs)
{
    LanguageTexts filled(*this);
    for (const std::string& id : languageIDs) {
        if (!filled.find(id)) filled.replace({}, id);
    }
    *this = std::move(filled);
}

ZelDataResult_tags LanguageTexts::get(std::string& text, const std::string& languageID) const
{
    const auto found = find(languageID);
    if (!found) return ZelData_InvalidArgument;
    text = *found;
    return ZelData_Ok;
}

std::optional<PackedTexts> LanguageTexts::prepareRemoval(std::string_view languageID)
{
    if (!find(languageID)) return std::nullopt;
    if (many_) {
        many_->write(); // no longer shared
        return PackedTexts();
    }
    PackedTexts left(few_);
    left.remove(languageID);
    return left;
}

void LanguageTexts::finishRemoval(std::string_view languageID, PackedTexts left) noexcept
{
    few_ = std::move(left);
    if (!many_) return;
    Map& map = many_->write();
    map.texts.erase(map.texts.find(languageID));
    if (map.texts.empty()) many_.reset();
}

ZelDataResult_tags LanguageTexts::remove(const std::string& languageID)
{
    auto left = prepareRemoval(languageID);
    if (!left) return ZelData_NotFound;
    finishRemoval(languageID, std::move(*left));
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::getLanguageIDs(std::vector<std::string>& ids) const
{
    std::vector<std::string> found;
    found.reserve(count());
    forEach([&](std::string_view languageID, std::string_view /*text*/) {
        found.emplace_back(languageID);
    });
    ids.swap(found);
    return ZelData_Ok;
}

} // namespace ZelInterchangeData
