#include "lookups/CRO900.h"

#include "application/Settings.h"
#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"

#include <QFocusEvent>
#include <QLineEdit>

namespace {

ListFacts customerFacts() {
    return {
        .unit = QStringLiteral("CRO900"),
        .caption = QStringLiteral("Debtors: Customer Selection"),
        .errorNo = QStringLiteral("900-001"),
        .errorText = QStringLiteral("SQL Error on Table: DEBMaster :-"),
        .columns =
            {
                {"Account"},
                {"Name", "Debtors Name"},
                {"Contact"},
                {"Cellphone"},
                {"Telephone"},
                {"Telephone2", "Telephone #2"},
                {"RecID", {}, false},
                {"IDNo", "ID Number", false},
                {"DefBranch", "Default Branch", false},
            },
        .searchFragments =
            {
                QStringLiteral("AND [Account] LIKE '%"),
                QStringLiteral(" OR [Name] LIKE '%"),
                QStringLiteral(" OR [IDNo] LIKE '%"),
                QStringLiteral(" OR [Cellphone] LIKE '%"),
            },
        .searchEnd = QStringLiteral(" ORDER BY [Name]"),
    };
}

} // namespace

TfrmCRO900::TfrmCRO900(QWidget* parent)
    : SelectionScreen(customerFacts(), gData->Velmara, parent) {
    edSearchText->installEventFilter(this);
    // Seats that are worked by touch alone want no keyboard hints.
    if (sfvel_GetParam(QStringLiteral("TIL"), 62) == QLatin1String("Y")) {
        hideKeyCaps();
    }
}

void TfrmCRO900::FormShow() {
    for (auto* field :
         {&xAccount, &xName, &xIDNo, &xCellphone, &xTelephone, &xTelephone2, &xDefBranch}) {
        field->clear();
    }
    SelectionScreen::FormShow();
}

void TfrmCRO900::beforeRead(const QString& xSQL) {
    btnRestoreGrid->setVisible(!xSQL.trimmed().isEmpty());
}

// clang-format off
QStringList TfrmCRO900::statementLines(const QString& xSQL) const {
    const QStringList scope = {
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gDebBranch),
    };
    if (xSQL.trimmed().isEmpty()) {
        return QStringList{
            "SELECT TOP(2000) [Account], [Name], [Cellphone], [Telephone], [Telephone2], [Contact], [IDNo], [DefBranch]",
            " FROM DEBMaster WITH (NOLOCK)"} + scope + QStringList{
            " ORDER BY [Name]"};
    }
    return QStringList{
        "SELECT [Account], [Name], [Cellphone], [Telephone],  [Telephone2], [Contact], [IDNo], [DefBranch]",
        "  FROM DEBMaster WITH (NOLOCK)"} + scope + QStringList{
        xSQL};
}
// clang-format on

void TfrmCRO900::takeRecord() {
    xAccount = field("Account");
    xName = field("Name");
    xIDNo = field("IDNo");
    xCellphone = field("Cellphone");
    xTelephone = field("Telephone");
    xTelephone2 = field("Telephone2");
    xDefBranch = field("DefBranch");
    xDisplay = xAccount + QStringLiteral(" - ") + xName;
}

// Leaving the search text by Tab or mouse searches as well. Esc hides the panel, and that is no
// leaving.
bool TfrmCRO900::eventFilter(QObject* watched, QEvent* event) {
    if (watched == edSearchText && event->type() == QEvent::FocusOut && edSearchText->isVisible()) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
            reason == Qt::MouseFocusReason) {
            QMetaObject::invokeMethod(
                this, [this] { velcro::ui::guarded([this] { searchWasLeft(); }); },
                Qt::QueuedConnection);
        }
    }
    return SelectionScreen::eventFilter(watched, event);
}

// A click on the search button has searched by itself and hidden the panel.
void TfrmCRO900::searchWasLeft() {
    if (pnlSearch->isVisible()) {
        btnSearchClick();
    }
}
