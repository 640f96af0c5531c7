#include "ui/DrawnIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace velcro::ui {

namespace {

class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(IconPainter paint)
        : paint_(std::move(paint)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paint_(*painter, rect, mode);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new DrawnIconEngine(paint_); }

private:
    IconPainter paint_;
};

} // namespace

QIcon drawnIcon(IconPainter paint) {
    return QIcon(new DrawnIconEngine(std::move(paint)));
}

} // namespace velcro::ui
