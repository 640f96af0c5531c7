#include "security/CMN999D.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "security/FingerTemplates.h"
#include "security/LogInRead.h"
#include "security/SysBiometrics.h"

#include <QLabel>

using velcro::fingerprint::Print;

TfrmCMN999D::TfrmCMN999D()
    : FingerLogIn(QStringLiteral("CMN999D"), velcro::fingerprint::Family::ZKTeco,
                  QStringLiteral("SYSBiometricDetl")) {}

bool TfrmCMN999D::ConnectFPSensor() {
    resetStatusBar();
    if (!openReader()) {
        displayError(QStringLiteral("Initialializing Biometric Sensor FAILED"));
        return false;
    }
    findChild<QLabel*>(QStringLiteral("lblSensorSN"))
        ->setText(QStringLiteral("Device Serial No: ") + reader()->serialNumber());
    displayMessage(QStringLiteral("Msg"), QStringLiteral("Sensor connected"));
    if (reader()->isRegister()) {
        reader()->cancelEnroll();
    }
    return true;
}

void TfrmCMN999D::ZKFPEngX1FeatureInfo(int AQuality) {
    QString text;
    if (reader()->isRegister()) {
        text = QStringLiteral("Register status: still press finger %1 times!")
                   .arg(reader()->enrollIndex());
    }
    text += QStringLiteral(" Fingerprint quality");
    if (AQuality == -1) {
        text += QStringLiteral(" not good, Suspicious fingerprints, quality=");
    } else if (AQuality != 0) {
        text += QStringLiteral(" not good, quality=");
    } else {
        text += QStringLiteral(" good, quality=");
    }
    displayMessage(QStringLiteral("Alert"), text + QString::number(reader()->lastQuality()));
}

// A template that the reader cannot make sense of is another finger's to it.
bool TfrmCMN999D::isSameFinger(const Print& xFPData, const QByteArray& stored) {
    fpStringToByte(QString::fromUtf8(stored)); // for its fault alone: the reader takes the text
    try {
        return reader()->compare(xFPData, stored).verified;
    } catch (const velcro::fingerprint::TemplateError&) {
        return false;
    }
}

bool TfrmCMN999D::takeMatchedUser(int bioID) {
    displayMessage(QStringLiteral("Msg"), QStringLiteral("Verify Succeed"));
    bioID_ = bioID;
    if (VerifyUser()) {
        return true;
    }
    // The bar knows no such type, and shows it without a colour.
    displayMessage(QStringLiteral("Erroe"), "User Code NOT FOUND on Database (" + userCode_ + ")");
    return false;
}

bool TfrmCMN999D::VerifyFPData(const Print& xFPData) {
    userCode_.clear();
    return readRows(gData->vLoadQuery1, {"SELECT * FROM SYSBiometricDetl WITH (NOLOCK)"},
                    dialogAndFalse("912M-004", "SQL Error - Writing to Table: SYSUserBiometrics\r",
                                   errorClassUnit, "GetFPData"),
                    [&](Statement& rows) {
                        switch (searchTemplates(rows, [&](const QByteArray& stored) {
                            return isSameFinger(xFPData, stored);
                        })) {
                        case TemplateSearch::Found:
                            return takeMatchedUser(rows.FieldByName("BioID").AsInteger());
                        case TemplateSearch::GivenUp:
                            displayError(QStringLiteral("The comparison was cancelled"));
                            return false;
                        case TemplateSearch::NotFound:
                            break;
                        }
                        displayError(QStringLiteral("No biometric information found on Database"));
                        return false;
                    });
}

bool TfrmCMN999D::VerifyUser() {
    const TextColumn columns[] = {
        {"UserCode", &userCode_},     {"Username", &username_},       {"UserPswd", &userPswd_},
        {"Supervisor", &supervisor_}, {"SuperCardNo", &superCardNo_}, {"UserGroup", &userGroup_},
    };
    return readRows(
        gData->Velmara,
        {
            "SELECT * FROM SysUser WITH (NOLOCK)",
            " WHERE [BioID] = " + QuotedStr(bioID_),
        },
        dialogAndFalse("SBM-003", sqlErrorOnTable("SysUser"), errorClassUnit, "sbVerifyUser"),
        [&](const Statement& user) {
            if (user.IsEmpty()) {
                return false;
            }
            copyText(user, columns);
            return true;
        });
}

void TfrmCMN999D::logInRefused() {
    if (gLoginResult == QLatin1String("1")) {
        displayError(gErrorMsg);
    }
}
