#include "Results.h"

#include <fstream>
#include <iomanip>
#include <iostream>

namespace veyrand::bench {

void Results::heading(const std::string& text)
{
    std::cout << '\n' << text << '\n';
}

void Results::add(
    const std::string& name, double value, const std::string& unit, const std::string& remark)
{
    constexpr int kNameWidth = 30;
    constexpr int kValueWidth = 14;
    m_values[name] = value;
    std::cout << "  " << std::left << std::setw(kNameWidth) << name << std::right << std::fixed
              << std::setprecision(3) << std::setw(kValueWidth) << value << ' ' << std::left
              << std::setw(9) << unit << remark << std::endl;
}

bool Results::write(const std::string& path) const
{
    std::ofstream file(path);
    file << m_values.dump(2) << std::endl;
    return file.good();
}

} // namespace veyrand::bench
