// Icons that are painted at the size they are asked for, so that they are sharp at every scale.
#pragma once

#include <QIcon>

#include <functional>

namespace velcro::ui {

using IconPainter = std::function<void(QPainter& painter, const QRectF& rect, QIcon::Mode mode)>;

QIcon drawnIcon(IconPainter paint);

} // namespace velcro::ui
