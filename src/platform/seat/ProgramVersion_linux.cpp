#include "platform/seat/ProgramVersion.h"

namespace velcro::seat {

QString programFileVersion() {
    return {};
}

} // namespace velcro::seat
