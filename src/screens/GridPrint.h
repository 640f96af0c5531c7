// The title of a grid's printout.
#pragma once

#include "ui/GridPrinter.h"

#include <QString>

/// Fills header, margins and font: company and branch, program with its version, user and comment on
/// the left; date, time and page on the right. The date comes from the server.
void sfvel_GridPrintTitle(velcro::ui::GridPrinter& xGridPrinter, const QString& xProgram,
                          const QString& xComment);
