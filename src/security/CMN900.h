// Asks one supervisor to authorise what the signed-in user may not do alone.
#pragma once

#include "security/SignInForm.h"

class TfrmCMN900 : public SignInForm
{
    Q_OBJECT

public:
    TfrmCMN900();

    QString xModCode; // the right that is asked for
    int xAccessNo = 0;

    /// Whether the supervisor whose row was read holds a right that may be lent.
    bool CheckSuperAccess();

protected:
    void FormShow() override;

private:
    void btnProceedClick();
    bool readSupervisor();

    QString userPswd_, supervisor_, userGroup_; // of the supervisor's row
    QLineEdit* edSuperCode = nullptr;
    QLineEdit* edSuperPswd = nullptr;
};
