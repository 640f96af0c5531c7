// Calls one function of the report templates, for a user who is signed in or for nobody.
#pragma once

#include "Options.h"

#include <QTextStream>

namespace velcro::report {

/// Throws VelmaraError for a function that is not there, a wrong number of arguments, and a user who
/// cannot sign in; and what the function throws.
void perform(const Options& options, QTextStream& out);

} // namespace velcro::report
