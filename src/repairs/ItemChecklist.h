// A checklist of an item: the workshop's codes of one kind, which of them were found on the item, and
// the rows that keep them.
#pragma once

#include "data/DataUVEL.h"
#include "repairs/ItemKey.h"
#include "ui/ChecklistGrid.h"

/// What the two checklists of an item differ in.
struct ChecklistFacts
{
    const char* heading;      // of the column of codes
    QString nothing;          // said where the workshop has no codes
    const char* codeType;     // of CROCodeMaster
    Statement TgData::*query; // both reads go through it
    const char* table;        // one row for each code that is ticked
    const char* codeColumn;   // of that table
    const char* loadErrorNo;  // of the error dialogs
    const char* loadRoutine;
    const char* ticksErrorNo;
};
extern const ChecklistFacts intakeChecklist;
extern const ChecklistFacts faultChecklist;

class ItemChecklist
{
public:
    ItemChecklist(const ChecklistFacts& facts, velcro::ui::ChecklistGrid& grid)
        : facts_(facts)
        , grid_(grid) {}

    static QWidget* makeGrid(const ChecklistFacts& facts);

    /// Shows the codes of the company without a tick. False when they cannot be read, which is
    /// shown in a dialog.
    bool load(const QString& unit);
    /// Ticks what the item has. A code that the workshop has no more is passed over, and the notes
    /// of the rows are not brought back: the list shows the workshop's own. False as above.
    bool tickStored(const ItemKey& item, const QString& unit);

    /// Ends what is being typed into a note.
    void endEdit() { grid_.endEdit(); }
    /// Appends a row for each tick, with the note as it is shown, to the first buffer.
    void addTicks(const ItemKey& item);
    /// Appends the deletion of the item's rows to the second buffer.
    void addDeletion(const ItemKey& item) const;

private:
    const ChecklistFacts& facts_;
    velcro::ui::ChecklistGrid& grid_;
};
