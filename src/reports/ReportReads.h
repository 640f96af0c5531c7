// The report functions that read a row. None stops a print run: a failed read gives its answer too.
#pragma once

#include "reports/FunctionTable.h"

/// (company, branch, warehouse): a warehouse's name; blank arguments are the session's. Blank when
/// there is none, or the read fails.
void rep_GetWHName(Parameters& parameters);
/// (account, period): what a debtor owed, all ages together; 0 without a row or when the read fails.
void rep_GetDebBalance(Parameters& parameters);
/// (module, code): a text of SYSMessage; blank without a row.
void rep_GetMessage(Parameters& parameters);
/// (company, branch): a branch's name; empty arguments are the session's.
void rep_GetDBBranchName(Parameters& parameters);
/// Answers the description of the tender type that the parameter "BRANCH" of this number holds;
/// nothing without a row.
std::function<void(Parameters&)> tenderType(int parameterNumber);
