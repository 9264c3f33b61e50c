#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <typeindex>

namespace veyrand::platform {

// The application's named resources that the core reads as bytes (the puzzle catalogues, the texts
// of the pages). Images and sounds are fetched by name behind the ports that show and play them.
// They do not change while the program runs, so what was understood of them once is shared by all
// games.
class Resources {
public:
    Resources() = default;
    Resources(const Resources&) = delete;
    Resources& operator=(const Resources&) = delete;
    virtual ~Resources() = default;

    // The bytes of the resource ("Theorems", "txt"), or nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> dataNamed(
        std::string_view name, std::string_view type) const = 0;

    // What the function makes of them, made at the first call for its type.
    template <class Make> [[nodiscard]] auto once(const Make& make) const
    {
        using Made = const decltype(make());
        std::shared_ptr<const void>& made = m_made[typeid(Made)];
        if (made == nullptr) {
            made = std::make_shared<Made>(make());
        }
        return std::static_pointer_cast<Made>(made);
    }

protected:
    // For those whose files do change.
    void forgetWhatWasMade() { m_made.clear(); }

private:
    mutable std::map<std::type_index, std::shared_ptr<const void>> m_made;
};

} // namespace veyrand::platform
