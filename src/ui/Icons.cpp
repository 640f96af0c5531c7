#include "ui/Icons.h"

#include "ui/DrawnIcon.h"
#include "ui/Picture.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

namespace velcro::ui {

namespace {

QColor inkFor(QIcon::Mode mode, const QColor& own) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) {
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    }
    if (own.isValid()) {
        return own;
    }
    return palette.color(mode == QIcon::Selected ? QPalette::HighlightedText
                                                 : QPalette::ButtonText);
}

} // namespace

QIcon icon(const QString& name) {
    return icon(name, QColor());
}

QIcon icon(const QString& name, const QColor& color) {
    if (!hasPicture(name)) {
        return {};
    }
    return drawnIcon([name, color](QPainter& painter, const QRectF& rect, QIcon::Mode mode) {
        renderPicture(painter, name, rect, Qt::KeepAspectRatio, inkFor(mode, color));
    });
}

// Drawn once for each size, since a form repaints its background again and again.
void paintPicture(QPainter& painter, const QString& name, const QRectF& rect,
                  Qt::AspectRatioMode fit) {
    const qreal scale = painter.device()->devicePixelRatio();
    const QSize pixels = (rect.size() * scale).toSize();
    const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                            .arg(name)
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(scale)
                            .arg(int(fit));
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(pixels);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter drawing(&picture);
        drawing.setRenderHint(QPainter::Antialiasing);
        renderPicture(drawing, name, QRectF(QPointF(), rect.size()), fit);
        drawing.end();
        QPixmapCache::insert(key, picture);
    }
    painter.drawPixmap(rect.topLeft(), picture);
}

} // namespace velcro::ui
