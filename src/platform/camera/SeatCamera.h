// The cameras that the system knows, through Qt Multimedia.
#pragma once

#include "platform/camera/Camera.h"

namespace velcro::camera {

std::unique_ptr<Camera> makeSeatCamera();

} // namespace velcro::camera
