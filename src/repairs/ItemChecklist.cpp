#include "repairs/ItemChecklist.h"

#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "screens/SysFuncGlobal.h"

using namespace Qt::Literals::StringLiterals;
using velcro::ui::ChecklistGrid;

const ChecklistFacts intakeChecklist = {.heading = "Intake Code",
                                        .nothing = u"There are no intakes to tick. The workshop "
                                                   "keeps them among its system codes."_s,
                                        .codeType = "I",
                                        .query = &TgData::vMstQuery1,
                                        .table = "CRORepItmIntake",
                                        .codeColumn = "IntakeCode",
                                        .loadErrorNo = "101A-001",
                                        .loadRoutine = "LoadIntakesGrid",
                                        .ticksErrorNo = "101A-004"};
const ChecklistFacts faultChecklist = {.heading = "Fault Code",
                                       .nothing = u"There are no faults to tick. The workshop "
                                                  "keeps them among its system codes."_s,
                                       .codeType = "F",
                                       .query = &TgData::vMstQuery2,
                                       .table = "CRORepItmFaults",
                                       .codeColumn = "FaultCode",
                                       .loadErrorNo = "101A-002",
                                       .loadRoutine = "LoadFaultsGrid",
                                       .ticksErrorNo = "101A-005"};

QWidget* ItemChecklist::makeGrid(const ChecklistFacts& facts) {
    constexpr int noteLimit = 100; // of the columns Notes
    auto* grid =
        new ChecklistGrid({{"Code", facts.heading}, {"Description"}, {"Notes"}, noteLimit});
    grid->rowModel().setCellReader(cellText);
    return grid;
}

bool ItemChecklist::load(const QString& unit) {
    sfg_ClearGrid(grid_);
    return readRows(gData.get()->*facts_.query,
                    {
                        "SELECT * FROM CROCodeMaster WITH (NOLOCK)",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [CodeType] = " + QuotedStr(facts_.codeType),
                        " ORDER BY [Code]",
                    },
                    dialogAndFalse(facts_.loadErrorNo, u"SQL Error: CROCodeMaster\r"_s, unit,
                                   facts_.loadRoutine),
                    [this](const Statement& codes) {
                        grid_.setRows(codes.rows());
                        grid_.setEmptyText(codes.IsEmpty() ? facts_.nothing : QString());
                    });
}

bool ItemChecklist::tickStored(const ItemKey& item, const QString& unit) {
    const QString table = facts_.table;
    const QString column = facts_.codeColumn;
    return readRows(
        gData.get()->*facts_.query,
        QStringList{"SELECT * FROM " + table + " WITH (NOLOCK)"} + item.where() +
            QStringList{" ORDER BY [" + column + "]"},
        dialogAndFalse(facts_.ticksErrorNo, "SQL Error: " + table + "\r", unit, u"ExtractData"_s),
        [&](Statement& rows) {
            QStringList codes;
            for (; !rows.Eof(); rows.Next()) {
                codes << rows.FieldByName(column).AsString();
            }
            grid_.tick(codes);
        });
}

void ItemChecklist::addTicks(const ItemKey& item) {
    const QByteArray columns = "["_ba + facts_.codeColumn + "], [Notes]";
    for (const auto& [code, note] : grid_.ticked()) {
        sfg_AddSQL(item.insertion(facts_.table, columns, {code, note}), {});
    }
}

void ItemChecklist::addDeletion(const ItemKey& item) const {
    sfg_AddSQL2(item.deletion(facts_.table), {});
}
