// Drawings of the folder icons/, as lines and areas that are sharp at every size.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

namespace velcro::ui {

/// Whether the folder has a drawing of that name, "add" for add.svg.
bool hasPicture(const QString& name);

/// Paints it, in the middle of the rectangle, as large as fits or so that it covers it. What the
/// drawing leaves to the text's colour takes the ink.
void renderPicture(QPainter& painter, const QString& name, const QRectF& rect,
                   Qt::AspectRatioMode fit, const QColor& ink = Qt::black);

/// Where a picture of that size comes to lie.
inline QRectF fittedRect(const QSizeF& picture, const QRectF& rect, Qt::AspectRatioMode fit) {
    const QSizeF size = picture.scaled(rect.size(), fit);
    return {rect.center() - QPointF(size.width() / 2, size.height() / 2), size};
}

} // namespace velcro::ui
