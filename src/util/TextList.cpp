#include "util/TextList.h"

#include <algorithm>
#include <utility>

namespace ZelInterchangeData {

namespace {

/// Up to this many texts are compared one by one, without an index.
constexpr std::size_t fewTexts = 16;

} // namespace

TextList::TextList(std::vector<std::string> texts) : texts_(std::move(texts))
{
    if (texts_.size() > fewTexts) index_.insert(texts_.begin(), texts_.end());
}

TextList& TextList::operator=(const TextList& other)
{
    return *this = TextList(other);
}

TextList& TextList::operator=(TextList&& other) noexcept
{
    texts_.swap(other.texts_);
    index_.swap(other.index_);
    return *this;
}

bool TextList::contains(std::string_view text) const
{
    if (!index_.empty()) return index_.find(text) != index_.end();
    return std::any_of(texts_.begin(), texts_.end(),
                       [text](const std::string& each) { return compareShort(each, text) == 0; });
}

void TextList::clear() noexcept
{
    texts_.clear();
    index_.clear();
}

void TextList::append(std::string_view text)
{
    std::string added(text);
    if (texts_.size() == texts_.capacity()) texts_.reserve(2 * texts_.size() + 1);
    if (texts_.size() == fewTexts) {
        std::multiset<std::string, std::less<>> index(texts_.begin(), texts_.end());
        index.emplace(text);
        index_.swap(index);
    } else if (!index_.empty()) {
        index_.emplace(text);
    }
    texts_.push_back(std::move(added));
}

bool TextList::remove(std::string_view text)
{
    const auto found = std::find(texts_.begin(), texts_.end(), text);
    if (found == texts_.end()) return false;
    if (!index_.empty()) index_.erase(index_.find(text));
    texts_.erase(found);
    return true;
}

void TextList::truncate(std::size_t count) noexcept
{
    while (texts_.size() > count) {
        if (!index_.empty()) index_.erase(index_.find(texts_.back()));
        texts_.pop_back();
    }
}

} // namespace ZelInterchangeData
