// Our own pictures by name: line icons that take the colour of the text beside them, the logos and
// the background.
#pragma once

#include <QColor>
#include <QIcon>

class QPainter;

namespace velcro::ui {

/// A line icon of the folder icons/, "add" for add.svg, in the palette's text colour, or in one of
/// its own. Unknown names give an empty icon.
QIcon icon(const QString& name);
QIcon icon(const QString& name, const QColor& color);

/// Paints a picture of the folder as large as fits the rectangle, or so that it covers it.
void paintPicture(QPainter& painter, const QString& name, const QRectF& rect,
                  Qt::AspectRatioMode fit = Qt::KeepAspectRatio);

} // namespace velcro::ui
