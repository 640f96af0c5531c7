#include "repairs/CRO100.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/CRO100A.h"
#include "ui/Modal.h"

using velcro::ui::connectHandler;
using velcro::ui::GridColumn;
using velcro::ui::KeyButton;

namespace {

std::vector<GridColumn> registerColumns() {
    std::vector<GridColumn> columns = {
        {"Status"},
        {"CRONo", "Order #No"},
        {"TranDate", "Date"},
        {"Account"},
        {"Name"},
        {"Cellphone"},
        {"EMail"},
        {"Reference"},
        {"ReceiveDate", "Received Date"},
        {"ReceiveMthd", "Received Method"},
        {"ReceiveItems", "Received Items"},
    };
    for (const char* hidden :
         {"RecID", "CO", "Branch", "Address1", "Address2", "Address3", "Address4", "PostCode",
          "Telephone1", "Telephone2", "Contact", "DTODate", "DTOTime", "DTOUser", "DTOMacID"}) {
        columns.push_back({QString::fromLatin1(hidden), {}, false});
    }
    return columns;
}

ListFacts registerFacts() {
    return {
        .unit = QStringLiteral("CRO100"),
        .caption = QStringLiteral("Workshop Centre: Repair Orders Management"),
        .errorNo = QStringLiteral("100-001"),
        .errorText = QStringLiteral("SQL Error reading object \"CRORepMst\". Details: "),
        .columns = registerColumns(),
        // Without brackets only the first term is bound to the company and branch: a match on the
        // others is wanted from everywhere.
        .searchFragments =
            {
                QStringLiteral("AND [CRONo] LIKE '%"),
                QStringLiteral(" OR [Account] LIKE '%"),
                QStringLiteral(" OR [Name] LIKE '%"),
                QStringLiteral(" OR [Cellphone] LIKE '%"),
                QStringLiteral(" OR [Reference] LIKE '%"),
            },
    };
}

} // namespace

TfrmCRO100::TfrmCRO100(QWidget* parent)
    : MaintenanceList(registerFacts(), gData->Velmara, parent) {
    auto* btnLines = addOption(QStringLiteral("btnLines"), QStringLiteral("Order Items"),
                               QStringLiteral("ENTER"));
    btnLines->setEnabled(bool(gShowRepairOrderItems));
    connectHandler(btnLines, &KeyButton::clicked, this, [this] { btnLinesClick(); });
    setMainButton(btnLines);
    addMaintenance({QStringLiteral("New* Order"), QStringLiteral("Edit Order"),
                    QStringLiteral("Remove Order")},
                   QStringLiteral("CTRL-ENTER"));
    addSearch(QStringLiteral("CTRL-S"));
    addRestore(QStringLiteral("CTRL-R"), QKeySequence(Qt::CTRL | Qt::Key_R));
    addPrint();
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_Return), btnUpdate);
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_Enter), btnUpdate);
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_S), this, [this] { btnSearchClick(); });
}

QStringList TfrmCRO100::statementLines(const QString& xSQL) const {
    QStringList lines = {
        "SELECT * FROM CRORepMst WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
    };
    if (!xSQL.isEmpty()) {
        lines << xSQL;
    }
    return lines << " ORDER BY [CRONo] DESC";
}

void TfrmCRO100::openDetail(int xFunction, int xRecID) {
    TfrmCRO100A detail(this);
    detail.xFunction = xFunction;
    detail.xRecID = xRecID;
    velcro::ui::runModal(detail);
}

void TfrmCRO100::btnLinesClick() {
    showForCurrent([this](int xRecID) {
        const auto text = [this](const char* field) {
            return query().FieldByName(QString::fromLatin1(field)).AsString();
        };
        gShowRepairOrderItems(this, {xRecID, text("CRONo"), text("Account"), text("Name")});
    });
}
