// Which accounting period a date falls into, and which VAT rate holds on it.
#pragma once

#include <QString>

/// The period of the session's company that holds the date, 0 if none; gSParam1 to 4: from, to,
/// active, open. All other return slots are cleared. A failure is shown as "SFVEL-14" and thrown on.
int sfvel_GetPeriod(const QString& xDate);

/// The rate of a VAT code on a date (blank is today), from gVatRates; 0 if there is none. Entries
/// without a from or to date get "2000/01/01" and "2100/01/01".
double sfvel_GetVATRate(const QString& xVATCode, const QString& xDate);
