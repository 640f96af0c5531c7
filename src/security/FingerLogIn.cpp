#include "security/FingerLogIn.h"

#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "security/SysLogIn.h"
#include "ui/Handler.h"
#include "ui/Icons.h"
#include "ui/PictureBox.h"
#include "ui/ScreenFit.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using velcro::fingerprint::Print;

namespace {

constexpr int pictureSize = 256; // pixels, as readers send
constexpr double largeText = 1.6;

QLabel* addLabel(QVBoxLayout& into, const QString& name, const QString& text, double scale) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    into.addWidget(label);
    return label;
}

/// What stands where the finger's picture will be.
QImage emptyPlace() {
    constexpr int iconSize = 128;
    QImage place(pictureSize, pictureSize, QImage::Format_ARGB32_Premultiplied);
    place.fill(Qt::transparent);
    QPainter painter(&place);
    velcro::ui::icon(QStringLiteral("fingerprint"), QColor(Qt::gray))
        .paint(&painter, QRect((pictureSize - iconSize) / 2, (pictureSize - iconSize) / 2, iconSize,
                               iconSize));
    return place;
}

} // namespace

FingerLogIn::FingerLogIn(const QString& unit, velcro::fingerprint::Family family,
                         const QString& table)
    : LogInForm(unit)
    , table_(table) {
    if (velcro::fingerprint::readerFactory) {
        reader_ = velcro::fingerprint::readerFactory(family);
    }
    makeFinger();
    addDatabases();
    velcro::ui::connectHandler(cmbDatabase, &QComboBox::currentIndexChanged, this, [this] {
        if (reader_) {
            reader_->enrolledChanged();
        }
    });
    addButton({.name = QStringLiteral("btnAbort"),
               .caption = QStringLiteral("Cancel"),
               .key = Qt::Key_Escape,
               .handler = [this] { btnAbortClick(); }});
    addVersion();
}

FingerLogIn::~FingerLogIn() = default;

void FingerLogIn::makeFinger() {
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    finger_ = new velcro::ui::PictureBox(QStringLiteral("imgFinger"), this);
    finger_->setFixedSize(pictureSize, pictureSize);
    finger_->setImage(emptyPlace());
    auto* words = new QVBoxLayout;
    words->setSpacing(14);
    words->addStretch();
    addLabel(*words, QStringLiteral("lblPlace"), QStringLiteral("Place your Finger on the Device"),
             largeText);
    addLabel(*words, QStringLiteral("lblOr"), QStringLiteral("OR"), 1);
    addLabel(*words, QStringLiteral("lblManual"), QStringLiteral("Cancel to Log-in Manually"), 1);
    addLabel(*words, QStringLiteral("lblSensorSN"), QString(), 1);
    words->addStretch();
    row->addWidget(finger_);
    row->addSpacing(24);
    row->addLayout(words);
    row->addStretch();
    body().insertWidget(0, new velcro::ui::ScrollPage(page, this));
}

void FingerLogIn::FormShow() {
    begin();
    LoadSettings();
    connectSensor();
}

bool FingerLogIn::LoadSettings() {
    return loadDatabases(Offer::AllOfSuite);
}

bool FingerLogIn::ChangePswd() {
    return changePassword(user().code);
}

void FingerLogIn::btnAbortClick() {
    finish(QStringLiteral("CANCEL"));
}

void FingerLogIn::done(int result) {
    if (reader_) {
        reader_->close();
    }
    LogInForm::done(result);
}

bool FingerLogIn::openReader() {
    return reader_ && reader_->open(events());
}

velcro::fingerprint::ReaderEvents FingerLogIn::events() {
    const auto handler = [](auto body) {
        return
            [body](const auto&... arguments) { velcro::ui::guarded([&] { body(arguments...); }); };
    };
    return {.touched = handler([this] {
                displayMessage(QStringLiteral("Info"),
                               QStringLiteral("Your finger is being looked up. Please wait....."));
            }),
            .captured = handler([this](const std::shared_ptr<Print>& print) { captured(*print); }),
            .featureInfo = handler([this](int quality) { scanned(quality); }),
            .imageReceived = handler([this](const QImage& image) { finger_->setImage(image); }),
            .lost = handler([this](const QString& reason) {
                displayError(QStringLiteral("Fingerprint reader LOST: ") + reason);
            }),
            .enrolled = [this] { return enrolled(); }};
}

bool FingerLogIn::databaseReady() {
    if (cmbDatabase->currentText().isEmpty()) {
        refuse(QStringLiteral("Select the Log-In Company"), cmbDatabase);
        return false;
    }
    if (!sli_VerifyDatabase(cmbDatabase->currentText())) {
        displayError(QStringLiteral("Selected Database has NOT Settings Defined"));
        return false;
    }
    sli_DBaseRecID = StrToInt(gDBaseRecID);
    return sli_DBConnect();
}

// A finger that comes while another is being worked on, or while its user is asked for a new
// password, is not taken.
void FingerLogIn::captured(const Print& print) {
    if (busy_) {
        return;
    }
    const QScopedValueRollback working(busy_, true);
    const BusyCursor cursor;
    if (!databaseReady() || !identify(print)) {
        return;
    }
    gData->Disconnect_VEL(); // the log-in connects by itself
    const User who = user();
    if (!sli_LogIn(who.code, who.password, StrToInt(gDBaseRecID), QString(), QString())) {
        logInRefused();
    } else if (passwordMayStay(who.password, [this] { return ChangePswd(); })) {
        finish(QStringLiteral("OK"));
    }
}

// On a connection of its own and without a word: whatever is wrong is told when the finger comes.
QList<QByteArray> FingerLogIn::enrolled() const {
    QList<QByteArray> templates;
    try {
        Statement database(cData->VelmaraCommon);
        database.Open({"SELECT * FROM vcSettings WITH (NOLOCK) ",
                       " WHERE [DisplayName] = " + QuotedStr(cmbDatabase->currentText())});
        if (database.IsEmpty()) {
            return templates;
        }
        const auto setting = [&](const char* column) {
            return database.FieldByName(QLatin1String(column)).AsString();
        };
        Connection suite({});
        suite.setConnectString(sfg_BuildUNIConnectionStr(
            setting("DBHost"), setting("DBDBase"), setting("DBUser"), setting("DBPswd"),
            setting("DBConnector"), setting("DBOnAzure")));
        suite.Connect();
        Statement rows(suite);
        rows.Open({"SELECT * FROM " + table_ + " WITH (NOLOCK)"});
        for (; !rows.Eof(); rows.Next()) {
            templates.append(rows.FieldByName("FPData").AsBytes());
        }
    } catch (const std::exception& error) {
        qWarning("Templates of fingers: %s", error.what());
    }
    return templates;
}
