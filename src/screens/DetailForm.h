// The form of a detail screen: builds the controls that the screen states, and reads and fills them
// as columns of the row.
#pragma once

#include "screens/DetailFacts.h"
#include "ui/FormBuilder.h"

#include <vector>

class Statement;

/// What goes into the column of a control: the text of an edit or memo, the code of a combo before its
/// first "-", an amount as plain decimal text, "Y" or "N" of a toggle.
QString fieldValue(const QWidget& control);

class DetailForm
{
public:
    /// Builds the controls on the page. Throws VelmaraError when INSERT or UPDATE name a column that
    /// nothing gives.
    DetailForm(const DetailFacts& facts, QWidget* page);

    struct Field
    {
        const DetailField* stated;
        QWidget* control;
    };
    /// The controls in reading order.
    const std::vector<Field>& fields() const { return fields_; }

    /// The control of this name. Throws VelmaraError when there is none.
    QWidget& control(const QString& name) const;

    /// Combos on their first entry, dates that begin with it on the server's day.
    void setDefaults();
    /// Brings a row into the controls that have a column in it. A blank code leaves its combo.
    void load(const Statement& row);

    /// "INSERT INTO ..." and "UPDATE ... WHERE [RecID] = ..." with the values of now. Throw when
    /// the date of the stamp cannot be read.
    QString insertText() const;
    QString updateText(int xRecID) const;
    /// What the column gets.
    QString value(const QString& column) const;

private:
    static QWidget* build(velcro::ui::FormBuilder& form, const DetailField& stated);
    static QWidget* buildEdit(velcro::ui::FormBuilder& form, const DetailField& stated);
    const ColumnValue* findValue(const QString& column) const;
    const Field* findField(const QString& column) const;

    const DetailFacts& facts_;
    std::vector<Field> fields_;
};
