// Finds the product of the stock that a typed or scanned text means: a barcode, a link code, a stock
// code, an alternative barcode, a supplier's code or an alternative supplier's code.
#pragma once

#include <QString>

class QWidget;

// What a search takes; every caller sets them before it.
inline bool sfi_AllowKit = false;     // false: no kits, no items of kit function 3 or 4
inline bool sfi_AllowArchive = false; // false: no items of status "X"
inline bool sfi_PickChild = false;    // true: of a parent, the user picks a linked item

// What a search works with: the text, which an alternative's code replaces for all that follows, the
// supplier, and what an alternative stands for.
inline QString sfi_StockCode, sfi_Supplier;
inline QString sfi_FoundStockCode, sfi_FoundLinkCode;

/// RecID of the product in STKMaster; 0 when nothing is known by the text. A read that fails is shown
/// and counts as nothing found. parent: of the linked items, if they are shown.
int sfi_FindStockItem(const QString& xStockCode, const QString& xSupplier,
                      QWidget* parent = nullptr);

/// RecID of the first product whose "STOCKCODE", "LINKCODE", "BARCODE", "SUPPCODE" or "ALTSUPP" is
/// sfi_StockCode; 0 if there is none.
int sfi_SearchStockCode(const QString& xIndex, QWidget* parent = nullptr);
/// The stock code that an alternative stands for, blank if there is none; it and the link code are
/// left in sfi_FoundStockCode and sfi_FoundLinkCode.
QString sfi_SearchAltBarcode();
QString sfi_SearchAltSupplier();
/// RecID of the linked item that the user picked for the current row of gData->vQuery1; 0 without a
/// choice.
int sfi_PickChildren(QWidget* parent = nullptr);
