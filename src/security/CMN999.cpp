#include "security/CMN999.h"

#include "data/DataUCMN.h"
#include "data/DataUTIL.h"
#include "data/Errors.h"
#include "data/StatementText.h"
#include "data/TextHelpers.h"
#include "schema/LiveSweep.h"
#include "schema/SysTillDBMods.h"
#include "security/CMN999E.h"
#include "security/LogInPicture.h"
#include "security/LogInRead.h"
#include "security/SysLogIn.h"
#include "ui/Events.h"
#include "ui/Modal.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

const QString reservedUser = QStringLiteral("KORVAL");

constexpr int pictureHeight = 150;

// The version is recorded whatever became of the statements: what is missing waits for the next one.
void sweepTill() {
    const velcro::schema::LiveSweep live(velcro::ui::pumpPaint);
    tb_Upgrade();
    tb_Update_TillDBVersion(gTillDBVersion);
}

} // namespace

TfrmCMN999::TfrmCMN999()
    : LogInForm(QStringLiteral("CMN999")) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::MSWindowsFixedSizeDialogHint);
    makePictures();
    addDatabases();
    addPickButton();
    edUserCode = addCode(QStringLiteral("edUserCode"), QStringLiteral("User Code"));
    edUserPswd = addPassword(QStringLiteral("edUserPswd"), QStringLiteral("Password"));
    onEnter(edUserPswd, [this] { edUserPswdEnter(); });
    makeButtons();
    for (auto* label : findChildren<QLabel*>()) {
        if (label->buddy() == cmbDatabase) {
            companyLabel_ = label;
            label->installEventFilter(this);
        }
    }
    addVersion();
}

void TfrmCMN999::makePictures() {
    imgBackground =
        new LogInPicture(QStringLiteral("background"), Qt::KeepAspectRatioByExpanding, this);
    imgBackground->setObjectName(QStringLiteral("imgBackground"));
    imgBackground->setFixedHeight(pictureHeight);
    ImgLogInLogo =
        new LogInPicture(QStringLiteral("suite-logo"), Qt::KeepAspectRatio, imgBackground);
    ImgLogInLogo->setObjectName(QStringLiteral("ImgLogInLogo"));
    body().insertWidget(0, imgBackground);
}

void TfrmCMN999::resizeEvent(QResizeEvent* event) {
    LogInForm::resizeEvent(event);
    ImgLogInLogo->setGeometry(QRect(0, 0, width(), pictureHeight).adjusted(24, 24, -24, -24));
}

void TfrmCMN999::addPickButton() {
    auto* pick = makeButton(*this, {.name = QStringLiteral("btnSelectDB"),
                                    .caption = QStringLiteral("Find Company"),
                                    .key = Qt::Key_F1,
                                    .handler = [this] { acSelectDB(); }});
    pick->setFocusPolicy(Qt::NoFocus);
    pick->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form().beside().control(pick, QStringLiteral("btnSelectDB"), QString());
}

void TfrmCMN999::makeButtons() {
    addButton({.name = QStringLiteral("btnOK"),
               .caption = QStringLiteral("OK"),
               .handler = [this] { btnOKClick(); },
               .role = ButtonFacts::Role::Main,
               .cap = QStringLiteral("ENTER")}); // in the password
    addButton({.name = QStringLiteral("btnCancel"),
               .caption = QStringLiteral("&Cancel"),
               .handler = [this] { finish(QStringLiteral("CANCEL")); }});
}

// A click on the combo's label opens the picker too.
bool TfrmCMN999::eventFilter(QObject* watched, QEvent* event) {
    if (watched == companyLabel_ && event->type() == QEvent::MouseButtonRelease) {
        velcro::ui::guarded([this] { acSelectDB(); });
    }
    return LogInForm::eventFilter(watched, event);
}

void TfrmCMN999::FormShow() {
    gTillDBVersion = requiredTillDBVersion;
    gMinVelDBVersion = requiredTillDBVersion;
    begin();
    LoadSettings();
    edUserCode->setFocus();
}

bool TfrmCMN999::LoadSettings() {
    if (!loadDatabases(Offer::CategoriesOfSeat)) {
        return false;
    }
    Load_WhiteLabel_Images();
    return true;
}

// Img02 wins over Img01: both stand for the background. What is no picture leaves the form's own.
bool TfrmCMN999::Load_WhiteLabel_Images() {
    return readRows(cData->vcLoadQuery1,
                    {
                        "SELECT [Img01], [Img02] ",
                        "  FROM VCSettings WITH (NOLOCK) ",
                        " WHERE [DisplayName] = " + QuotedStr(lastDatabase()),
                    },
                    dialogAndFalse("999999", sqlErrorOnTable("VCSettings"), unitName(),
                                   "Load_WhiteLabel_Images"),
                    [this](const Statement& row) {
                        if (row.IsEmpty()) {
                            return false;
                        }
                        for (const char* column : {"Img01", "Img02"}) {
                            QPixmap picture;
                            if (picture.loadFromData(row.FieldByName(column).AsBytes())) {
                                imgBackground->show(picture);
                            }
                        }
                        return true;
                    });
}

void TfrmCMN999::acSelectDB() {
    TfrmCMN999E picker;
    velcro::ui::runModal(picker);
    if (!picker.chosen().isEmpty()) {
        selectDatabase(picker.chosen());
        edUserCode->setFocus();
    }
}

void TfrmCMN999::edUserPswdEnter() {
    if (!edUserPswd->text().trimmed().isEmpty()) {
        btnOKClick();
    }
}

bool TfrmCMN999::entriesAccepted() {
    const QString database = cmbDatabase->currentText();
    if (edUserCode->text().trimmed().isEmpty()) {
        refuse(QStringLiteral("User Code Cannot be Blank"), edUserCode);
    } else if (edUserPswd->text().trimmed().isEmpty()) {
        refuse(QStringLiteral("Please enter your Password"), edUserPswd);
    } else if (database.isEmpty()) {
        refuse(QStringLiteral("Select the Log-In Company"), cmbDatabase);
    } else if (!sli_VerifyDatabase(database)) {
        refuse(QStringLiteral("Selected Database has NOT Settings Defined"), cmbDatabase);
    } else if (edUserCode->text().startsWith(reservedUser)) {
        refuse(QStringLiteral("The KORVAL user code is RESERVED"), edUserCode);
    } else {
        return true;
    }
    return false;
}

bool TfrmCMN999::tillDatabaseReady() {
    if (!tData->ConnectDB_TIL()) {
        return false;
    }
    tb_Check_Till_DBVersion();
    if (tillSchemaIsBehind()) {
        displayMessage(QStringLiteral("Warn"),
                       QStringLiteral("Local DB Upgrade in Progress.   Please wait....."));
        sweepTill();
        resetStatusBar();
    }
    return true;
}

void TfrmCMN999::btnOKClick() {
    BusyCursor busy;
    resetStatusBar();
    if (!entriesAccepted()) {
        return;
    }
    if (!tillDatabaseReady()) {
        busy.keep = true;
        return;
    }
    if (!sli_LogIn(edUserCode->text(), edUserPswd->text(), StrToInt(gDBaseRecID), QString(),
                   QString()) &&
        gLoginResult == QLatin1String("1")) {
        refuse(gErrorMsg, edUserPswd);
        return;
    }
    if (!passwordMayStay(edUserPswd->text(), [this] { return ChangePswd(); })) {
        goTo(edUserCode);
        return;
    }
    finish(QStringLiteral("OK"));
}

bool TfrmCMN999::ChangePswd() {
    return changePassword(edUserCode->text());
}
