#include "data/SysLoadData.h"

#include "data/ComboLoaders.h"
#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

QString scopeText(ComboLoader::Scope scope, const LoaderArguments& given) {
    switch (scope) {
    case ComboLoader::Scope::Everywhere:
        return {};
    case ComboLoader::Scope::Company:
        return " WHERE [CO] = " + QuotedStr(given.company);
    case ComboLoader::Scope::Branch:
        return " WHERE [CO] = " + QuotedStr(given.company) +
               "   AND [Branch] = " + QuotedStr(given.branch);
    case ComboLoader::Scope::SessionCompany:
        return " WHERE [CO] = " + QuotedStr(gCO);
    }
    return {};
}

QString statementOf(const ComboLoader& loader, const LoaderArguments& given) {
    if (loader.statement) {
        return loader.statement(given);
    }
    const QString columns = QLatin1String(loader.columns);
    const QString select =
        "SELECT " + columns + "  FROM " + QLatin1String(loader.key) + " WITH (NOLOCK)";
    if (loader.rest) {
        return select + loader.rest(given);
    }
    const QString order =
        loader.order ? QString::fromLatin1(loader.order) : columns.section(QLatin1Char(','), 0, 0);
    return select + scopeText(loader.scope, given) +
           (loader.conditions ? loader.conditions(given) : QString()) + " ORDER BY " + order;
}

QString itemText(const QString& table, const Statement& row) {
    if (table == QLatin1String("SYSTAX")) {
        return row.FieldByName("TaxCode").AsString() + " - " +
               row.FieldByName("TaxDesc").AsString() + " (" +
               row.FieldByName("TaxRate").AsString() + ")";
    }
    if (table == QLatin1String("GLGCBTXTP")) {
        return row.FieldByName("TxTp").AsString() + " - " +
               row.FieldByName("Description").AsString() + " (" +
               row.FieldByName("DrCr").AsString() + ")";
    }
    if (table == QLatin1String("GLGCALENDAR")) {
        return row.FieldByName("GLYear").AsString() + " - " + row.FieldByName("Period").AsString();
    }
    return row.Fields(0).AsString() + " - " + row.Fields(1).AsString();
}

} // namespace

QStringList sld_ComboLeadingItems(const QString& xALL) {
    const QString leading = xALL.trimmed();
    if (leading == QLatin1String("N")) {
        return {};
    }
    if (leading == QLatin1String("*BLANK*")) {
        return {" "};
    }
    if (leading == QLatin1String("*NEW*")) {
        return {" ", "<Add New>"};
    }
    return {"*ALL* - " + xALL};
}

QStringList sld_ComboRows(const QString& xTable, const QString& xSQL, const QString& xParam1) {
    const QString table = xTable.toUpper();
    QStringList items;
    readRows(gData->Velmara, {xSQL},
             raisedAs(QStringLiteral("[SysLoadData.sld_LoadCombo] SQL Error reading object "
                                     "\"%1\".\r")
                          .arg(xTable)),
             [&](Statement& rows) {
                 for (; !rows.Eof(); rows.Next()) {
                     items << itemText(table, rows);
                 }
             });
    if (table == QLatin1String("SYSTAX") && (xParam1 == "I" || xParam1 == "O")) {
        items << "C - Customs VAT Rate";
    }
    return items;
}

QString sld_LoadComboSQL(const QString& xTable, const QString& xParam1, const QString& xParam2,
                         const QString& xParam3, const QString& xCO, const QString& xBranch) {
    const ComboLoader* loader = findComboLoader(xTable);
    return loader ? statementOf(*loader, {xParam1, xParam2, xParam3, xCO, xBranch}) : QString();
}

bool sld_CheckDuplicates(const QString& xSQL, const QString& xTable) {
    try {
        Statement wQuery(gData->Velmara);
        wQuery.Open({xSQL});
        return !wQuery.IsEmpty();
    } catch (const std::exception&) {
        throw VelmaraError(QStringLiteral("SysLoadData.sld_CheckDuplicates] SQL Error reading "
                                          "object \"%1\".\r%2")
                               .arg(xTable, gErrorMsg));
    }
}

