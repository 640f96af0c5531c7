#include "security/SysLogInForms.h"

#include "data/DayEnd.h"
#include "data/Session.h"
#include "security/CMN999.h"
#include "ui/Modal.h"

namespace {

const QString ok = QStringLiteral("OK");

QString biometricLogIn() {
    if (gBDDeviceCode == QLatin1String("01")) {
        return slif_DP_Biometric_Login_Form();
    }
    if (gBDDeviceCode == QLatin1String("02")) {
        return slif_ZKT_Biometric_Login_Form();
    }
    return {};
}

} // namespace

bool slif_Show_LogInForm() {
    const bool biometric = gBDActive == QLatin1String("Y");
    if (biometric || gBDActive == QLatin1String("N")) {
        const bool passed = biometric && biometricLogIn() == ok;
        if (!passed && slif_Standard_Login_Form() != ok) {
            return false;
        }
    }
    if (!QStringList{"SEC", "RTN", "UTL"}.contains(gModCode)) {
        sfvel_Check_EndOfDay_Run();
    }
    return true;
}

QString slif_Standard_Login_Form() {
    TfrmCMN999 form;
    form.setWindowTitle(QStringLiteral("Log-In : ") + gEXETitle);
    velcro::ui::runModal(form);
    return form.xReturn;
}

// The screens of the two readers are not there yet: a seat that has one signs in by the standard
// screen.
QString slif_DP_Biometric_Login_Form() {
    return QStringLiteral("CANCEL");
}

QString slif_ZKT_Biometric_Login_Form() {
    return QStringLiteral("CANCEL");
}
