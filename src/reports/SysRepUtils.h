// Functions that report templates call for what stands around a report: its name and user, selection
// criteria, amounts in words, tender types.
#pragma once

#include "reports/FunctionTable.h"

/// In the order of their registration; category "Orvane Functions".
std::span<const FunctionRow> sysRepUtilsFunctions();

/// The lines of gReportCriteria, a carriage return after each. Dots fill the names to one length, so
/// that the colons align in a font of equal widths.
QString selectionCriteria();
/// "hh:mm:ss"; hours beyond 99 keep their digits.
QString secondsAsTime(int xSeconds);
