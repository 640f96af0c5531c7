// What a product costs the customer under a price code today, and how its stock type is called.
#pragma once

#include <QString>

// The row of STKPrice that applied last. sk_GetSellPrice sets the numbers to 0 first; the texts keep
// what an earlier call left in them when no row applies.
inline double gPExcl = 0, gPIncl = 0;
inline double gPMUP = 0, gPGP = 0; // mark-up and gross profit, per cent
inline double gPDiscP = 0, gPDiscV = 0, gPMaxDiscP = 0, gPMaxDiscV = 0;
inline double gPDefaultMUP = 0, gPDefaultGP = 0;
inline int gIRecID = 0;
inline QString gPFromDate, gPToDate, gPPriceRule, gPRounding;

/// Fills the values above from the first row of STKPrice that is in force on this machine's day.
/// Blank branch and company are gStkBranch and gCO. False when there is no row at all under the
/// price code, or when it could not be read, which is shown; true with zeros when none is in force.
bool sk_GetSellPrice(const QString& xStockCode, const QString& xLinkCode, const QString& xPRCode,
                     const QString& xBranch = {}, const QString& xCO = {});

/// "Normal Item" of "N", and so on; blank for any other type, case counts.
QString sk_GetStockTypeName(const QString& xStockType);
