#pragma once

#include "Command.h"
#include "engine/Analysis.h"
#include "engine/TreeNode.h"
#include "platform/Log.h"
#include "progress/RuleSets.h"

namespace veyrand::workshop {

inline engine::SharedRules sevenMoves()
{
    static const engine::SharedRules kMoves
        = std::make_shared<const engine::Rules>(progress::advancedRules());
    return kMoves;
}

// The lines of nodes; null for none at all.
inline Json linesOf(const std::optional<engine::Nodes>& nodes)
{
    if (!nodes) {
        return nullptr;
    }
    Json lines = Json::array();
    for (const engine::NodePtr& node : *nodes) {
        lines.push_back(node->theorem().theorem());
    }
    return lines;
}

template <class T> Json orNull(const std::optional<T>& value)
{
    return value ? Json(*value) : Json(nullptr);
}

// A log that ends up in the answer.
class JsonLog final : public platform::Log {
public:
    void write(std::string_view line) override { m_lines.push_back(std::string(line)); }
    [[nodiscard]] const Json& lines() const { return m_lines; }

private:
    Json m_lines = Json::array();
};

} // namespace veyrand::workshop
