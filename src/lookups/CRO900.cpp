#include "lookups/CRO900.h"

#include "data/Session.h"
#include "data/Settings.h"
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

// clang-format off
SelectionRead customerRead() {
    return {
        .whole = {
            "SELECT TOP(2000) [Account], [Name], [Cellphone], [Telephone], [Telephone2], [Contact], [IDNo], [DefBranch]",
            " FROM DEBMaster WITH (NOLOCK)"},
        .search = {
            "SELECT [Account], [Name], [Cellphone], [Telephone],  [Telephone2], [Contact], [IDNo], [DefBranch]",
            "  FROM DEBMaster WITH (NOLOCK)"},
        .scope = {
            " WHERE [CO] = " + QuotedStr(gCO),
            "   AND [Branch] = " + QuotedStr(gDebBranch)},
        .order = " ORDER BY [Name]",
    };
}
// clang-format on

} // namespace

TfrmCRO900::TfrmCRO900(QWidget* parent)
    : SelectionScreen(customerFacts(), customerRead(),
                      {{"Account", &xAccount},
                       {"Name", &xName},
                       {"IDNo", &xIDNo},
                       {"Cellphone", &xCellphone},
                       {"Telephone", &xTelephone},
                       {"Telephone2", &xTelephone2},
                       {"DefBranch", &xDefBranch}},
                      parent) {
    edSearchText->installEventFilter(this);
    // Seats that are worked by touch alone want no keyboard hints.
    if (sfvel_GetParam(QStringLiteral("TIL"), 62) == QLatin1String("Y")) {
        hideKeyCaps();
    }
}

void TfrmCRO900::beforeRead(const QString& xSQL) {
    btnRestoreGrid->setVisible(!xSQL.trimmed().isEmpty());
}

void TfrmCRO900::takeRecord() {
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
