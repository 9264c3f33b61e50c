#pragma once

#include "platform/FileExchange.h"

#include <optional>
#include <utility>

namespace veyrand::platform {

// Files in memory: what has been saved last, and what the player chooses when he is asked next.
class MemoryExchange final : public FileExchange {
public:
    struct File {
        std::string name;
        std::string text;
    };

    // Without a name the player cancels.
    void choose(std::optional<File> file) { m_chosen = std::move(file); }
    // Nothing can be written or read until it is empty again.
    void setFault(std::string fault) { m_fault = std::move(fault); }
    [[nodiscard]] const std::optional<File>& saved() const { return m_saved; }

    void save(const Wish& wish, const std::string& text, Answered answered) override
    {
        if (!m_fault.empty()) {
            return answered(failed(wish.name, m_fault));
        }
        m_saved = File { wish.name, text };
        answered({ .kind = Answer::Kind::Done, .name = wish.name });
    }

    void open(const Wish& /*wish*/, std::size_t mostBytes, Answered answered) override
    {
        if (!m_chosen) {
            return answered({});
        }
        const File& file = *m_chosen;
        if (!m_fault.empty() || file.text.size() > mostBytes) {
            return answered(failed(file.name, m_fault.empty() ? "it is too large" : m_fault));
        }
        answered({ .kind = Answer::Kind::Done, .name = file.name, .text = file.text });
    }

private:
    static Answer failed(const std::string& name, const std::string& fault)
    {
        return { .kind = Answer::Kind::Failed, .name = name, .fault = fault };
    }

    std::optional<File> m_chosen;
    std::optional<File> m_saved;
    std::string m_fault;
};

} // namespace veyrand::platform
