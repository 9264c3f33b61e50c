#include "present/Extras.h"

#include "present/BoardLayers.h"
#include "present/ExtraMotions.h"
#include "present/Points.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace veyrand::present {

namespace {

// The drag image and messages lie at this height and above it, the board below.
constexpr std::int64_t kAboveTheBoard = 10;

constexpr double kQuickFade = 0.1; // s
constexpr float kSeenAtOnce = 0.35F;

std::string slotOf(const Extra& extra)
{
    return extra.slot.empty() ? std::string(nameOf(extra.kind)) + ' ' + extra.key : extra.slot;
}

void addWithTexts(const Layer& layer, std::unordered_set<std::uint64_t>& numbers)
{
    numbers.insert(layer.id());
    for (const auto& sublayer : layer.sublayers()) {
        addWithTexts(*sublayer, numbers);
    }
}

void scaleAboutCentre(platform::RectF& rect, float scale)
{
    rect.x += rect.width * (1.0F - scale) / 2.0F;
    rect.y += rect.height * (1.0F - scale) / 2.0F;
    rect.width *= scale;
    rect.height *= scale;
}

} // namespace

std::string_view nameOf(ExtraKind kind)
{
    constexpr std::array<std::string_view, 12> kNames { "shake", "ring", "row", "limit", "plate",
        "light", "dust", "tip", "whisper", "focus", "sheet", "place" };
    return kNames.at(static_cast<std::size_t>(kind));
}

// How the board lies in the view: where its lower left corner is, and how long one game height is.
struct Extras::View {
    platform::RectF board;

    [[nodiscard]] platform::RectF rect(const ExtraRect& place, const Moment& moment) const
    {
        const auto height = static_cast<double>(board.height);
        const double width = place.width * moment.scale;
        const double tall = place.height * moment.scale;
        return { .x = board.x + static_cast<float>((place.x + moment.x - width / 2.0) * height),
            .y = board.y + static_cast<float>((place.y + moment.y - tall / 2.0) * height),
            .width = static_cast<float>(width * height),
            .height = static_cast<float>(tall * height) };
    }
};

struct Extras::Touched {
    double opacity = 1.0;
    double scale = 1.0;
    double glow = 0.0;
    double x = 0.0;
    Motion motion = Motion::Resting;

    // To what a touched thing shows, on a board of that height.
    void apply(DisplayItem& item, float boardHeight) const
    {
        scaleAboutCentre(item.rect, static_cast<float>(scale));
        item.rect.x += static_cast<float>(x) * boardHeight;
        item.opacity *= static_cast<float>(opacity);
        item.glow = std::max(item.glow, static_cast<float>(glow) * boardHeight);
        if (motion == Motion::Moving) {
            item.motion = Motion::Moving;
        }
    }
};

void Extras::direct()
{
    if (m_director && !m_directing) {
        m_directing = true;
        m_director();
        m_directing = false;
    }
    forgetWhatHasEnded();
}

void Extras::want(std::vector<Extra> wanted)
{
    std::vector<bool> met(wanted.size(), false);
    std::unordered_map<std::string, std::size_t> places; // the first of each slot
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        places.emplace(slotOf(wanted[i]), i);
    }
    for (Entry& entry : m_entries) {
        if (entry.leaving || entry.extra.duration > 0.0) {
            continue;
        }
        const auto found = places.find(slotOf(entry.extra));
        if (found == places.end()) {
            leave(entry);
            continue;
        }
        met[found->second] = true;
        if (!(entry.extra == wanted[found->second])) {
            replace(entry, wanted[found->second]);
        }
    }
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (!met[i]) {
            enter(wanted[i]);
        }
    }
}

void Extras::start(const Extra& extra)
{
    enter(extra);
    m_scene.animationStarted(extra.delay + extra.duration);
}

void Extras::end(ExtraKind kind)
{
    const auto ended = [kind](const Entry& entry) {
        return entry.extra.kind == kind && entry.extra.duration > 0.0;
    };
    const auto kept = std::remove_if(m_entries.begin(), m_entries.end(), ended);
    if (kept != m_entries.end()) {
        m_entries.erase(kept, m_entries.end());
        m_scene.setNeedsDisplay();
    }
}

void Extras::clear()
{
    if (!m_entries.empty()) {
        m_entries.clear();
        m_scene.setNeedsDisplay();
    }
}

