#include "security/SysBiometrics.h"

#include "data/DataUVEL.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/StatementText.h"
#include "screens/SysFuncGlobal.h"
#include "security/FingerTemplates.h"
#include "security/LogInRead.h"

using velcro::fingerprint::Print;
using velcro::fingerprint::TemplateError;

namespace {

constexpr int lastByteOfBuffer = 2512;

/// True when the search is at its end, whatever it found.
bool compareWith(const Print* pFeatureSet, const QByteArray& stored) {
    fpStringToByte(QString::fromUtf8(stored)); // for its fault alone: the reader takes the text
    if (pFeatureSet == nullptr || stored.isEmpty()) {
        sfg_InfoDlg(QStringLiteral("Empty Featureset or Template!"), 0);
        return true;
    }
    const auto result = sbVerify->compare(*pFeatureSet, stored);
    sbVerified = result.verified;
    sbFar = result.falseAcceptanceRate;
    return sbVerified;
}

bool takeMatchedUser(const Statement& rows) {
    sbUserCode = rows.FieldByName("UserCode").AsString();
    const bool found = sbVerifyUser();
    sbReturnMsg =
        found ? QStringLiteral("OK") : "User Code NOT FOUND on Database (" + sbUserCode + ")";
    return found;
}

bool searchIn(Statement& rows, const Print* pFeatureSet) {
    if (rows.IsEmpty()) {
        sbReturnMsg = QStringLiteral("NO Biometric Data FOUND");
        return false;
    }
    const auto outcome = searchTemplates(
        rows, [pFeatureSet](const QByteArray& stored) { return compareWith(pFeatureSet, stored); });
    if (sbVerified) {
        return takeMatchedUser(rows);
    }
    sbReturnMsg = outcome == TemplateSearch::GivenUp
                      ? QStringLiteral("The comparison was cancelled")
                      : QStringLiteral("No biometric information found on Database");
    return false;
}

bool vendorFault(const char* faultClass, const std::exception& fault) {
    sfg_ErrorDlg("SBM-002", QLatin1String(faultClass) + " : " + QString::fromUtf8(fault.what()),
                 faultClass, "DPFPVerificationControl1Complete");
    return false;
}

} // namespace

QByteArray fpStringToByte(const QString& xValue) {
    QByteArray bytes;
    for (const QChar character : xValue) {
        if (character < u'0' || bytes.size() > lastByteOfBuffer) {
            throw RangeFault();
        }
        bytes.append(static_cast<char>(character.unicode() - u'0'));
    }
    return bytes;
}

bool sbVerifyID(const Print* pFeatureSet, int /*pStatus*/) {
    sbReturnMsg = QStringLiteral("START");
    sbVerified = false;
    sbFar = 0;
    return readRows(gData->Velmara, {"SELECT * FROM SYSUserBiometrics WITH (NOLOCK)"},
                    dialogAndFalse("SBM-001", "SQL Error on Table: SYSUserBiometrics\r",
                                   errorClassUnit, "sbVerifyID"),
                    [pFeatureSet](Statement& rows) {
                        try {
                            return searchIn(rows, pFeatureSet);
                        } catch (const RangeFault& fault) {
                            return vendorFault("RangeFault", fault);
                        } catch (const TemplateError& fault) {
                            return vendorFault("TemplateError", fault);
                        }
                    });
}

bool sbVerifyUser() {
    static const TextColumn columns[] = {
        {"UserCode", &sbUserCode},     {"Username", &sbUsername},       {"UserPswd", &sbUserPswd},
        {"Supervisor", &sbSupervisor}, {"SuperCardNo", &sbSuperCardNo}, {"UserGroup", &sbUserGroup},
    };
    return readRows(
        gData->Velmara,
        {
            "SELECT * FROM SysUser WITH (NOLOCK)",
            " WHERE [UserCode] = " + QuotedStr(sbUserCode),
        },
        dialogAndRaise("SBM-003", sqlErrorOnTable("SysUser"), errorClassUnit, "sbVerifyUser"),
        [](const Statement& user) {
            if (user.IsEmpty()) {
                return false;
            }
            copyText(user, columns);
            return true;
        });
}
