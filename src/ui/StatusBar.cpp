#include "ui/StatusBar.h"

#include "ui/Handler.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace velcro::ui {

namespace {
constexpr int padding = 10;
constexpr int rounding = 2; // of text widths at fractional scales
constexpr int lowestHeight = 32;
} // namespace

StatusBar::StatusBar(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("StatusBar"));
    setAccessibleName(tr("Status"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

int StatusBar::addPanel(PanelStyle style, const QString& text, int width) {
    panels_.push_back({style, text, {}, width});
    speak();
    return panelCount() - 1;
}

void StatusBar::setPanelStyle(int panel, PanelStyle style) {
    if (std::exchange(panels_.at(panel).style, style) == style) {
        return;
    }
    speak();
    update();
}

void StatusBar::setPanelText(int panel, const QString& text) {
    panels_.at(panel).text = text;
    speak();
    update();
}

void StatusBar::setSpokenText(int panel, const QString& text) {
    panels_.at(panel).spoken = text;
    speak();
    QAccessibleEvent told(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

QString StatusBar::spokenText(int panel) const {
    const auto& shown = panels_.at(panel);
    return shown.style == psOwnerDraw ? shown.spoken : shown.text;
}

void StatusBar::speak() {
    QStringList spoken;
    for (int i = 0; i < panelCount(); ++i) {
        spoken << spokenText(i);
    }
    spoken.removeAll(QString());
    setAccessibleDescription(spoken.join(QStringLiteral(". ")));
}

QRect StatusBar::panelRect(int panel) const {
    const auto fixedWidth = [this](const Panel& p) {
        return p.width > 0 ? p.width : fontMetrics().horizontalAdvance(p.text) + 2 * padding;
    };
    int fixed = 0;
    int growing = 0;
    for (const auto& p : panels_) {
        fixed += p.width < 0 ? 0 : fixedWidth(p);
        growing += p.width < 0 ? 1 : 0;
    }
    const int share = growing > 0 ? std::max(0, width() - fixed) / growing : 0;
    int left = 0;
    for (int i = 0; i < panel; ++i) {
        left += panels_[i].width < 0 ? share : fixedWidth(panels_[i]);
    }
    const auto& wanted = panels_.at(panel);
    return {left, 0, wanted.width < 0 ? share : fixedWidth(wanted), height()};
}

int StatusBar::textWidth() const {
    int whole = 0;
    for (const auto& p : panels_) {
        whole += fontMetrics().horizontalAdvance(p.text) + 2 * padding;
    }
    return whole;
}

QSize StatusBar::sizeHint() const {
    return {200, std::max(lowestHeight, fontMetrics().height() + 12)};
}

void StatusBar::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] {
        QPainter painter(this);
        painter.fillRect(rect(), palette().window());
        for (int i = 0; i < panelCount(); ++i) {
            const auto inside = panelRect(i);
            if (panels_[i].style == psOwnerDraw && drawer_) {
                painter.save();
                painter.setClipRect(inside);
                drawer_(*this, painter, i, inside);
                painter.restore();
            } else {
                painter.setPen(palette().windowText().color());
                const QRect text = inside.adjusted(padding, 0, -padding, 0);
                painter.drawText(text, Qt::AlignVCenter,
                                 fontMetrics().elidedText(panels_[i].text, Qt::ElideRight,
                                                          text.width() + rounding));
            }
            painter.setPen(palette().mid().color());
            painter.drawLine(inside.topRight(), inside.bottomRight());
        }
        painter.drawLine(rect().topLeft(), rect().topRight());
    });
}

} // namespace velcro::ui
