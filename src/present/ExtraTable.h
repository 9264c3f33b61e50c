#pragma once

namespace veyrand::present {

// The numbers of everything the view adds. Lengths are in game heights, times in seconds.

struct ExtraFade {
    double in = 0.0;
    double out = 0.0;
    double travel = 0.0; // from the place of what it follows
    friend bool operator==(const ExtraFade&, const ExtraFade&) = default;
};

namespace extras {

// Refusals. The first swing is the widest, and none goes further than a sixth of a chip's width.
inline constexpr double kShake = 0.3;
inline constexpr int kSwings = 3;
inline constexpr double kFirstSwing = 0.011;
inline constexpr double kSwingLess = 0.003; // each than the one before
inline constexpr double kLimit = 0.45;
inline constexpr double kLimitAgain = 0.75; // no light comes again sooner
inline constexpr double kLastLine = 0.45;
inline constexpr double kBlink = 0.25;
inline constexpr double kShakeGlow = 0.010; // where nothing may move

// What can be done.
inline constexpr ExtraFade kRowFade { .in = 0.16, .out = 0.16, .travel = 0.16 };
inline constexpr double kRestingChip = 0.86;
inline constexpr double kRestingVeil = 0.26;
inline constexpr ExtraFade kHoverFade { .in = 0.09, .out = 0.09 };
inline constexpr double kHoverScale = 1.04;
inline constexpr double kHalo = 0.096;
inline constexpr ExtraFade kHeldFade { .in = 0.06, .out = 0.06 };
inline constexpr double kHeldScale = 0.93;
inline constexpr ExtraFade kRingFade { .in = 0.12, .out = 0.12 };
inline constexpr double kRing = 0.086;
inline constexpr ExtraFade kDoomedFade { .in = 0.14, .out = 0.14 };
inline constexpr double kDoomedChip = 0.34;
inline constexpr double kDoomedVeil = 0.42;
inline constexpr double kLeftLight = 0.55; // of the light of the row that would be left

// A puzzle is solved: seconds from the solving move, unless they say how long something takes.
inline constexpr double kLightRuns = 1.2;
inline constexpr double kLightStays = 3.2; // the goal flies then
inline constexpr double kPlateGoes = 4.2;
inline constexpr ExtraFade kPlateFade { .in = 0.35, .out = 0.3, .travel = 0.35 };
inline constexpr double kPlateRises = 0.030;
inline constexpr double kCount = 1.0;
inline constexpr int kCountSteps = 25;
inline constexpr double kDust = 0.8;
inline constexpr double kDustColumn = 0.04; // each column later than the one before
inline constexpr double kDustBegins = 0.2;
inline constexpr double kDustSize = 0.10;
inline constexpr ExtraFade kMedalFade { .in = 0.25, .out = 0.0, .travel = 0.5 };
inline constexpr double kMedalDrops = 0.040;
inline constexpr double kMedalAfterMedal = 0.12;
inline constexpr double kSealDust = 0.07;

// Words.
inline constexpr double kTipAfter = 0.5;
inline constexpr ExtraFade kTipFade { .in = 0.12, .out = 0.12 };
inline constexpr double kWhisper = 3.0;
inline constexpr ExtraFade kWhisperFade { .in = 0.12, .out = 0.4 };

} // namespace extras

} // namespace veyrand::present
