#include "faults/Allocations.h"

#include <cstdlib>
#include <new>

namespace veyrand::test::allocations {

namespace {

bool isOn = false;
std::size_t counted = 0;
std::size_t failing = kNone;

} // namespace

void failAt(std::size_t number)
{
    counted = 0;
    failing = number;
    isOn = true;
}

std::size_t stop()
{
    isOn = false;
    return counted;
}

namespace {

void* allocated(std::size_t size)
{
    if (isOn && counted++ == failing) {
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

} // namespace veyrand::test::allocations

void* operator new(std::size_t size)
{
    return veyrand::test::allocations::allocated(size);
}

void* operator new[](std::size_t size)
{
    return veyrand::test::allocations::allocated(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
