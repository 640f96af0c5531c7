#include "ui/CaptionPanel.h"

#include "ui/Contrast.h"
#include "ui/Handler.h"

#include <QPainter>
#include <QVBoxLayout>

namespace velcro::ui {

namespace {
constexpr int frame = 2;
}

CaptionPanel::CaptionPanel(const QString& name, const QString& caption, int captionHeight,
                           QWidget* parent)
    : QWidget(parent)
    , caption_(caption)
    , captionHeight_(captionHeight)
    , body_(new QVBoxLayout(this)) {
    setObjectName(name);
    setAccessibleName(caption);
    const int margin = captionHeight / 3;
    body_->setContentsMargins(margin, captionHeight + margin, margin, margin);
    body_->setSpacing(margin);
}

void CaptionPanel::setColor(const QColor& color) {
    color_ = color;
    update();
}

void CaptionPanel::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x24, 0x26, 0x2b));
        const QRect bar(0, 0, width(), captionHeight_);
        painter.fillRect(bar, color_);
        painter.setPen(QPen(color_, frame));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
        QFont letters = font();
        letters.setPixelSize(captionHeight_ * 5 / 9);
        letters.setBold(true);
        painter.setFont(letters);
        painter.setPen(inkOn(color_));
        painter.drawText(bar.adjusted(12, 0, -12, 0), Qt::AlignVCenter, caption_);
    });
}

} // namespace velcro::ui
