#include "platform/seat/RegionalFormats.h"

namespace velcro::seat {

void forceSystemFormats() {}

} // namespace velcro::seat
