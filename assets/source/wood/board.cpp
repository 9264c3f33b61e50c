// Paints the wood under the game:   board WIDTH HEIGHT FILE.ppm
//
// A raised mahogany panel with three upright boards on the left, a recessed walnut field with a
// groove under every row of stones on the right, a brass fillet that sets off the goal's row. Out
// of noise with fixed seeds: the same bytes every time. The picture is 16 to 10; lengths are in
// game heights, origin at the lower left.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

// --- Light: linear, so that shading and mixing behave like real light.

struct Light {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
};

Light operator+(const Light& a, const Light& b)
{
    return { a.red + b.red, a.green + b.green, a.blue + b.blue };
}

Light operator*(const Light& light, double share)
{
    return { light.red * share, light.green * share, light.blue * share };
}

Light mix(const Light& a, const Light& b, double share)
{
    share = std::clamp(share, 0.0, 1.0);
    return a * (1.0 - share) + b * share;
}

Light hex(std::uint32_t color)
{
    const auto decoded = [](std::uint32_t channel) {
        const double value = (channel & 255U) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return { decoded(color >> 16U), decoded(color >> 8U), decoded(color) };
}

double encoded(double value)
{
    value = std::clamp(value, 0.0, 1.0);
    return value <= 0.0031308 ? 12.92 * value : 1.055 * std::pow(value, 1.0 / 2.4) - 0.055;
}

template <std::size_t N> Light ramp(double tone, const std::array<Light, N>& colors)
{
    const double place = std::clamp(tone, 0.0, 1.0) * static_cast<double>(N - 1);
    const auto below = std::min(static_cast<std::size_t>(place), N - 2);
    return mix(colors[below], colors[below + 1], place - static_cast<double>(below));
}

double smoothStep(double from, double to, double value)
{
    const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

// A soft line: 1 on it, and fading with the distance.
double bell(double distance, double width)
{
    return std::exp(-distance * distance / (2.0 * width * width));
}

// --- Noise

std::uint32_t scrambled(std::uint32_t value)
{
    value ^= value >> 16U;
    value *= 0x7feb352dU;
    value ^= value >> 15U;
    value *= 0x846ca68bU;
    value ^= value >> 16U;
    return value;
}

// An evenly spread number below 1 for each whole place and seed.
double chance(int x, int y, std::uint32_t seed)
{
    return scrambled(static_cast<std::uint32_t>(x) * 0x9E3779B1U
               ^ scrambled(static_cast<std::uint32_t>(y) * 0x85EBCA77U ^ scrambled(seed)))
        / 4294967296.0;
}

// Smooth noise between the whole places.
double noise(double x, double y, std::uint32_t seed)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    const auto eased = [](double t) { return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); };
    const double across = eased(x - left);
    const double down = eased(y - top);
    const double a = chance(column, row, seed);
    const double b = chance(column + 1, row, seed);
    const double c = chance(column, row + 1, seed);
    const double d = chance(column + 1, row + 1, seed);
    return (a + (b - a) * across) * (1.0 - down) + (c + (d - c) * across) * down;
}

// Noise upon finer noise.
double layeredNoise(double x, double y, std::uint32_t seed, int layers)
{
    double sum = 0.0;
    double whole = 0.0;
    double weight = 0.5;
    for (int layer = 0; layer < layers; ++layer) {
        sum += weight * noise(x, y, seed + static_cast<std::uint32_t>(layer) * 101U);
        whole += weight;
        x = x * 2.03 + 17.1;
        y = y * 2.03 + 9.7;
        weight *= 0.5;
    }
    return sum / whole;
}

// --- Wood

