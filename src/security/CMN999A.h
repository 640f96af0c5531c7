// Makes the user choose a new password.
#pragma once

#include "data/DataUVEL.h"
#include "security/SignInForm.h"

/// What new users are given, and must change at their first log-in.
inline const QString defaultPassword = QStringLiteral("XQZ741");

class TfrmCMN999A : public SignInForm
{
    Q_OBJECT

public:
    explicit TfrmCMN999A(const QString& xUserCode);

    /// Reads the user's row, which stays open until the form closes; false without one.
    bool GetUser();
    bool Validation();
    /// Writes the password as it was typed; false when the write failed.
    bool UpdatePswd();

protected:
    void FormShow() override;

private:
    void btnOKClick();
    void btnShowPswdClick();

    QString userCode_;
    Statement Query1{gData->Velmara};
    QLineEdit* edUser = nullptr;
    QLineEdit* edPswd1 = nullptr;
    QLineEdit* edPswd2 = nullptr;
};
