#include "platform/camera/SeatCamera.h"

#include <QCamera>
#include <QCameraDevice>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoFrame>
#include <QVideoSink>

using namespace Qt::Literals::StringLiterals;

namespace velcro::camera {

namespace {

class SeatCamera : public Camera
{
public:
    SeatCamera() {
        session_.setVideoSink(&sink_);
        connect(&devices_, &QMediaDevices::videoInputsChanged, this, [this] { devicesChanged(); });
        connect(&sink_, &QVideoSink::videoFrameChanged, this, [this] { emit pictureChanged(); });
    }

    QStringList names() const override {
        QStringList all;
        for (const auto& device : QMediaDevices::videoInputs()) {
            all += device.description();
        }
        return all;
    }

    void start(int position) override {
        stop();
        const auto devices = QMediaDevices::videoInputs();
        if (position < 0 || position >= devices.size()) {
            emit failed(u"No camera is attached"_s);
            return;
        }
        device_ = devices[position];
        camera_ = std::make_unique<QCamera>(device_);
        connect(camera_.get(), &QCamera::errorOccurred, this,
                [this](QCamera::Error /*error*/, const QString& reason) { giveUp(reason); });
        session_.setCamera(camera_.get());
        camera_->start();
    }

    void stop() override {
        session_.setCamera(nullptr);
        camera_.reset();
    }

    bool isActive() const override { return camera_ != nullptr && camera_->isActive(); }

    QImage capture() const override { return isActive() ? sink_.videoFrame().toImage() : QImage(); }

private:
    void devicesChanged() {
        if (camera_ != nullptr && !QMediaDevices::videoInputs().contains(device_)) {
            giveUp(u"the camera was unplugged"_s);
        }
        emit namesChanged();
    }

    // The camera that tells of its failure is still in the call that does so.
    void giveUp(const QString& reason) {
        session_.setCamera(nullptr);
        if (camera_ != nullptr) {
            camera_.release()->deleteLater();
            emit failed(u"The camera %1 gives no picture: %2"_s.arg(device_.description(), reason));
        }
    }

    QMediaDevices devices_;
    QVideoSink sink_;
    QMediaCaptureSession session_;
    QCameraDevice device_;
    std::unique_ptr<QCamera> camera_;
};

} // namespace

std::unique_ptr<Camera> makeSeatCamera() {
    return std::make_unique<SeatCamera>();
}

} // namespace velcro::camera
