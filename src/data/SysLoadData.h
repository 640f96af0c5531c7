// The small questions that screens ask of reference data: fill a combo box, is this key taken, what
// is the next document number, which period came before.
#pragma once

#include <QByteArray>
#include <QString>

class Statement;

class QComboBox;

/// The last image read.
inline QByteArray gImageStream;

/// Fills a combo box with "code - description" of a code table. xALL: "N" no leading item,
/// "*BLANK*", "*NEW*", anything else the item "*ALL* - " + xALL. An unknown xTable leaves the combo
/// as it is. Throws VelmaraError when the read fails.
void sld_LoadCombo(const QString& xTable, QComboBox& cmbCombo, const QString& xALL,
                   const QString& xParam1 = {}, const QString& xParam2 = {},
                   const QString& xParam3 = {});
/// The statement of a key; blank for an unknown one.
QString sld_LoadComboSQL(const QString& xTable, const QString& xParam1, const QString& xParam2,
                         const QString& xParam3, const QString& xCO, const QString& xBranch);
/// Whether the statement gives a row. Throws VelmaraError, with gErrorMsg as its reason.
bool sld_CheckDuplicates(const QString& xSQL, const QString& xTable);
/// The next number of a document series, from the server. Throws.
QString sld_GenerateDocNo(const QString& xCO, const QString& xBranch, const QString& xModCode,
                          const QString& xTxTp);
/// Opens the query on the accounting period of gCO that holds the date (SYSAP, yyyy/mm/dd). Throws.
void sld_OpenPeriodOf(Statement& wQuery, const QString& xDate);
/// The period xAPCnt before xAP, 0 if there is none; gIParam1, gSParam1 to 3.
int sld_GetPrevAP(int xAP, int xAPCnt);
/// True with the picture in gImageStream.
bool sld_LoadSmallImage(const QString& xImageCode);
