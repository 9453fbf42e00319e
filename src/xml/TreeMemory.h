/// @file
/// The memory of one element tree.

#ifndef ZELINTERCHANGEDATA_XML_TREEMEMORY_H
#define ZELINTERCHANGEDATA_XML_TREEMEMORY_H

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace ZelInterchangeData {

/// Allocates memory from large pieces, in order, and frees it only when it is destroyed: a tree is
/// built, written once and destroyed as a whole.
class TreeMemory {
public:
    TreeMemory() = default;
    ~TreeMemory()
    {
        while (newest_ != nullptr)
            ::operator delete(std::exchange(newest_, newest_->before));
    }
    TreeMemory(const TreeMemory&) = delete;
    TreeMemory& operator=(const TreeMemory&) = delete;

    /// Never null. @p alignment is at most that of plain operator new.
    void* allocate(std::size_t size, std::size_t alignment)
    {
        if (std::align(alignment, size, next_, left_) == nullptr) addPiece(size);
        left_ -= size;
        return std::exchange(next_, static_cast<char*>(next_) + size);
    }

private:
    /// What each piece begins with.
    struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Piece {
        Piece* before;
    };

    void addPiece(std::size_t least)
    {
        const std::size_t size = std::max(least, usual_);
        newest_ = new (::operator new(sizeof(Piece) + size)) Piece{newest_};
        next_ = newest_ + 1;
        left_ = size;
        usual_ += usual_ / 2;
    }

    static constexpr std::size_t firstPiece = 4096;

    Piece* newest_ = nullptr;
    void* next_ = nullptr;
    std::size_t left_ = 0;
    std::size_t usual_ = firstPiece;
};

/// Lets a container take its memory from a tree; from the heap where there is none.
template <class Type>
class TreeAllocator {
public:
    using value_type = Type;

    // NOLINTNEXTLINE(google-explicit-constructor): so that a container is made with the memory.
    TreeAllocator(TreeMemory* memory) noexcept : memory_(memory) {}
    template <class Other>
    // NOLINTNEXTLINE(google-explicit-constructor): as a container converts its allocator.
    TreeAllocator(const TreeAllocator<Other>& other) noexcept : memory_(other.memory())
    {
    }

    Type* allocate(std::size_t count)
    {
        static_assert(alignof(Type) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        const std::size_t size = count * sizeof(Type);
        return static_cast<Type*>(memory_ != nullptr ? memory_->allocate(size, alignof(Type))
                                                     : ::operator new(size));
    }
    void deallocate(Type* place, std::size_t /*count*/) noexcept
    {
        if (memory_ == nullptr) ::operator delete(place);
    }

    TreeMemory* memory() const noexcept { return memory_; }

    friend bool operator==(const TreeAllocator& left, const TreeAllocator& right) noexcept
    {
        return left.memory_ == right.memory_;
    }
    friend bool operator!=(const TreeAllocator& left, const TreeAllocator& right) noexcept
    {
        return left.memory_ != right.memory_;
    }

private:
    TreeMemory* memory_;
};

using TreeString = std::basic_string<char, std::char_traits<char>, TreeAllocator<char>>;

} // namespace ZelInterchangeData

#endif
