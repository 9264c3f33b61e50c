#include <array>
#include <cstdio>
#include <cstring>

// An array on the stack, and a copy whose length only the argument tells: what the flags guard.
int main(int /*count*/, char** arguments)
{
    std::array<char, 64> copy {};
    std::strcpy(copy.data(), arguments[0]);
    return std::puts(copy.data()) < 0 ? 1 : 0;
}
