#include "ui/Contrast.h"

#include <algorithm>
#include <cmath>

namespace velcro::ui {

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor inkOn(const QColor& ground) {
    return contrast(Qt::white, ground) >= readable ? Qt::white : Qt::black;
}

} // namespace velcro::ui
