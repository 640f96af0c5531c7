// Reads the option that a supervisor holds for a right, at the moment it is asked for: the rights
// in memory are those of the signed-in user.
#pragma once

#include "data/Reading.h"

#include <QString>

/// Who asks for which right.
struct RightOfUser
{
    QString userGroup, userCode;
    QString modCode;
    int accessNo = 0;
};

/// What the two reads show when they fail, and what they select.
struct RightReads
{
    ReadFailure group, user;
    const char* columns;
};

/// Option letter of the user's group in gCO, replaced by the user's own in gCO and gBranch; "N"
/// when there is neither. A failed read is shown and gives "N".
QString optionOfUser(const RightOfUser& right, const RightReads& reads);
