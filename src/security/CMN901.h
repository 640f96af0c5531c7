// Asks two supervisors to authorise what the signed-in user may not do alone.
#pragma once

#include "security/SignInForm.h"

#include <array>

class TfrmCMN901 : public SignInForm
{
    Q_OBJECT

public:
    TfrmCMN901();

    QString xModCode; // the right that is asked for
    int xAccessNo = 0;
    QString xAuthUser1, xAuthUser2; // who authorised it

    /// xNo is "1" or "2". A refusal is shown in the status bar.
    bool ValidateSuper(const QString& xNo);
    bool Allowed_To_OverRide(const QString& xNo);

protected:
    void FormShow() override;

private:
    struct Supervisor
    {
        QLineEdit* code = nullptr;
        QLineEdit* password = nullptr;
        QString user, pswd, group; // of the row that was read
    };

    void addSupervisor(Supervisor& supervisor, const QString& xNo, const QString& title);
    Supervisor& supervisor(const QString& xNo);
    bool readSupervisor(const QString& xNo);
    void btnOKClick();

    std::array<Supervisor, 2> supervisors_;
};
