// Functions that report templates call for letterheads: the company, the branch and their banks,
// images, messages and balances.
#pragma once

#include "reports/FunctionTable.h"

/// In the order of their registration; category "Velmara Functions". Those that SysRepUtils names
/// too are in force only where that unit is not registered.
std::span<const FunctionRow> repSysFunctions();