namespace {

void requireSeriesKey(const char* name, const QString& value, int longest) {
    const QString place = QStringLiteral("SysLoadData.sld_GenerateDocNo] ");
    if (value.trimmed().isEmpty()) {
        throw VelmaraError(
            place +
            QStringLiteral("Invalid %1 parameter: empty or null.").arg(QLatin1String(name)));
    }
    if (value.trimmed().size() > longest) {
        throw VelmaraError(place + QStringLiteral("%1 parameter exceeds %2 characters: \"%3\".")
                                       .arg(QLatin1String(name), QString::number(longest), value));
    }
}

QString numberOfRow(const Statement& row, const QString& xModCode, const QString& xTxTp) {
    try {
        const int number = row.FieldByName("NUMBER").AsInteger();
        if (number == 0) {
            throw VelmaraError(QStringLiteral("SysLoadData.sld_GenerateDocNo] Failed to generate "
                                              "document number for \"%1\"/\"%2\".")
                                   .arg(xModCode, xTxTp));
        }
        return QString::number(number);
    } catch (const std::exception& error) {
        throw VelmaraError(QStringLiteral("SysLoadData.sld_GenerateDocNo] SQL Error executing "
                                          "VELMARA_GENERATE_NUMBER for \"%1\"/\"%2\".\r%3")
                               .arg(xModCode, xTxTp, errorText(error)));
    }
}

} // namespace

QString sld_GenerateDocNo(const QString& xCO, const QString& xBranch, const QString& xModCode,
                          const QString& xTxTp) {
    requireSeriesKey("CO", xCO, 10);
    requireSeriesKey("BRANCH", xBranch, 10);
    requireSeriesKey("MODCODE", xModCode, 3);
    requireSeriesKey("TXTP", xTxTp, 6);
    Statement wQuery(gData->Velmara);
    wQuery.SQL.Add("EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP");
    wQuery.ParamByName("CO").setString(xCO);
    wQuery.ParamByName("BRANCH").setString(xBranch);
    wQuery.ParamByName("MODCODE").setString(xModCode);
    wQuery.ParamByName("TXTP").setString(xTxTp);
    wQuery.Open();
    return wQuery.IsEmpty() ? QStringLiteral("0") : numberOfRow(wQuery, xModCode, xTxTp);
}

QStringList sld_PeriodOf(const QString& xDate) {
    return {
        "SELECT * FROM SYSAP WITH (NOLOCK) ",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [FromDate] <= " + QuotedStr(xDate),
        "   AND [ToDate] >= " + QuotedStr(xDate),
    };
}

int sld_GetPrevAP(int xAP, int xAPCnt) {
    return readRows(gData->Velmara,
                    {
                        "SELECT [AP], [FromDate], [ToDate]",
                        "  FROM SysAP WITH (NOLOCK)",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [AP] <= " + QuotedStr(xAP),
                        " ORDER BY [AP] DESC",
                    },
                    raisedAs("[SysLoadData.sld_GetPrevAP] SQL Error reading object \"SysAP\".\r"),
                    [xAPCnt](Statement& rows) {
                        if (xAPCnt < 0 || xAPCnt >= rows.RecordCount()) {
                            return 0;
                        }
                        rows.setRecNo(xAPCnt + 1);
                        gIParam[1] = rows.FieldByName("AP").AsInteger();
                        gSParam[1] = rows.FieldByName("FromDate").AsString();
                        gSParam[2] = rows.FieldByName("ToDate").AsString();
                        gSParam[3] = gSParam[1] + " - " + gSParam[2];
                        return gIParam[1];
                    });
}

bool sld_LoadSmallImage(const QString& xImageCode) {
    return readRows(gData->qryImages,
                    {
                        "SELECT [ImageData] FROM SysRepImages WITH (NOLOCK)",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [ImageCode] = " + QuotedStr(xImageCode),
                    },
                    dialogAndRaise("999999", sqlErrorOnTable("SysRepImages"), "SysLoadData",
                                   "sld_LoadSmallImage"),
                    [](const Statement& rows) {
                        if (rows.IsEmpty()) {
                            return false;
                        }
                        gImageStream = rows.FieldByName("ImageData").AsBytes();
                        return !gImageStream.isEmpty();
                    });
}
