#include "security/SysLogInForms.h"

#include "data/DayEnd.h"
#include "data/Session.h"
#include "security/CMN999.h"
#include "security/CMN999C.h"
#include "security/CMN999D.h"
#include "ui/Modal.h"

namespace {

const QString ok = QStringLiteral("OK");

template <typename Form>
QString outcomeOf() {
    Form form;
    form.setWindowTitle(QStringLiteral("Log-In : ") + gEXETitle);
    velcro::ui::runModal(form);
    return form.xReturn;
}

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
    return outcomeOf<TfrmCMN999>();
}

QString slif_DP_Biometric_Login_Form() {
    return outcomeOf<TfrmCMN999C>();
}

QString slif_ZKT_Biometric_Login_Form() {
    return outcomeOf<TfrmCMN999D>();
}
