#include "security/CMN999E.h"

#include "data/DataUCMN.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "ui/RowGrid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

TfrmCMN999E::TfrmCMN999E()
    : Screen(QStringLiteral("CMN999E"), QStringLiteral("Select Log-in Database "), nullptr) {
    resize(640, 520);
    edFind_ = new QLineEdit(this);
    edFind_->setObjectName(QStringLiteral("edFind"));
    edFind_->setAccessibleName(QStringLiteral("Find Company"));
    edFind_->setPlaceholderText(QStringLiteral("Find Company"));
    edFind_->setClearButtonEnabled(true);
    edFind_->hide();
    grid_ = new velcro::ui::RowGrid(this);
    grid_->setObjectName(QStringLiteral("grdDatabases"));
    grid_->setAccessibleName(QStringLiteral("Companies"));
    grid_->setColumns({{QStringLiteral("DisplayName"), QStringLiteral("Company")}});
    grid_->installEventFilter(this);
    body().setContentsMargins(12, 12, 12, 12);
    body().addWidget(edFind_);
    body().addWidget(grid_);
    bindKey(Qt::Key_Escape, this, &TfrmCMN999E::acExit);
    velcro::ui::connectHandler(grid_, &velcro::ui::RowGrid::rowChosen, this, &TfrmCMN999E::choose);
    velcro::ui::connectHandler(edFind_, &QLineEdit::textChanged, grid_,
                               &velcro::ui::RowGrid::filter);
    velcro::ui::connectHandler(edFind_, &QLineEdit::returnPressed, this, &TfrmCMN999E::choose);
}

void TfrmCMN999E::FormShow() {
    QStringList lines{
        "SELECT [DisplayName] FROM vcSettings WITH (NOLOCK) ",
        " WHERE [Suite] = " + QuotedStr(gSuite),
    };
    if (!gSvrCatCode.trimmed().isEmpty()) {
        lines << "   AND [SvrCatCode] = " + QuotedStr(gSvrCatCode);
    }
    lines << " ORDER BY [DisplaySeq] ";
    readRows(cData->VelmaraCommon, lines,
             dialogAndFalse("999999", sqlErrorOnTable("vcSettings"), unitName(), "FormShow"),
             [this](const Statement& databases) {
                 grid_->setRows(databases.rows());
                 grid_->setFocus();
             });
}

bool TfrmCMN999E::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grid_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool stays = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter ||
                           key->key() == Qt::Key_Escape;
        const QString typed = key->text();
        if (!typed.isEmpty() && typed.at(0).isPrint()) {
            showFindPanel(typed);
            return true;
        }
        if (!stays) {
            edFind_->show(); // and the key goes on to the grid
        }
    }
    return Screen::eventFilter(watched, event);
}

void TfrmCMN999E::showFindPanel(const QString& text) {
    edFind_->show();
    edFind_->setFocus();
    edFind_->setText(text);
}

void TfrmCMN999E::choose() {
    if (const auto row = grid_->currentResultRow()) {
        chosen_ = cellText(grid_->rowModel().rows(), *row, 0);
        accept();
    }
}

void TfrmCMN999E::acExit() {
    if (edFind_->isVisible()) {
        edFind_->clear();
        edFind_->hide();
        grid_->setFocus();
    } else {
        reject();
    }
}
