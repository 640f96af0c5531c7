// One page of the technical reference: a grid with a footer that searches in it.
#pragma once

#include "ui/RowSetModel.h"

#include <QStringList>
#include <QWidget>

class QLineEdit;

namespace velcro::ui {
class RowGrid;
}

class ReferencePage : public QWidget
{
    Q_OBJECT

public:
    /// headings: of the columns, in their order; a blank one is kept as a narrow gap.
    ReferencePage(const QString& gridName, const QString& title, const QStringList& headings,
                  QWidget* parent);

    const QString& title() const { return title_; }

    void addRow(const QStringList& cells);
    bool hasRows() const { return !rows_.isEmpty(); }
    /// Shows the rows that were added.
    void showRows();

    bool footerIsOpen() const;
    void flipFooter();
    void closeFooter();

private:
    QString title_;
    QStringList fields_;
    QList<QStringList> rows_;
    velcro::ui::RowGrid* grid_ = nullptr;
    QLineEdit* edSearch_ = nullptr;
};
