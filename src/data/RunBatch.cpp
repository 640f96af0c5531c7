#include "data/RunBatch.h"

#include "data/Errors.h"
#include "data/FailureFile.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

void report(const BatchRules& rules, const QString& reason) {
    switch (rules.onFailure) {
    case BatchRules::OnFailure::MessageBox:
        errorBox(QStringLiteral("Error"), QLatin1String("SQL Error\r") + reason);
        break;
    case BatchRules::OnFailure::ErrorMessage:
        gErrorMsg = QLatin1String(rules.routine) +
                    QLatin1String(" - Error Executing SQL Command. Reason: ") + reason;
        break;
    case BatchRules::OnFailure::Silent:
        break;
    }
}

bool isLockTimeout(const std::exception& error) {
    constexpr int lockRequestTimeOut = 1222;
    const auto* refused = dynamic_cast<const velcro::sql::SqlError*>(&error);
    return refused != nullptr && refused->number() == lockRequestTimeOut;
}

} // namespace

TextLines& statementBuffer(int xMemoNo) {
    return xMemoNo == 1 ? gSQL : gSQL2;
}

bool runBatch(TextLines& buffer, Statement& writer, const BatchRules& rules) {
    if (rules.clearsErrorMsg) {
        gErrorMsg.clear();
    }
    if (rules.testsEmpty && buffer.isEmpty()) {
        return true;
    }
    if (rules.testsConnected && !writer.connection().Connected()) {
        gErrorMsg =
            QLatin1String(rules.routine) + QLatin1String(" - Not connected to the TILL database.");
        return false;
    }
    const QString text = buffer.Text();
    buffer.Clear();
    if (rules.transaction) {
        rules.transaction->StartTransaction();
    }
    try {
        writer.setText({text});
        writer.ExecSQL();
        if (rules.transaction) {
            rules.transaction->Commit();
        }
        return true;
    } catch (const std::exception& error) {
        const QString reason = errorText(error);
        if (rules.transaction) {
            rules.transaction->rollbackAfterFailure();
        }
        writeFailureFile(rules.failureFile, text);
        if (rules.lockIsThrown && isLockTimeout(error)) {
            throw;
        }
        report(rules, reason);
        return false;
    }
}
