#include "security/LogInPicture.h"

#include "ui/Icons.h"

#include <QPainter>

LogInPicture::LogInPicture(const QString& name, Qt::AspectRatioMode fit, QWidget* parent)
    : QWidget(parent)
    , name_(name)
    , fit_(fit) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LogInPicture::show(const QPixmap& picture) {
    picture_ = picture;
    update();
}

void LogInPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (picture_.isNull()) {
        velcro::ui::paintPicture(painter, name_, rect(), fit_);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect target(QPoint(), picture_.size().scaled(size(), fit_));
    target.moveCenter(rect().center());
    painter.drawPixmap(target, picture_);
}
