// The pattern of the selection screens: a list whose main action is to pick a row.
#pragma once

#include "screens/ListScreen.h"

#include <variant>

/// A column of the query and the public field that it is handed back in.
struct PickedField
{
    const char* column;
    std::variant<QString*, int*, double*> field;
};

class SelectionScreen : public ListScreen
{
    Q_OBJECT

public:
    /// The picked fields are blank and 0 when the screen opens, and until a row is selected.
    SelectionScreen(ListFacts facts, std::vector<PickedField> picked, QWidget* parent);

protected:
    /// The picked fields are those of the current record; false: the screen stays open.
    virtual bool rowPicked() { return true; }
    /// The select button with no current record.
    virtual void nothingToPick() { reject(); }

    ButtonFacts selectButton(const QString& caption = QStringLiteral("Select"),
                             const QString& name = QStringLiteral("btnSelect"));
    /// Fills the picked fields from the current row of this query, which has their columns too.
    void pickFrom(const Statement& row);
    void btnSelectClick();

    void rowChosen() override;
    void FormShow() override;

private:
    std::vector<PickedField> picked_;
};
