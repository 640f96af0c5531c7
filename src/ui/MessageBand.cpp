#include "ui/MessageBand.h"

#include "ui/Icons.h"

#include <QHBoxLayout>
#include <QLabel>

namespace velcro::ui {

namespace {
constexpr QSize pictureSize(36, 36);
}

MessageBand::MessageBand(const QString& picture, const QString& caption, QRgb band, QRgb ink,
                         QWidget* parent)
    : QWidget(parent) {
    QPalette colors = palette();
    colors.setColor(QPalette::Window, QColor(band));
    colors.setColor(QPalette::WindowText, QColor(ink));
    setPalette(colors);
    setAutoFillBackground(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(20, 10, 20, 10);
    row->setSpacing(14);
    auto* drawn = new QLabel(this);
    drawn->setPixmap(icon(picture, QColor(ink)).pixmap(pictureSize, devicePixelRatioF()));
    auto* title = new QLabel(caption, this);
    title->setTextFormat(Qt::PlainText);
    title->setPalette(colors);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() + 3);
    font.setBold(true);
    title->setFont(font);
    row->addWidget(drawn);
    row->addWidget(title, 1);
}

} // namespace velcro::ui