// The tone of one board, 0 dark to 1 light, at a place along and across its grain. The seed picks
// the board; the figure says how far its growth rings wander.
double grain(double along, double across, std::uint32_t seed, double figure)
{
    const double start = chance(static_cast<int>(seed), 7, 11) * 40.0;
    const double heart = chance(static_cast<int>(seed), 9, 13);

    // The board is a plane cut through slowly wandering growth rings, which gives the arches.
    const double fromHeart = across - (heart - 0.5) * 0.30
        + (layeredNoise(along * 1.3 + start, across * 0.8, seed, 3) - 0.5) * 0.16 * figure;
    const double depth = 0.10 + 0.05 * std::sin(along * 1.1 + start)
        + (layeredNoise(along * 0.8 + start, 3.3, seed + 5, 3) - 0.5) * 0.16 * figure;
    const double wander
        = (layeredNoise(along * 3.0 + start, across * 14.0, seed + 21, 4) - 0.5) * 0.014
        + (layeredNoise(along * 9.0 + start, across * 60.0, seed + 22, 3) - 0.5) * 0.0035;
    const double radius = std::sqrt(fromHeart * fromHeart * 1.0 + depth * depth) + wander;
    const double rings = radius * 46.0
        + 2.6 * layeredNoise(radius * 21.0 + start, along * 0.35, seed + 71, 3)
        + 0.5 * layeredNoise(along * 1.6 + start, radius * 30.0, seed + 73, 2);
    const double inRing = rings - std::floor(rings);
    // Slow early wood, then the sharp edge of late wood; no two rings are equally strong.
    const double lateWood = std::pow(inRing, 1.5) * (1.0 - smoothStep(0.74, 1.0, inRing)) * 1.15;
    const double strength = 0.35 + 0.65 * chance(static_cast<int>(std::floor(rings)), 3, seed);

    const double broad = layeredNoise(along * 0.9 + start, across * 7.0, seed + 31, 4);
    const double fibre = layeredNoise(along * 10.0 + start, across * 420.0, seed + 41, 3);
    const double fine = noise(along * 26.0 + start, across * 1100.0, seed + 43);
    double tone = 0.56 + 0.62 * (broad - 0.5) - 0.25 * lateWood * strength + 0.26 * (fibre - 0.5)
        + 0.11 * (fine - 0.5);

    // Pores: short dark dashes along the grain, in one of five of their places.
    const double poreAcross = across * 620.0;
    const double poreAlong
        = along * 17.0 + start + 13.0 * chance(static_cast<int>(std::floor(poreAcross)), 1, seed);
    const double pore = chance(static_cast<int>(std::floor(poreAlong)),
        static_cast<int>(std::floor(poreAcross)), seed + 51);
    if (pore > 0.80) {
        const double a = poreAlong - std::floor(poreAlong);
        const double b = poreAcross - std::floor(poreAcross);
        const double shape = smoothStep(0.0, 0.12, a) * (1.0 - smoothStep(0.6, 1.0, a))
            * smoothStep(0.0, 0.3, b) * (1.0 - smoothStep(0.7, 1.0, b));
        tone -= 0.26 * shape * (pore - 0.80) / 0.20 * (0.4 + 0.6 * lateWood + 0.3 * (1.0 - broad));
    }
    // Slow bands across the grain, as polished wood shows them.
    tone += 0.09 * (layeredNoise(along * 5.5 + start, across * 1.4, seed + 61, 2) - 0.5);
    return tone;
}

// --- The board

const std::array<Light, 5> kWalnut { hex(0x1f1209), hex(0x352012), hex(0x4d301b), hex(0x664227),
    hex(0x835a36) };
const std::array<Light, 5> kMahogany { hex(0x3a1d0e), hex(0x5b3018), hex(0x7c4724), hex(0x9a6033),
    hex(0xb67d48) };
const std::array<Light, 4> kBrass { hex(0x5a3c12), hex(0x9a7330), hex(0xd9b465), hex(0xfff0c0) };

constexpr double kPanelEdge = 0.590; // where the raised panel ends
constexpr double kRowPitch = 0.075;
constexpr double kFirstGroove = 0.9875; // above row 0
constexpr int kLastGroove = 13;
constexpr double kFillet = 0.0875; // above the goal's row

// A groove is dark where it is cut and lit on its lower lip, as the light comes from above.
Light withGrooves(Light color, double x, double y)
{
    const double rows = (kFirstGroove - y) / kRowPitch;
    const double fromGroove = (rows - std::round(rows)) * kRowPitch;
    const int groove = static_cast<int>(std::round(rows));
    if (groove >= 0 && groove <= kLastGroove) {
        const double length = smoothStep(kPanelEdge + 0.012, kPanelEdge + 0.05, x)
            * (1.0 - smoothStep(1.565, 1.598, x));
        color = mix(color, hex(0x0c0603), 0.50 * bell(fromGroove, 0.0011) * length);
        color = mix(color, hex(0xc79a66), 0.13 * bell(fromGroove + 0.0021, 0.0009) * length);
    }
    return color;
}

Light withFillet(const Light& color, double x, double y)
{
    const double above = y - kFillet;
    const double length
        = smoothStep(kPanelEdge + 0.03, kPanelEdge + 0.10, x) * (1.0 - smoothStep(1.54, 1.59, x));
    if (std::abs(above) < 0.0016) {
        const double tone = 0.52 + 0.30 * std::sin((x * 1.7 + 0.4) * 3.1416) * 0.6
            + 0.25 * (noise(x * 40.0, y * 900.0, 5) - 0.5) - above * 120.0;
        return mix(color, ramp(tone, kBrass), 0.85 * length);
    }
    if (above < 0.0 && above > -0.006) {
        return mix(color, hex(0x050200), 0.35 * length * (1.0 - (-above - 0.0016) / 0.0044));
    }
    return color;
}

