// The small questions that screens ask of reference data: fill a combo box, is this key taken, what
// is the next document number, which period came before.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class Statement;

/// The last image read.
inline QByteArray gImageStream;

/// What a combo box over a code table begins with. xALL: "N" nothing, "*BLANK*", "*NEW*", anything
/// else the item "*ALL* - " + xALL.
QStringList sld_ComboLeadingItems(const QString& xALL);
/// One item a row of the table's statement, "code - description". Throws VelmaraError when the read
/// fails.
QStringList sld_ComboRows(const QString& xTable, const QString& xSQL, const QString& xParam1);
/// The statement of a key; blank for an unknown one.
QString sld_LoadComboSQL(const QString& xTable, const QString& xParam1, const QString& xParam2,
                         const QString& xParam3, const QString& xCO, const QString& xBranch);
/// Whether the statement gives a row. Throws VelmaraError, with gErrorMsg as its reason.
bool sld_CheckDuplicates(const QString& xSQL, const QString& xTable);
/// The next number of a document series, from the server. Throws.
QString sld_GenerateDocNo(const QString& xCO, const QString& xBranch, const QString& xModCode,
                          const QString& xTxTp);
/// The statement of the accounting period of gCO that holds the date (SYSAP, yyyy/mm/dd).
QStringList sld_PeriodOf(const QString& xDate);
/// The period xAPCnt before xAP, 0 if there is none; gIParam1, gSParam1 to 3.
int sld_GetPrevAP(int xAP, int xAPCnt);
/// True with the picture in gImageStream.
bool sld_LoadSmallImage(const QString& xImageCode);
