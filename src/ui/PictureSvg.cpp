// Drawings as they lie in the folder, read by Qt SVG.
#include "ui/Picture.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

/// Pictures of a static library are known only once they are asked for.
static void registerPictures() {
    Q_INIT_RESOURCE(icons);
}

namespace velcro::ui {

namespace {

QString resource(const QString& name) {
    registerPictures();
    return QStringLiteral(":/velcro/icons/%1.svg").arg(name);
}

} // namespace

bool hasPicture(const QString& name) {
    return QFile::exists(resource(name));
}

void renderPicture(QPainter& painter, const QString& name, const QRectF& rect,
                   Qt::AspectRatioMode fit, const QColor& ink) {
    QFile file(resource(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QSvgRenderer renderer(file.readAll().replace("currentColor", ink.name().toLatin1()));
    if (renderer.isValid()) {
        renderer.render(&painter, fittedRect(renderer.viewBoxF().size(), rect, fit));
    }
}

} // namespace velcro::ui
