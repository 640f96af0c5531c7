#include "workshop/CodeTable.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

ListFacts listFacts(const CodeTableFacts& facts) {
    return {
        .unit = facts.unit,
        .caption = facts.caption,
        .failure = {facts.errorNo, u"SQL Error reading object \"%1\". Details: "_s.arg(
                                       QLatin1String(facts.table))},
        .columns = facts.columns,
        .hidden = {{"CO", "Company"}, {"RecID"}},
    };
}

} // namespace

CodeTable::CodeTable(const CodeTableFacts& facts, QWidget* parent)
    : MaintenanceList(listFacts(facts), gData->Velmara, parent)
    , table_(QLatin1String(facts.table))
    , orderBy_(QLatin1String(facts.orderBy)) {
    setButtons({
        .options = {addButton(facts.addCaption), updateButton(facts.updateCaption),
                    deleteButton(facts.deleteCaption)},
        .functions = {restoreButton(), printButton()},
    });
}

QStringList CodeTable::statementLines(const QString& /*xSQL*/) const {
    return {
        "SELECT * FROM " + table_ + " WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        " ORDER BY [" + orderBy_ + "]",
    };
}
