#include "language/Json.h"

namespace veyrand::language {

Json jsonIn(std::string_view text)
{
    return Json::parse(text);
}

Json jsonOrNothingIn(std::string_view text)
{
    return Json::parse(text, nullptr, false);
}

} // namespace veyrand::language
