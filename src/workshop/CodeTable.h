// What the lists of the workshop's code tables have in common: the codes of the company in one order,
// and a detail screen that adds, changes and removes one.
#pragma once

#include "screens/ListScreen.h"

struct CodeTableFacts
{
    QString unit;    // "CRO001"
    QString caption; // title of the window
    QString errorNo; // of the error dialog when the list cannot be read
    const char* table;
    const char* orderBy;                         // column
    std::vector<velcro::ui::GridColumn> columns; // in view order
    QString addCaption, updateCaption, deleteCaption;
};

class CodeTable : public MaintenanceList
{
    Q_OBJECT

protected:
    CodeTable(const CodeTableFacts& facts, QWidget* parent);

    QStringList statementLines(const QString& xSQL) const override;

private:
    QString table_;
    QString orderBy_;
};

/// A list of codes whose rows are worked on in this detail screen.
template <typename Detail>
class CodeTableWith : public CodeTable
{
protected:
    using CodeTable::CodeTable;

    void openDetail(int xFunction, int xRecID) override { showDetail<Detail>(xFunction, xRecID); }
};
