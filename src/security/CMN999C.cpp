#include "security/CMN999C.h"

#include "data/Prompts.h"
#include "data/Session.h"
#include "security/SysBiometrics.h"

TfrmCMN999C::TfrmCMN999C()
    : FingerLogIn(QStringLiteral("CMN999C"), velcro::fingerprint::Family::DigitalPersona,
                  QStringLiteral("SYSUserBiometrics")) {
    sbVerify = reader();
}

TfrmCMN999C::~TfrmCMN999C() {
    sbVerify = nullptr;
}

void TfrmCMN999C::connectSensor() {
    if (!openReader()) {
        displayError(QStringLiteral("Fingerprint reader NOT FOUND"));
    }
}

void TfrmCMN999C::scanned(int quality) {
    if (quality != 0) {
        displayMessage(QStringLiteral("Alert"),
                       QStringLiteral("Fingerprint could not be read, please try again"));
    }
}

bool TfrmCMN999C::identify(const velcro::fingerprint::Print& print) {
    if (!sbVerifyID(&print, 0)) {
        displayError(sbReturnMsg);
        return false;
    }
    return true;
}

FingerLogIn::User TfrmCMN999C::user() const {
    return {sbUserCode, sbUserPswd};
}

void TfrmCMN999C::logInRefused() {
    if (!gErrorMsg.isEmpty()) {
        errorBox(QStringLiteral("Error"), QStringLiteral("System Log-In ERROR\r\r") + gErrorMsg);
    }
}
