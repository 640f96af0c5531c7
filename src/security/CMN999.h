// The log-in screen: database, user code and password, and what must happen before the menu opens.
#pragma once

#include "security/LogInForm.h"

class QLabel;
class LogInPicture;

class TfrmCMN999 : public LogInForm
{
    Q_OBJECT

public:
    TfrmCMN999();

    /// Offers the databases of the suite (vcSettings) and selects the one of the last session.
    bool LoadSettings();
    /// The forced change of the password; false when it was turned down.
    bool ChangePswd();
    /// The pictures that vcSettings holds for the remembered database; false without its row.
    bool Load_WhiteLabel_Images();

    /// Only OK and Cancel end the log-in.
    void reject() override {}

protected:
    void FormShow() override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makePictures();
    void addPickButton();
    void makeButtons();
    void acSelectDB();
    void btnOKClick();
    void edUserPswdEnter();
    bool entriesAccepted();
    bool tillDatabaseReady();

    QLineEdit* edUserCode = nullptr;
    QLineEdit* edUserPswd = nullptr;
    QLabel* companyLabel_ = nullptr;
    LogInPicture* imgBackground = nullptr;
    LogInPicture* ImgLogInLogo = nullptr;
};
