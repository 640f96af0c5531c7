#include "ui/Icons.h"

#include "ui/DrawnIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

/// Pictures of a static library are known only once they are asked for.
static void registerPictures() {
    Q_INIT_RESOURCE(icons);
}

namespace velcro::ui {

namespace {

QByteArray source(const QString& name) {
    registerPictures();
    QFile file(QStringLiteral(":/velcro/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QRectF fitted(const QSizeF& picture, const QRectF& rect, Qt::AspectRatioMode fit) {
    const QSizeF size = picture.scaled(rect.size(), fit);
    return {rect.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

void render(QPainter& painter, const QByteArray& svg, const QRectF& rect, Qt::AspectRatioMode fit) {
    QSvgRenderer renderer(svg);
    if (renderer.isValid()) {
        renderer.render(&painter, fitted(renderer.viewBoxF().size(), rect, fit));
    }
}

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
    const QByteArray svg = source(name);
    if (svg.isEmpty()) {
        return {};
    }
    return drawnIcon([svg, color](QPainter& painter, const QRectF& rect, QIcon::Mode mode) {
        QByteArray inked = svg;
        inked.replace("currentColor", inkFor(mode, color).name().toLatin1());
        render(painter, inked, rect, Qt::KeepAspectRatio);
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
        render(drawing, source(name), QRectF(QPointF(), rect.size()), fit);
        drawing.end();
        QPixmapCache::insert(key, picture);
    }
    painter.drawPixmap(rect.topLeft(), picture);
}

} // namespace velcro::ui
