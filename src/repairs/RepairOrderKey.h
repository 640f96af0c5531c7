// An order as the screens below it know it.
#pragma once

#include <QString>

struct RepairOrderKey
{
    int xRecID = 0; // of CRORepMst
    QString xCRONo;
    QString xAccount;
    QString xName;
};
