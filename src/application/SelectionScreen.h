// The pattern of the selection screens: a list whose main action is to pick a row.
#pragma once

#include "application/ListScreen.h"

class SelectionScreen : public ListScreen
{
    Q_OBJECT

public:
    SelectionScreen(ListFacts facts, Connection& connection, QWidget* parent);

protected:
    /// Copies the current record into the screen's public fields.
    virtual void takeRecord() = 0;
    /// What the button does with no current record.
    virtual void nothingToTake() {}

    void btnSelectClick();
    void rowChosen() override;
    bool raisesReadFailure() const override { return false; }
    QString field(const char* name) const;
    /// Takes the pictures of the keys off all buttons; the keys themselves go on working.
    void hideKeyCaps();

    velcro::ui::KeyButton* btnSelect = nullptr;
};
