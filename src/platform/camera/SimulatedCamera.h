// Cameras that nobody needs to attach, for trying the program out and for its tests: their picture
// is known, and they can be unplugged and held by another program as real ones are.
#pragma once

#include "platform/camera/Camera.h"

#include <QTimer>

namespace velcro::camera {

class SimulatedCamera : public Camera
{
    Q_OBJECT

public:
    static constexpr QSize pictureSize{640, 480};

    explicit SimulatedCamera(QStringList names);

    QStringList names() const override { return names_; }
    void start(int position) override;
    void stop() override;
    bool isActive() const override { return active_ >= 0; }
    QImage capture() const override;

    /// What other hands do to the cameras of the seat.
    void unplug(int position);
    void plugIn(const QString& name);
    void holdElsewhere(int position) { heldElsewhere_ = position; }
    /// The next live pictures are of this instead.
    void showInstead(const QImage& picture) { instead_ = picture; }

    /// The picture number so many of the camera of that position, from 0.
    static QImage pictureOf(int position, int number);
    int pictureNumber() const { return number_; }

private:
    QStringList names_;
    QTimer timer_;
    std::optional<QImage> instead_;
    int active_ = -1;
    int heldElsewhere_ = -1;
    int number_ = 0;
};

} // namespace velcro::camera
