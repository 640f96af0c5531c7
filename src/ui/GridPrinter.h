// Prints a grid as the user sees it: its columns in their order, its rows in theirs.
#pragma once

#include <QFont>
#include <QMarginsF>
#include <QStringList>

class QPrinter;

namespace velcro::ui {

class RowGrid;

class GridPrinter
{
public:
    explicit GridPrinter(const RowGrid& grid);

    // The title on top of every page. "[Page #]" stands for the page's number.
    QStringList leftTitle;
    QStringList rightTitle;
    QFont titleFont;
    QMarginsF marginsMm{10, 20, 10, 10};
    double headerHeightMm = 5; // room between title and rows

    /// Long work shows its progress and can be cancelled, which leaves no file; a preview is made
    /// without.
    void print(QPrinter& printer) const;

private:
    const RowGrid* grid_;
};

} // namespace velcro::ui
