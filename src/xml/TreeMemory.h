/// @file
/// The memory of one element tree.

#ifndef ZELINTERCHANGEDATA_XML_TREEMEMORY_H
#define ZELINTERCHANGEDATA_XML_TREEMEMORY_H

#include <cstddef>
#include <memory_resource>
#include <new>

namespace ZelInterchangeData {

/// Allocates memory from large pieces, in order, and frees it only when it is destroyed: a tree is
/// built, written once and destroyed as a whole.
class TreeMemory {
public:
    std::pmr::memory_resource* resource() noexcept { return &pieces_; }

private:
    /// The heap, through the plain operators new and delete. The standard library's own resource
    /// calls the aligned ones, and a program that replaces the plain ones need not replace those.
    class Heap final : public std::pmr::memory_resource {
        void* do_allocate(std::size_t size, std::size_t /*alignment*/) override
        {
            return ::operator new(size);
        }

        void do_deallocate(void* memory, std::size_t /*size*/, std::size_t /*alignment*/) override
        {
            ::operator delete(memory);
        }

        // uncovered lines: the base class requires it, but nothing compares these
        bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
        {
            return this == &other;
        }
    };

    /// A packet's frame needs two or three pieces, a track's one.
    static constexpr std::size_t firstPiece = 4096;

    Heap heap_;
    std::pmr::monotonic_buffer_resource pieces_{firstPiece, &heap_};
};

} // namespace ZelInterchangeData

#endif
