#include "data/SysLoadData.h"

#include "data/ComboLoaders.h"
#include "data/DataUVEL.h"
#include "data/ReadGuard.h"
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
    try {
        Statement wQuery(gData->Velmara);
        wQuery.NewRead();
        wQuery.SQL.Add(xSQL);
        wQuery.Open();
        for (; !wQuery.Eof(); wQuery.Next()) {
            items << itemText(table, wQuery);
        }
    } catch (const std::exception& error) {
        throw VelmaraError(QStringLiteral("[SysLoadData.sld_LoadCombo] SQL Error reading object "
                                          "\"%1\".\r%2")
                               .arg(xTable, errorText(error)));
    }
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
        wQuery.NewRead();
        wQuery.SQL.Add(xSQL);
        wQuery.Open();
        return !wQuery.IsEmpty();
    } catch (const std::exception&) {
        throw VelmaraError(QStringLiteral("SysLoadData.sld_CheckDuplicates] SQL Error reading "
                                          "object \"%1\".\r%2")
                               .arg(xTable, gErrorMsg));
    }
}

namespace {

void refuseSeriesKey(const char* name, const QString& value, int longest) {
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
    refuseSeriesKey("CO", xCO, 10);
    refuseSeriesKey("BRANCH", xBranch, 10);
    refuseSeriesKey("MODCODE", xModCode, 3);
    refuseSeriesKey("TXTP", xTxTp, 6);
    Statement wQuery(gData->Velmara);
    wQuery.SQL.Add("EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP");
    wQuery.ParamByName("CO").setString(xCO);
    wQuery.ParamByName("BRANCH").setString(xBranch);
    wQuery.ParamByName("MODCODE").setString(xModCode);
    wQuery.ParamByName("TXTP").setString(xTxTp);
    wQuery.Open();
    return wQuery.IsEmpty() ? QStringLiteral("0") : numberOfRow(wQuery, xModCode, xTxTp);
}

void sld_OpenPeriodOf(Statement& wQuery, const QString& xDate) {
    wQuery.NewRead();
    wQuery.SQL.Add("SELECT * FROM SYSAP WITH (NOLOCK) ");
    wQuery.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
    wQuery.SQL.Add("   AND [FromDate] <= " + QuotedStr(xDate));
    wQuery.SQL.Add("   AND [ToDate] >= " + QuotedStr(xDate));
    wQuery.Open();
}

int sld_GetPrevAP(int xAP, int xAPCnt) {
    try {
        Statement wQuery(gData->Velmara);
        wQuery.NewRead();
        wQuery.SQL.Add("SELECT [AP], [FromDate], [ToDate]");
        wQuery.SQL.Add("  FROM SysAP WITH (NOLOCK)");
        wQuery.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
        wQuery.SQL.Add("   AND [AP] <= " + QuotedStr(xAP));
        wQuery.SQL.Add(" ORDER BY [AP] DESC");
        wQuery.Open();
        if (xAPCnt < 0 || xAPCnt >= wQuery.RecordCount()) {
            return 0;
        }
        wQuery.setRecNo(xAPCnt + 1);
        gIParam[1] = wQuery.FieldByName("AP").AsInteger();
        gSParam[1] = wQuery.FieldByName("FromDate").AsString();
        gSParam[2] = wQuery.FieldByName("ToDate").AsString();
        gSParam[3] = gSParam[1] + " - " + gSParam[2];
        return gIParam[1];
    } catch (const std::exception& error) {
        throw VelmaraError("[SysLoadData.sld_GetPrevAP] SQL Error reading object \"SysAP\".\r" +
                           errorText(error));
    }
}

bool sld_LoadSmallImage(const QString& xImageCode) {
    return guardedRead("999999", "SysRepImages", "SysLoadData", "sld_LoadSmallImage", [&] {
        Statement& wQuery = gData->qryImages;
        wQuery.NewRead();
        wQuery.SQL.Add("SELECT [ImageData] FROM SysRepImages WITH (NOLOCK)");
        wQuery.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
        wQuery.SQL.Add("   AND [ImageCode] = " + QuotedStr(xImageCode));
        wQuery.Open();
        if (wQuery.IsEmpty()) {
            wQuery.Close();
            return false;
        }
        gImageStream = wQuery.FieldByName("ImageData").AsBytes();
        wQuery.Close();
        return !gImageStream.isEmpty();
    });
}
