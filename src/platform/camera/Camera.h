// The cameras of a seat: which there are, the live picture of one, and a still of it.
#pragma once

#include <QImage>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace velcro::camera {

class Camera : public QObject
{
    Q_OBJECT

public:
    /// Names of the cameras that are attached now.
    virtual QStringList names() const = 0;
    /// Switches to the live picture of the camera of that position; any other is switched off. What
    /// goes wrong, now or later, comes as failed().
    virtual void start(int position) = 0;
    virtual void stop() = 0;
    /// Whether a camera is switched on.
    virtual bool isActive() const = 0;
    /// The live picture at this moment; null before the first one has come.
    virtual QImage capture() const = 0;

signals:
    /// The next live picture is there.
    void pictureChanged();
    /// One was attached or unplugged.
    void namesChanged();
    /// Why the camera gives no picture, in words for the user. It is switched off.
    void failed(const QString& reason);
};

/// How this seat gets at its cameras; the program sets it where it is put together. Without one the
/// seat has none.
using CameraMaker = std::function<std::unique_ptr<Camera>()>;
inline CameraMaker makeCamera;

} // namespace velcro::camera
