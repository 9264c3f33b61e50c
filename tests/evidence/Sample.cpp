#include <array>
#include <cstdio>
#include <cstring>
#include <vector>

// An array on the stack, a copy whose length only the argument tells, and a place in a list that
// only their number tells: what the flags guard.
int main(int count, char** arguments)
{
    std::array<char, 64> copy {};
    std::strcpy(copy.data(), arguments[0]);
    const std::vector<int> lengths { 1, 2, 3 };
    return std::puts(copy.data()) < lengths[static_cast<std::size_t>(count)] ? 1 : 0;
}
