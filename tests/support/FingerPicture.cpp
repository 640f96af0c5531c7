#include "support/FingerPicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

namespace velcro::test {

namespace {

constexpr int size = 256;
constexpr double ridge = 9.0; // pixels from ridge to ridge
constexpr double fingerRadius = 118;
constexpr int features = 34;

struct Point
{
    double x, y;
};

/// A ridge that begins or ends: there the phase of the ridges makes one whole turn.
struct Feature
{
    Point at;
    int turn; // 1 or -1
};

std::vector<Feature> featuresOf(unsigned finger) {
    std::mt19937 random(finger * 7919 + 17);
    std::uniform_real_distribution<double> place(-fingerRadius * 0.78, fingerRadius * 0.78);
    std::vector<Feature> result;
    while (result.size() < features) {
        const Point at{place(random), place(random)};
        bool crowded = std::hypot(at.x, at.y) > fingerRadius * 0.8;
        for (const Feature& other : result) {
            crowded = crowded || std::hypot(at.x - other.at.x, at.y - other.at.y) < 2.2 * ridge;
        }
        if (!crowded) {
            result.push_back({at, random() % 2 == 0 ? 1 : -1});
        }
    }
    return result;
}

/// The phase of the ridges, arches around a core that lies outside the middle.
double phaseAt(const Point& at, unsigned finger, const std::vector<Feature>& features) {
    const double lean = 0.25 * std::sin(finger * 1.7);
    const double x = at.x + lean * at.y, y = at.y - 60 - 12 * std::cos(finger * 2.3);
    double phase = 2 * std::numbers::pi / ridge * std::hypot(x, 0.72 * y);
    for (const Feature& feature : features) {
        phase += feature.turn * std::atan2(at.y - feature.at.y, at.x - feature.at.x);
    }
    return phase;
}

} // namespace

QImage fingerPicture(unsigned finger, unsigned impression) {
    std::mt19937 random(finger * 104729 + impression * 31 + 5);
    std::uniform_real_distribution<double> unit(-1, 1);
    const double turn = impression == 0 ? 0 : 0.10 * unit(random);
    const Point shift{impression == 0 ? 0 : 9 * unit(random),
                      impression == 0 ? 0 : 9 * unit(random)};
    const auto features = featuresOf(finger);
    QImage image(size, size, QImage::Format_Grayscale8);
    for (int row = 0; row < size; ++row) {
        uchar* line = image.scanLine(row);
        for (int column = 0; column < size; ++column) {
            const double x = column - size / 2.0 - shift.x, y = row - size / 2.0 - shift.y;
            const Point at{x * std::cos(turn) - y * std::sin(turn),
                           x * std::sin(turn) + y * std::cos(turn)};
            const bool onFinger = std::hypot(at.x, at.y) < fingerRadius;
            const double grey =
                onFinger ? 128 + 100 * std::cos(phaseAt(at, finger, features)) : 235;
            line[column] = static_cast<uchar>(std::clamp(grey + 12 * unit(random), 0.0, 255.0));
        }
    }
    return image;
}

QImage emptyPicture() {
    QImage image(size, size, QImage::Format_Grayscale8);
    image.fill(235);
    return image;
}

} // namespace velcro::test
