#pragma once

#include "engine/PackedLine.h"
#include "engine/Proof.h"
#include "platform/Log.h"
#include "progress/RuleSets.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veyrand::engine {

inline const SharedRules& sevenMoves()
{
    static const SharedRules kMoves = std::make_shared<const Rules>(progress::advancedRules());
    return kMoves;
}

inline Theorem line(std::string text)
{
    return Theorem(std::move(text));
}

inline PackedLine packed(const std::string& text)
{
    return *PackedLine::pack(text);
}

inline Proof proofFromTo(const std::string& root, const std::string& goal)
{
    return { line(root), line(goal), sevenMoves() };
}

inline std::vector<std::string> textsOf(const Nodes& nodes)
{
    std::vector<std::string> texts;
    for (const NodePtr& node : nodes) {
        texts.push_back(node->theorem().theorem());
    }
    return texts;
}

// Whether one move leads from the first line to the second.
inline bool joinedByAMove(const Theorem& from, const Theorem& to)
{
    for (const Rule& rule : *sevenMoves()) {
        for (unsigned match = 0; match < from.numberOfMatchesWithRule(rule); ++match) {
            if (from.applyRule(rule, match) == to) {
                return true;
            }
        }
    }
    return false;
}

class RecordingLog final : public platform::Log {
public:
    void write(std::string_view entry) override { entries.emplace_back(entry); }

    std::vector<std::string> entries;
};

} // namespace veyrand::engine