Light field(double x, double y)
{
    const double tone = grain(x + 3.7, y, 911, 1.0); // one long board
    Light color = ramp(tone * 0.95 - 0.03, kWalnut);
    color = withFillet(withGrooves(color, x, y), x, y);
    // The raised panel throws its shadow on the field.
    const double fromPanel = x - kPanelEdge;
    return color * (1.0 - 0.80 * std::exp(-fromPanel / 0.007) - 0.28 * std::exp(-fromPanel / 0.03));
}

// Brass stringing near the panel's right edge, and that edge's chamfer.
Light withEdge(Light color, double x, double y)
{
    const double fromString = kPanelEdge - 0.0165 - x;
    if (std::abs(fromString) < 0.0020) {
        const double tone = 0.60 + 0.22 * std::sin(y * 3.14159 * 1.0 + 0.6)
            + 0.22 * (noise(x * 900.0, y * 40.0, 6) - 0.5) + fromString * 110.0;
        color = mix(color, ramp(tone, kBrass), 0.95);
    } else if (fromString < -0.0020 && fromString > -0.0048) {
        color = color * 0.62;
    }
    const double toEdge = kPanelEdge - x;
    if (toEdge < 0.0050) {
        return mix(color * 0.42, color * 0.75, toEdge / 0.005);
    }
    return toEdge < 0.0066 ? mix(color, hex(0xe9c08c), 0.22) : color;
}

Light panel(double x, double y)
{
    constexpr double kFirstSeam = 0.197;
    constexpr double kSecondSeam = 0.394;
    constexpr double kLip = 0.004;
    const int board = x < kFirstSeam ? 0 : x < kSecondSeam ? 1 : 2;
    const double tone = grain(y + board * 2.3, x * 1.0 + board * 0.71,
        static_cast<std::uint32_t>(120 + board * 37), 0.85);
    Light color = ramp(tone * 0.92 - 0.06 + (board == 1 ? 0.03 : 0.0), kMahogany);
    const double fromSeam = std::min(std::abs(x - kFirstSeam), std::abs(x - kSecondSeam));
    color = color * (1.0 - 0.62 * bell(fromSeam, 0.0008));
    // Each board's left edge catches the light.
    for (const double seam : { kFirstSeam, kSecondSeam }) {
        if (x > seam && x - seam < kLip) {
            color = mix(color, hex(0xe0b27c), 0.16 * bell(x - seam - 0.0016, 0.0007));
        }
    }
    return withEdge(color, x, y);
}

// The key light from the upper left, and corners that fall off.
double lighting(double x, double y)
{
    const double key = 1.16 - 0.30 * x / 1.6 - 0.20 * (1.0 - y);
    const double right = (x - 0.8) / 0.8;
    const double up = (y - 0.5) / 0.5;
    const double fromCentre = std::sqrt(right * right * 0.9 + up * up * 0.9);
    return key * (1.0 - 0.30 * smoothStep(0.55, 1.45, fromCentre));
}

Light board(double x, double y)
{
    return (x > kPanelEdge ? field(x, y) : panel(x, y)) * lighting(x, y);
}

std::uint8_t channel(double light, double dither)
{
    return static_cast<std::uint8_t>(std::clamp(encoded(light) + dither, 0.0, 1.0) * 255.0 + 0.5);
}

void paintRow(int row, int width, int height, std::vector<std::uint8_t>& bytes)
{
    constexpr int kSamples = 2; // each way, for smooth edges
    for (int column = 0; column < width; ++column) {
        Light sum;
        for (int sample = 0; sample < kSamples * kSamples; ++sample) {
            const double x = (column + (sample % kSamples + 0.5) / kSamples) / width * 1.6;
            const double y = 1.0 - (row + (sample / kSamples + 0.5) / kSamples) / height;
            sum = sum + board(x, y);
        }
        const Light light = sum * (1.0 / (kSamples * kSamples));
        const double dither = (chance(column, row, 77) - 0.5) / 255.0;
        auto* const pixel = &bytes[static_cast<std::size_t>(column) * 3];
        pixel[0] = channel(light.red, dither);
        pixel[1] = channel(light.green, dither);
        pixel[2] = channel(light.blue, dither);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: board WIDTH HEIGHT FILE.ppm\n");
        return 2;
    }
    const int width = std::atoi(argv[1]);
    const int height = std::atoi(argv[2]);
    std::FILE* const file = std::fopen(argv[3], "wb");
    if (file == nullptr) {
        std::perror(argv[3]);
        return 1;
    }
    std::fprintf(file, "P6\n%d %d\n255\n", width, height);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(width) * 3);
    for (int row = 0; row < height; ++row) {
        paintRow(row, width, height, bytes);
        std::fwrite(bytes.data(), 1, bytes.size(), file);
    }
    return std::fclose(file) == 0 ? 0 : 1;
}
