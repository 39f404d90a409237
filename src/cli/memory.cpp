// The program's memory. A text of one or two thousand characters is taken and given back for nearly
// every step of every deck, and the C library keeps no blocks of that size at hand. So a block that
// is given back is kept for the next one of its size class, and from the second deck on hardly any
// is asked for. There is one thread. Held by the run of all tests of the program.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

/// Sizes are rounded up to powers of two: class 4 has 16 bytes, the last one 64 KB, more than any
/// text that can be converted. What is larger goes back to the C library.
constexpr std::size_t kSmallestClass = 4;
constexpr std::size_t kClassCount = 17;

struct FreeBlock {
    FreeBlock* next;
};

std::array<FreeBlock*, kClassCount> freeBlocks{};

std::size_t classOf(std::size_t size)
{
    constexpr std::size_t kSmallest = std::size_t{1} << kSmallestClass;
    if (size <= kSmallest) return kSmallestClass;
    return static_cast<std::size_t>(std::bit_width(size - 1));
}

void* fromLibrary(std::size_t size)
{
    void* const block = std::malloc(size); // NOLINT: this is where memory comes from
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

} // namespace

void* operator new(std::size_t size)
{
    const auto sizeClass = classOf(size);
    if (sizeClass >= kClassCount) return fromLibrary(size);
    auto& first = freeBlocks[sizeClass];
    if (first == nullptr) return fromLibrary(std::size_t{1} << sizeClass);
    auto* const block = first;
    first = block->next;
    return block;
}

void operator delete(void* block) noexcept
{
    std::free(block); // NOLINT: its size is not known
}

void operator delete(void* block, std::size_t size) noexcept
{
    const auto sizeClass = classOf(size);
    if (block == nullptr || sizeClass >= kClassCount) return operator delete(block);
    freeBlocks[sizeClass] = new (block) FreeBlock{freeBlocks[sizeClass]};
}
