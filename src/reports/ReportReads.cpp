#include "reports/ReportReads.h"

#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/Settings.h"
#include "data/StatementText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString argument(const Parameters& parameters, int index) {
    return parameters.GetParamValue(index).toString();
}

/// The column of the first row; invalid without a row, and what a failed read is answered with.
QVariant columnOf(Statement& query, const QStringList& lines, const QString& column,
                  const std::function<QVariant(const QString& reason)>& failed) {
    try {
        return readRows(query, lines, raised(), [&column](const Statement& rows) {
            return rows.IsEmpty() ? QVariant() : QVariant(rows.FieldByName(column).AsString());
        });
    } catch (const std::runtime_error& error) {
        return failed(errorText(error));
    }
}

/// A failure is told in the place of the answer, so that it shows up on the document.
QVariant columnOrReason(Statement& query, const QStringList& lines, const QString& column) {
    return columnOf(query, lines, column,
                    [](const QString& reason) { return "ERROR : "_L1 + reason; });
}

double balanceOf(const Statement& rows) {
    double balance = 0;
    if (!rows.IsEmpty()) {
        for (const auto* age : {"DCURR", "D030", "D060", "D090", "D120", "D150", "D180", "DOver"}) {
            balance += rows.FieldByName(QLatin1StringView(age)).AsFloat();
        }
    }
    return balance;
}

} // namespace

void rep_GetWHName(Parameters& parameters) {
    const QString fallBacks[] = {gCO, gBranch, sfvel_GetParam("BRANCH", 2)};
    QString wKey[3];
    for (int i = 0; i < 3; ++i) {
        wKey[i] = argument(parameters, i);
        if (wKey[i].trimmed().isEmpty()) {
            wKey[i] = fallBacks[i];
        }
    }
    const auto* empty = std::ranges::find_if(wKey, &QString::isEmpty);
    if (empty != std::end(wKey)) {
        parameters.SetParamValue(int(empty - wKey), QString());
        return;
    }
    const QVariant name = columnOf(gData->vQuery1,
                                   {
                                       "SELECT WHNAME FROM SYSWH",
                                       " WHERE CO = " + QuotedStr(wKey[0]),
                                       " AND BRANCH = " + QuotedStr(wKey[1]),
                                       " AND WH = " + QuotedStr(wKey[2]),
                                   },
                                   "WHNAME", [](const QString&) { return QVariant(); });
    parameters.SetParamValue(3, name.toString());
}

void rep_GetDebBalance(Parameters& parameters) {
    double balance = 0;
    try {
        balance = readRows(gData->vQuery2,
                           {
                               " SELECT * FROM DEBBALANCE WITH (NOLOCK)",
                               " WHERE [CO]    = " + QuotedStr(gCO),
                               " AND [BRANCH]  = " + QuotedStr(gDebBranch),
                               " AND [ACCOUNT] = " + QuotedStr(argument(parameters, 0)),
                               " AND [AP]      = " + QuotedStr(argument(parameters, 1)),
                           },
                           raised(), balanceOf);
    } catch (const std::runtime_error&) {
        balance = 0; // no failure stops a print run
    }
    parameters.SetParamValue(2, balance);
}

void rep_GetMessage(Parameters& parameters) {
    const QString module = argument(parameters, 0);
    const QString code = argument(parameters, 1);
    QVariant text;
    if (!module.isEmpty() && !code.isEmpty()) {
        text = columnOrReason(gData->vQuery1,
                              {
                                  "SELECT MSGTEXT FROM SYSMESSAGE",
                                  " WHERE CO = " + QuotedStr(gCO),
                                  " AND BRANCH = " + QuotedStr(gBranch),
                                  " AND MODCODE = " + QuotedStr(module),
                                  " AND MSGCODE = " + QuotedStr(code),
                              },
                              "MSGTEXT");
    }
    parameters.SetParamValue(2, text.toString());
}

void rep_GetDBBranchName(Parameters& parameters) {
    const QString company = argument(parameters, 0);
    const QString branch = argument(parameters, 1);
    const QVariant name =
        columnOrReason(gData->vQuery1,
                       {
                           "SELECT BRName FROM SYSBranch",
                           " WHERE CO = " + QuotedStr(company.isEmpty() ? gCO : company),
                           " AND Branch = " + QuotedStr(branch.isEmpty() ? gBranch : branch),
                       },
                       "BRName");
    parameters.SetParamValue(2, name.toString());
}

std::function<void(Parameters&)> tenderType(int parameterNumber) {
    return [parameterNumber](Parameters& parameters) {
        const QVariant description = columnOrReason(
            gData->vLoadQuery1,
            {
                "SELECT * FROM SYSTender WITH (NOLOCK)",
                " WHERE [CO] = " + QuotedStr(gCO),
                " AND [TenderType] = " + QuotedStr(sfvel_GetParam("BRANCH", parameterNumber)),
            },
            "TenderDesc");
        if (description.isValid()) {
            parameters.SetParamValue(0, description);
        }
    };
}
