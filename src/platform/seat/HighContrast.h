// Whether this seat's user asked for colours that stand out from each other.
#pragma once

namespace velcro::seat {

/// The desktop's own setting; a seat without one says no.
bool wantsHighContrast();

} // namespace velcro::seat
