#include "controller/BundleText.h"

#include "language/Json.h"
#include "platform/MemoryPreferences.h"
#include "play/Fnv.h"
#include "play/JournalText.h"
#include "progress/PlayerKeys.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <stdexcept>

namespace veyrand::controller {

namespace {

using language::Json;
using platform::PreferenceRecord;
using platform::PreferenceValue;
using play::Bundle;
using progress::Mode;

constexpr std::string_view kMagic = "veyrand-export";
constexpr int kFormat = 1;
constexpr std::string_view kCheck = "check";
constexpr std::array kModes { std::pair { Mode::Classic, "classic" },
    std::pair { Mode::Endless, "endless" } };

// A part that is not what it has to be.
class Damage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

Json jsonOf(const PreferenceRecord& record)
{
    Json object = Json::object();
    for (const auto& [key, value] : record) {
        object[key] = std::visit([](const auto& plain) { return Json(plain); }, value);
    }
    return object;
}

std::string dumped(const Json& document)
{
    return document.dump(1, ' ', false, Json::error_handler_t::replace) + '\n';
}

Json withoutCheck(const Bundle& bundle)
{
    Json document { { std::string(kMagic), kFormat }, { "player", bundle.player },
        { "record", jsonOf(progress::storedRecord(bundle.record)) },
        { "endlessOpen", bundle.endlessOpen }, { "music", bundle.music },
        { "effects", bundle.effects }, { "settings", jsonOf(bundle.settings) } };
    for (const auto& [mode, name] : kModes) {
        document["journals"][name] = bundle.journalOf(mode);
    }
    document["results"] = bundle.results.lines();
    document["puzzles"] = bundle.puzzles.lines();
    return document;
}

std::string checkOf(const Bundle& bundle)
{
    std::array<char, 17> digits {};
    std::snprintf(digits.data(), digits.size(), "%016llx",
        static_cast<unsigned long long>(play::fnv1a(dumped(withoutCheck(bundle)))));
    return digits.data();
}

const Json& part(const Json& object, const std::string& name, Json::value_t kind)
{
    const auto found = object.find(name);
    if (found == object.end() || found->type() != kind) {
        throw Damage(name);
    }
    return *found;
}

bool flag(const Json& object, const std::string& name)
{
    return part(object, name, Json::value_t::boolean).get<bool>();
}

Bundle::Lines linesIn(const Json& object, const std::string& name)
{
    Bundle::Lines lines;
    for (const Json& line : part(object, name, Json::value_t::array)) {
        if (!line.is_string()
            || line.get_ref<const std::string&>().find('\n') != std::string::npos) {
            throw Damage(name);
        }
        lines.push_back(line.get<std::string>());
    }
    return lines;
}

PreferenceValue valueOf(const Json& value, const std::string& name)
{
    constexpr auto kGreatest = static_cast<std::uint64_t>(progress::kGreatestScore);
    if (value.is_boolean()) {
        return value.get<bool>();
    }
    if (value.is_number_integer()
        && (!value.is_number_unsigned() || value.get<std::uint64_t>() <= kGreatest)) {
        return value.get<std::int64_t>();
    }
    if (value.is_number_float()) {
        return value.get<double>();
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    throw Damage(name);
}

PreferenceRecord groupIn(const Json& object, const std::string& name)
{
    PreferenceRecord record;
    for (const auto& [key, value] : part(object, name, Json::value_t::object).items()) {
        record.insert_or_assign(key, valueOf(value, name));
    }
    return record;
}

// A record that reads otherwise than it was written is none of ours.
progress::PlayerRecord recordIn(const Json& document)
{
    const PreferenceRecord stored = groupIn(document, "record");
    platform::MemoryPreferences preferences;
    preferences.setRecord(progress::playerRecordKey({}), stored);
    const auto record = progress::readPlayerRecord(preferences, {});
    if (progress::storedRecord(record) != stored) {
        throw Damage("record");
    }
    return record;
}

// What keeps itself as lines, each with a check of its own.
template <class Kept> Kept keptIn(const Json& document, const char* name, Kept Kept::Read::*kept)
{
    const Bundle::Lines lines = linesIn(document, name);
    auto read = Kept::read(play::textOfLines(lines));
    if (read.damaged > 0 || (read.*kept).lines() != lines) {
        throw Damage(name);
    }
    return std::move(read.*kept);
}

Bundle bundleIn(const Json& document)
{
    Bundle bundle {
        .player = part(document, "player", Json::value_t::string).get<std::string>(),
        .record = recordIn(document),
        .endlessOpen = flag(document, "endlessOpen"),
        .music = flag(document, "music"),
        .effects = flag(document, "effects"),
        .settings = groupIn(document, "settings"),
        .results = keptIn(document, "results", &play::Results::Read::results),
        .puzzles = keptIn(document, "puzzles", &play::MyPuzzles::Read::puzzles),
    };
    const Json& journals = part(document, "journals", Json::value_t::object);
    for (const auto& [mode, name] : kModes) {
        bundle.journalOf(mode) = linesIn(journals, name);
        const auto journal
            = play::readJournal(play::textOfLines(bundle.journalOf(mode)), bundle.player);
        if (journal.state != play::JournalText::State::Whole) {
            throw Damage(std::string("journals.") + name);
        }
    }
    // Whatever has not been looked at by now differs from what would be written.
    if (part(document, std::string(kCheck), Json::value_t::string) != checkOf(bundle)) {
        throw Damage(std::string(kCheck));
    }
    return bundle;
}

std::optional<int> formatOf(const Json& document)
{
    const auto found = document.is_object() ? document.find(kMagic) : document.end();
    const bool isNumber = found != document.end() && found->is_number_integer();
    return isNumber ? std::optional(found->get<int>()) : std::nullopt;
}

} // namespace

std::string textOf(const Bundle& bundle)
{
    Json document = withoutCheck(bundle);
    document[std::string(kCheck)] = checkOf(bundle);
    return dumped(document);
}

std::variant<Bundle, BundleFault> readBundle(std::string_view text)
{
    using Kind = BundleFault::Kind;
    if (text.size() > kMostBundleBytes) {
        return BundleFault { Kind::TooLarge };
    }
    const Json document = language::jsonOrNothingIn(text);
    if (document.is_discarded()) {
        const bool begins = text.substr(0, text.find(':')).find(kMagic) != std::string_view::npos;
        return BundleFault { begins ? Kind::Damaged : Kind::Foreign, "JSON" };
    }
    const auto format = formatOf(document);
    if (!format || *format != kFormat) {
        return BundleFault { format && *format > kFormat ? Kind::Newer : Kind::Foreign };
    }
    try {
        return bundleIn(document);
    } catch (const Damage& damage) {
        return BundleFault { Kind::Damaged, damage.what() };
    }
}

std::string impossibleIn(const Bundle& bundle, Mode mode, const progress::Catalogue& catalogue)
{
    const auto journal = play::readJournal(play::textOfLines(bundle.journalOf(mode)));
    const auto recovery = play::recover(play::standingOf(bundle, mode), catalogue, journal.entries);
    if (recovery.fault.empty()) {
        return {};
    }
    return std::string("journals.") + (mode == Mode::Endless ? "endless" : "classic") + ", "
        + std::to_string(recovery.replayed + 2);
}

} // namespace veyrand::controller