void Extras::enter(const Extra& extra)
{
    Entry entry { .extra = extra, .start = m_scene.now() + extra.delay };
    for (std::size_t i = 0; i < extra.pieces.size(); ++i) {
        entry.ids.push_back(m_scene.nextLayerId());
    }
    entry.share.set(1.0F);
    if (extra.duration <= 0.0 && extra.fade.in > 0.0) {
        // What answers a hand is seen in the first frame already, not in the second.
        const float first = extra.fade.in < kQuickFade ? kSeenAtOnce : 0.0F;
        entry.share.animate(first, 1.0F, entry.start, extra.fade.in, Timing::EaseOut);
        m_scene.animationStarted(extra.delay + extra.fade.in);
    }
    const bool comesFromAfar
        = extra.motion != ExtraMotion::Recur && (extra.wayX != 0.0 || extra.wayY != 0.0);
    if (extra.duration <= 0.0 && comesFromAfar && taste() == MotionTaste::Full) {
        entry.offset.animate(
            point(-extra.wayX, -extra.wayY), {}, m_scene.now(), extra.fade.travel, Timing::EaseOut);
        m_scene.animationStarted(extra.fade.travel);
    }
    m_entries.push_back(std::move(entry));
    m_scene.setNeedsDisplay();
}

void Extras::replace(Entry& entry, const Extra& extra)
{
    const ExtraRect old = entry.extra.rect;
    entry.extra = extra;
    while (entry.ids.size() < extra.pieces.size()) {
        entry.ids.push_back(m_scene.nextLayerId());
    }
    const bool isElsewhere = old.x != extra.rect.x || old.y != extra.rect.y;
    if (isElsewhere && extra.fade.travel > 0.0 && taste() == MotionTaste::Full) {
        const platform::PointF from = entry.offset.at(m_scene.now());
        entry.offset.animate(point(static_cast<double>(from.x) + old.x - extra.rect.x,
                                 static_cast<double>(from.y) + old.y - extra.rect.y),
            {}, m_scene.now(), extra.fade.travel, Timing::EaseOut);
        m_scene.animationStarted(extra.fade.travel);
    }
    m_scene.setNeedsDisplay();
}

void Extras::leave(Entry& entry)
{
    const float share = entry.share.at(m_scene.now());
    entry.leaving = true;
    entry.share.set(0.0F);
    if (entry.extra.fade.out > 0.0) {
        entry.share.animate(share, 0.0F, m_scene.now(), entry.extra.fade.out, Timing::EaseOut);
        m_scene.animationStarted(entry.extra.fade.out);
    }
    m_scene.setNeedsDisplay();
}

void Extras::forgetWhatHasEnded()
{
    const double now = m_scene.now();
    const auto ended = [now](const Entry& entry) {
        return entry.extra.duration > 0.0 ? now >= entry.start + entry.extra.duration
                                          : entry.leaving && !entry.share.isAnimating(now);
    };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), ended), m_entries.end());
}

// What recurs has no end that could be told beforehand: every picture asks for another.
void Extras::goOn()
{
    constexpr double kUntilTheNext = 0.25; // s, longer than any frame
    const bool recurs = std::any_of(m_entries.begin(), m_entries.end(),
        [](const Entry& entry) { return entry.extra.motion == ExtraMotion::Recur; });
    if (recurs && taste() == MotionTaste::Full) {
        m_scene.animationStarted(kUntilTheNext);
    }
}

Extras::Moment Extras::momentOf(const Entry& entry) const
{
    const double now = m_scene.now();
    const Extra& extra = entry.extra;
    if (extra.motion == ExtraMotion::Recur) {
        const ExtraPose pose = poseOf(extra, now - entry.start, taste());
        return { .opacity = pose.opacity * static_cast<double>(entry.share.at(now)),
            .x = pose.x,
            .y = pose.y,
            .motion = taste() == MotionTaste::Full ? Motion::Moving : Motion::Resting };
    }
    if (extra.duration <= 0.0) {
        const platform::PointF offset = entry.offset.at(now);
        const bool moving = entry.offset.isAnimating(now) || entry.share.isAnimating(now);
        return { .opacity = static_cast<double>(entry.share.at(now)),
            .x = static_cast<double>(offset.x),
            .y = static_cast<double>(offset.y),
            .motion = moving ? Motion::Moving : Motion::Resting };
    }
    if (now < entry.start) {
        return { .opacity = 0.0 };
    }
    const ExtraPose pose = poseOf(extra, now - entry.start, taste());
    return { .opacity = pose.opacity,
        .x = pose.x,
        .y = pose.y,
        .scale = pose.scale,
        .glow = pose.glow,
        .motion = Motion::Moving };
}

