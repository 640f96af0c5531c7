#include "ui/MenuTile.h"

#include "ui/Handler.h"
#include "ui/Icons.h"
#include "ui/KeyButton.h"

#include <QPainter>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr QRgb resting = 0xff3a3e46;
constexpr QRgb hovered = 0xff49505b;
constexpr QRgb held = 0xff2b5a8a;
constexpr QRgb greyed = 0xff303237;
constexpr QRgb greyedInk = 0xff8a8f98;

} // namespace

MenuTile::MenuTile(const QString& name, const QString& caption, const QString& picture,
                   const QSize& size, QWidget* parent)
    : QPushButton(caption, parent)
    , size_(size)
    , picture_(velcro::ui::icon(picture, QColor(0xf4f6f9)))
    , greyedPicture_(velcro::ui::icon(picture, QColor(greyedInk))) {
    setObjectName(name);
    setAccessibleName(
        QString(caption).replace(QLatin1String("&&"), QLatin1String("&")).simplified());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAutoDefault(false);
    setAttribute(Qt::WA_Hover);
}

void MenuTile::keyPressEvent(QKeyEvent* event) {
    if (!clickedByEnter(*this, *event)) {
        QPushButton::keyPressEvent(event);
    }
}

void MenuTile::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool live = isEnabled();
        const int unit = std::max(4, height() / 12);
        painter.setPen(hasFocus() ? QPen(QColor(0xffd766), 3) : QPen(QColor(0x565b65), 1));
        painter.setBrush(QColor(!live          ? greyed
                                : isDown()     ? held
                                : underMouse() ? hovered
                                               : resting));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 6, 6);

        const int side = height() * 2 / 5;
        (live ? picture_ : greyedPicture_)
            .paint(&painter, QRect(2 * unit, unit * 3 / 2, side, side));
        const QSize cap = iconSize().height() <= side
                              ? iconSize()
                              : iconSize().scaled(width(), side, Qt::KeepAspectRatio);
        const QRect corner(QPoint(width() - cap.width() - 2 * unit, unit * 3 / 2), cap);
        QPushButton::icon().paint(&painter, corner, Qt::AlignCenter,
                                  live ? QIcon::Normal : QIcon::Disabled);

        QFont letters = font();
        letters.setPixelSize(std::max(10, std::min(height() / 6, width() / 15)));
        letters.setBold(true);
        painter.setFont(letters);
        painter.setPen(live ? QColor(Qt::white) : QColor(greyedInk));
        painter.drawText(rect().adjusted(2 * unit, unit * 2 + side, -unit, -unit / 2),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, accessibleName());
    });
}

} // namespace velcro::ui
