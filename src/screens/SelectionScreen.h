// The pattern of the selection screens: a list whose main action is to pick a row.
#pragma once

#include "screens/ListScreen.h"

/// The statement of a selection, each part line by line. The whole list is capped so that it opens
/// quickly; a search may have a read of its own.
struct SelectionRead
{
    QStringList whole;  // SELECT and FROM of the whole list
    QStringList search; // SELECT and FROM of a search
    QStringList scope;  // WHERE, for both
    QString order;      // of the whole list; a search brings its own
};

/// A column of the query and the public field that it is handed back in.
struct PickedField
{
    const char* column;
    QString* field;
};

class SelectionScreen : public ListScreen
{
    Q_OBJECT

public:
    SelectionScreen(ListFacts facts, SelectionRead read, std::vector<PickedField> picked,
                    QWidget* parent);

protected:
    /// Copies what the picked fields leave out of the current record.
    virtual void takeRecord() = 0;
    /// What the button does with no current record.
    virtual void nothingToTake() {}

    void btnSelectClick();
    void rowChosen() override;
    bool raisesReadFailure() const override { return false; }
    QStringList statementLines(const QString& xSQL) const override;
    /// Starts with blank fields.
    void FormShow() override;
    /// Takes the pictures of the keys off all buttons; the keys themselves go on working.
    void hideKeyCaps();

    velcro::ui::KeyButton* btnSelect = nullptr;

private:
    SelectionRead read_;
    std::vector<PickedField> picked_;
};
