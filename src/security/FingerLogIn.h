// What the two log-in screens for a fingerprint reader share: the reader, the picture of the finger,
// and the way from a captured print to the signed-in user.
#pragma once

#include "platform/fingerprint/FingerprintReader.h"
#include "security/LogInForm.h"

class QLabel;

namespace velcro::ui {
class PictureBox;
}

class FingerLogIn : public LogInForm
{
    Q_OBJECT

public:
    /// The table is the one that holds the family's templates.
    FingerLogIn(const QString& unit, velcro::fingerprint::Family family, const QString& table);
    ~FingerLogIn() override;

    /// Offers the databases of the suite (vcSettings) and selects the one of the last session.
    bool LoadSettings();
    /// The forced change of the matched user's password; false when it was turned down.
    bool ChangePswd();
    void btnAbortClick();

    void done(int result) override;

protected:
    void FormShow() override;

    /// Null where the seat has none.
    velcro::fingerprint::FingerprintReader* reader() { return reader_.get(); }
    bool openReader();

    struct User
    {
        QString code, password;
    };
    /// Finds the finger's user, or tells why not.
    virtual bool identify(const velcro::fingerprint::Print& print) = 0;
    virtual User user() const = 0;
    virtual void logInRefused() = 0;
    virtual void connectSensor() = 0;
    virtual void scanned(int quality) = 0;

private:
    void makeFinger();
    velcro::fingerprint::ReaderEvents events();
    void captured(const velcro::fingerprint::Print& print);
    bool databaseReady();
    QList<QByteArray> enrolled() const;

    QString table_;
    std::unique_ptr<velcro::fingerprint::FingerprintReader> reader_;
    velcro::ui::PictureBox* finger_ = nullptr;
    bool busy_ = false;
};
