// Drawings that were recorded when the program was built, for systems that Qt SVG is not had for:
// deploy/windows/pictures makes them.
#include "ui/Picture.h"

#include <QFile>
#include <QPainter>
#include <QPicture>
#include <QPixmap>

static void registerPictures() {
    Q_INIT_RESOURCE(recorded);
}

namespace velcro::ui {

namespace {

QString resource(const QString& name) {
    registerPictures();
    return QStringLiteral(":/velcro/icons/%1.picture").arg(name);
}

void play(QPainter& painter, QPicture& picture, const QRectF& rect) {
    const QRectF from = picture.boundingRect();
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / from.width(), rect.height() / from.height());
    painter.translate(-from.topLeft());
    picture.play(&painter);
    painter.restore();
}

/// Line icons were recorded in black: only where they have ink counts.
void playInked(QPainter& painter, QPicture& picture, const QRectF& rect, const QColor& ink) {
    const qreal scale = painter.device()->devicePixelRatio();
    QPixmap inked((rect.size() * scale).toSize().expandedTo({1, 1}));
    inked.setDevicePixelRatio(scale);
    inked.fill(Qt::transparent);
    QPainter drawing(&inked);
    drawing.setRenderHint(QPainter::Antialiasing);
    play(drawing, picture, QRectF(QPointF(), rect.size()));
    drawing.setCompositionMode(QPainter::CompositionMode_SourceIn);
    drawing.fillRect(QRectF(QPointF(), rect.size()), ink);
    drawing.end();
    painter.drawPixmap(rect.topLeft(), inked);
}

} // namespace

bool hasPicture(const QString& name) {
    return QFile::exists(resource(name));
}

void renderPicture(QPainter& painter, const QString& name, const QRectF& rect,
                   Qt::AspectRatioMode fit, const QColor& ink) {
    QPicture picture;
    if (!picture.load(resource(name))) {
        return;
    }
    const QRectF place = fittedRect(picture.boundingRect().size(), rect, fit);
    const bool isLineIcon = picture.boundingRect().size() == QSize(24, 24);
    if (isLineIcon) {
        playInked(painter, picture, place, ink);
    } else {
        play(painter, picture, place);
    }
}

} // namespace velcro::ui
