#include "ui/Toggle.h"

#include "ui/Handler.h"
#include "ui/Theme.h"

#include <QPainter>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr int trackWidth = 52;
constexpr int trackHeight = 28;
constexpr int gap = 10;

} // namespace

Toggle::Toggle(const QString& onCaption, const QString& offCaption, QWidget* parent)
    : QCheckBox(parent)
    , onCaption_(onCaption)
    , offCaption_(offCaption) {
    connectHandler(this, &QCheckBox::toggled, this, &Toggle::showState);
    showState(false);
}

void Toggle::showState(bool on) {
    setText(on ? onCaption_ : offCaption_);
    setAccessibleDescription(text());
}

// The same width in both states, so that nothing beside it moves.
QSize Toggle::sizeHint() const {
    const auto width = [this](const QString& text) {
        return fontMetrics().horizontalAdvance(text);
    };
    return {trackWidth + 2 * gap + std::max(width(onCaption_), width(offCaption_)),
            std::max(touchHeight, fontMetrics().height())};
}

void Toggle::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QRectF track(2, (height() - trackHeight) / 2.0, trackWidth - 4, trackHeight);
        const QColor ink = palette().color(group, QPalette::WindowText);
        painter.setPen(
            QPen(hasFocus() ? palette().color(QPalette::Highlight) : ink, hasFocus() ? 3 : 1.5));
        painter.setBrush(isChecked() && isEnabled() ? palette().brush(QPalette::Highlight)
                                                    : palette().brush(group, QPalette::Base));
        painter.drawRoundedRect(track, trackHeight / 2.0, trackHeight / 2.0);
        const qreal knob = trackHeight - 10;
        const qreal left = isChecked() ? track.right() - knob - 5 : track.left() + 5;
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() && isEnabled() ? palette().brush(QPalette::Base) : ink);
        painter.drawEllipse(QRectF(left, track.top() + 5, knob, knob));
        painter.setPen(ink);
        painter.drawText(rect().adjusted(trackWidth + gap, 0, 0, 0), Qt::AlignVCenter, text());
    });
}

} // namespace velcro::ui
