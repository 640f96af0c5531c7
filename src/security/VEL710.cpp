#include "security/VEL710.h"

#include "data/DataUCMN.h"
#include "data/Settings.h"
#include "data/StatementText.h"
#include "security/ReferencePage.h"
#include "ui/FormBuilder.h"
#include "ui/Modal.h"
#include "ui/ScreenFit.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int heightWithoutPages = 220;

// The settings are looked up by the code as the row has it: "BR" is no group, so those rows show
// no setting.
QString moduleShown(const QString& code) {
    if (code == QLatin1String("CO")) {
        return QStringLiteral("COMPANY");
    }
    return code == QLatin1String("BR") ? QStringLiteral("BRANCH") : code;
}

QString accessShown(const QString& option) {
    if (option == QLatin1String("Y")) {
        return QStringLiteral("Yes");
    }
    if (option == QLatin1String("N")) {
        return QStringLiteral("No");
    }
    return option == QLatin1String("S") ? QStringLiteral("Supervisor Required") : QString();
}

} // namespace

TfrmVEL710::TfrmVEL710()
    : Screen(QStringLiteral("VEL710"), QStringLiteral("System Parameters and Access Codes"),
             nullptr) {
    resize(860, 640);
    auto* header = new QWidget(this);
    velcro::ui::FormBuilder form(header);
    edFormCode = form.edit(QStringLiteral("edFormCode"), QStringLiteral("Form"),
                           {.width = 10, .readOnly = true});
    edDescription = form.edit(QStringLiteral("edDescription"), QStringLiteral("Description"),
                              {.width = 52, .readOnly = true});
    memNotes = form.memo(QStringLiteral("memNotes"), QStringLiteral("Notes"), 3, 52);
    memNotes->setReadOnly(true);
    pages_ = new QTabWidget(this);
    pages_->setObjectName(QStringLiteral("pgReference"));
    pages_->setAccessibleName(QStringLiteral("Reference"));
    btnSearch = makeButton(*this, {.name = QStringLiteral("btnSearch"),
                                   .caption = QStringLiteral("Search in Grid"),
                                   .handler = [this] { btnSearchClick(); }});
    auto* btnClose = makeButton(*this, {.name = QStringLiteral("btnClose"),
                                        .caption = QStringLiteral("Close"),
                                        .key = Qt::Key_Escape,
                                        .handler = [this] { btnCloseClick(); }});
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(12, 8, 12, 12);
    buttons->addWidget(btnSearch);
    buttons->addStretch();
    buttons->addWidget(btnClose);
    body().addWidget(new velcro::ui::ScrollPage(header, this));
    body().addWidget(pages_, 1);
    body().addLayout(buttons);
}

void TfrmVEL710::FormShow() {
    edFormCode->setText(xFormCode);
    Statement query(cData->VelmaraCommon);
    query.Open(
        {"SELECT * FROM vcHelpHdr WITH (NOLOCK) ", " WHERE [FormCode] = " + QuotedStr(xFormCode)});
    if (query.IsEmpty()) {
        showNothing();
        return;
    }
    edDescription->setText(query.FieldByName("Description").AsString());
    memNotes->setPlainText(query.FieldByName("Notes").AsString());
    loadPages();
}

void TfrmVEL710::showNothing() {
    edDescription->setText(
        QStringLiteral("** There are NO Technical Reference Notes for this Form **"));
    edDescription->setStyleSheet(QStringLiteral("background: #ffeca8; color: #1d2c36;"));
    memNotes->hide();
    pages_->hide();
    btnSearch->hide();
    resize(width(), heightWithoutPages);
}

void TfrmVEL710::loadPages() {
    auto* access =
        new ReferencePage(QStringLiteral("grdAccess"), QStringLiteral("Access Codes"),
                          {"Module", "Access No.", "Description", "", "Your Setting"}, pages_);
    auto* params =
        new ReferencePage(QStringLiteral("grdParams"), QStringLiteral("Parameters"),
                          {"Module", "Param No.", "Description", "", "Current Setting"}, pages_);
    auto* shortcuts = new ReferencePage(QStringLiteral("grdShortcut"), QStringLiteral("Shortcuts"),
                                        {"Module", "Shortcut Key", "Description"}, pages_);
    Statement query(cData->VelmaraCommon);
    query.Open({
        "SELECT * FROM vcHelpDetl WITH (NOLOCK) ",
        " WHERE [FormCode] = " + QuotedStr(xFormCode),
        " ORDER BY [Type], [ParamModCode] ",
    });
    for (; !query.Eof(); query.Next()) {
        const QString type = query.FieldByName("Type").AsString();
        const QString code = query.FieldByName("ParamModCode").AsString();
        const QString notes = query.FieldByName("Notes").AsString();
        const QString number = query.FieldByName("Num").AsString();
        if (type == QLatin1String("A")) {
            access->addRow({moduleShown(code), number, notes, QString(),
                            accessShown(sfvel_GetAccess(code, number.toInt()))});
        } else if (type == QLatin1String("P")) {
            params->addRow({moduleShown(code), number, notes, QString(),
                            sfvel_GetParam(code, number.toInt())});
        } else if (type == QLatin1String("S")) {
            shortcuts->addRow({moduleShown(code), query.FieldByName("Shortcut").AsString(), notes});
        }
    }
    for (ReferencePage* page : {access, params, shortcuts}) {
        page->showRows();
        pages_->addTab(page, page->title());
        if (page->hasRows() && !activePage()->hasRows()) {
            pages_->setCurrentWidget(page);
        }
    }
}

ReferencePage* TfrmVEL710::activePage() const {
    return qobject_cast<ReferencePage*>(pages_->currentWidget());
}

void TfrmVEL710::btnSearchClick() {
    activePage()->flipFooter();
}

// Closes the footers that are open first, on whichever page, and the form only when there is none.
void TfrmVEL710::btnCloseClick() {
    bool closed = false;
    for (int i = 0; i < pages_->count(); ++i) {
        auto* page = qobject_cast<ReferencePage*>(pages_->widget(i));
        if (page->footerIsOpen()) {
            page->closeFooter();
            closed = true;
        }
    }
    if (!closed) {
        reject();
    }
}

void sfvel_TechHelp(const QString& xFormCode) {
    TfrmVEL710 form;
    form.xFormCode = xFormCode;
    velcro::ui::runModal(form);
}
