#include "platform/camera/SimulatedCamera.h"

#include <QPainter>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace velcro::camera {

namespace {

constexpr int pictureEveryMs = 100;
constexpr int ballStep = 20;

} // namespace

SimulatedCamera::SimulatedCamera(QStringList names)
    : names_(std::move(names)) {
    timer_.setInterval(pictureEveryMs);
    connect(&timer_, &QTimer::timeout, this, [this] {
        ++number_;
        emit pictureChanged();
    });
}

void SimulatedCamera::start(int position) {
    stop();
    if (position < 0 || position >= names_.size()) {
        emit failed(u"No camera is attached"_s);
    } else if (position == heldElsewhere_) {
        emit failed(u"The camera %1 gives no picture: it is in use by another program"_s.arg(
            names_[position]));
    } else {
        active_ = position;
        number_ = 0;
        timer_.start();
        emit pictureChanged();
    }
}

void SimulatedCamera::stop() {
    timer_.stop();
    active_ = -1;
}

QImage SimulatedCamera::capture() const {
    return !isActive() ? QImage() : instead_.value_or(pictureOf(active_, number_));
}

void SimulatedCamera::unplug(int position) {
    const QString name = names_.takeAt(position);
    if (position == active_) {
        stop();
        emit failed(u"The camera %1 gives no picture: the camera was unplugged"_s.arg(name));
    }
    emit namesChanged();
}

void SimulatedCamera::plugIn(const QString& name) {
    names_ += name;
    emit namesChanged();
}

// A scratched watch on a bench, and a ball that shows that the picture lives.
QImage SimulatedCamera::pictureOf(int position, int number) {
    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(position == 0 ? QColor(0xd8cfc0) : QColor(0xb8c8d4));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x5a4632));
    painter.drawRect(280, 0, 80, pictureSize.height());
    painter.setBrush(QColor(0xc8ccd0));
    painter.drawEllipse(QPoint(320, 240), 150, 150);
    painter.setBrush(QColor(0xf8f8f4));
    painter.drawEllipse(QPoint(320, 240), 130, 130);
    painter.setPen(QPen(QColor(0x303030), 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(320, 240, 320, 150);
    painter.drawLine(320, 240, 390, 270);
    painter.setPen(QPen(QColor(0x8899aa), 2));
    painter.drawLine(240, 180, 330, 320);
    painter.drawLine(255, 175, 350, 300);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xc83232));
    painter.drawEllipse(QPoint(20 + number * ballStep % (pictureSize.width() - 40), 440), 16, 16);
    return picture;
}

} // namespace velcro::camera