std::vector<Extras::Shown> Extras::shown()
{
    direct();
    std::vector<Shown> all;
    for (const ExtraBand band :
        { ExtraBand::OnWood, ExtraBand::OnBoard, ExtraBand::UnderWords, ExtraBand::OverMessages }) {
        for (const Entry& entry : m_entries) {
            if (entry.extra.band != band || entry.leaving || entry.extra.isCompanion
                || m_scene.now() < entry.start) {
                continue;
            }
            const Moment moment = momentOf(entry);
            ExtraRect rect = entry.extra.rect;
            rect.x += moment.x;
            rect.y += moment.y;
            rect.width *= moment.scale;
            rect.height *= moment.scale;
            all.push_back({ .kind = entry.extra.kind,
                .key = entry.extra.key,
                .rect = rect,
                .opacity = moment.opacity,
                .text = entry.extra.text });
        }
    }
    return all;
}

Extras::Touches Extras::touchesNow() const
{
    Touches touches;
    for (const Entry& entry : m_entries) {
        const Moment moment = momentOf(entry);
        for (const ExtraTouch& touch : entry.extra.touches) {
            Touched& sum = touches[touch.key];
            sum.opacity *= 1.0 + (touch.opacity - 1.0) * moment.opacity;
            if (taste() == MotionTaste::Full) {
                sum.scale *= 1.0 + (touch.scale - 1.0) * moment.opacity;
            }
            sum.glow = std::max({ sum.glow, touch.glow * moment.opacity, moment.glow });
            sum.x += moment.x;
            if (moment.motion == Motion::Moving) {
                sum.motion = Motion::Moving;
            }
        }
    }
    return touches;
}

DisplayList Extras::itemsOf(ExtraBand band, const View& view) const
{
    DisplayList items;
    for (const Entry& entry : m_entries) {
        if (entry.extra.band != band) {
            continue;
        }
        const Moment moment = momentOf(entry);
        for (std::size_t i = 0; i < entry.extra.pieces.size(); ++i) {
            const ExtraPiece& piece = entry.extra.pieces[i];
            items.push_back({ .layer = entry.ids[i],
                .content = piece.content,
                .rect = view.rect(piece.rect, moment),
                .clip = view.board,
                .opacity = static_cast<float>(piece.opacity * moment.opacity),
                .motion = moment.motion });
        }
    }
    return items;
}

void Extras::decorate(DisplayList& list, const BoardLayers& layers)
{
    direct();
    if (m_entries.empty()) {
        return;
    }
    goOn();
    const View view { layers.backgroundLayer().rectInRoot() };
    const Touches touches = touchesNow();
    std::unordered_map<std::uint64_t, Touched> touchedLayers;
    std::unordered_set<std::uint64_t> inFront;
    for (const auto& layer : layers.backgroundLayer().sublayers()) {
        if (layer->zPosition() >= kAboveTheBoard) {
            addWithTexts(*layer, inFront);
        } else if (const auto* const mirror
            = touches.empty() ? nullptr : dynamic_cast<const GameObjectLayer*>(layer.get())) {
            if (const auto found = touches.find(mirror->gameObjectKey()); found != touches.end()) {
                touchedLayers.emplace(layer->id(), found->second);
            }
        }
    }

    DisplayList decorated;
    decorated.reserve(list.size() + m_entries.size() * 4);
    const auto append = [&](ExtraBand band) {
        for (DisplayItem& item : itemsOf(band, view)) {
            decorated.push_back(std::move(item));
        }
    };
    bool boardIsDone = false;
    bool wordsHaveBegun = false;
    for (DisplayItem& item : list) {
        if (!boardIsDone && inFront.contains(item.layer)) {
            append(ExtraBand::OnBoard);
            boardIsDone = true;
        }
        if (!wordsHaveBegun && std::holds_alternative<TextContent>(item.content)
            && inFront.contains(item.layer)) {
            append(ExtraBand::UnderWords);
            wordsHaveBegun = true;
        }
        if (const auto found = touchedLayers.find(item.layer); found != touchedLayers.end()) {
            found->second.apply(item, view.board.height);
        }
        const bool isWood = item.layer == layers.backgroundLayer().id();
        decorated.push_back(std::move(item));
        if (isWood) {
            append(ExtraBand::OnWood);
        }
    }
    if (!boardIsDone) {
        append(ExtraBand::OnBoard);
    }
    append(ExtraBand::OverMessages);
    list = std::move(decorated);
}

} // namespace veyrand::present
