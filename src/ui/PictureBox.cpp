#include "ui/PictureBox.h"

#include "ui/Handler.h"
#include "ui/Icons.h"

#include <QPainter>

namespace velcro::ui {

PictureBox::PictureBox(const QString& name, QWidget* parent)
    : QWidget(parent) {
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureBox::setPicture(const QString& name, Qt::AspectRatioMode fit) {
    picture_ = name;
    fit_ = fit;
    update();
}

void PictureBox::setImage(const QImage& image, Qt::AspectRatioMode fit) {
    image_ = image;
    imageFit_ = fit;
    update();
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (image_.isNull()) {
            paintPicture(painter, picture_, rect(), fit_);
        } else {
            QRect place(QPoint(), image_.size().scaled(size(), imageFit_));
            place.moveCenter(rect().center());
            painter.drawImage(place, image_);
        }
    });
}

} // namespace velcro::ui
