// Prints a grid as the user sees it: its columns in their order, its rows in theirs.
#pragma once

#include <QFont>
#include <QMarginsF>
#include <QStringList>

#include <vector>

class QPainter;
class QPrinter;
class QRectF;
class QWidget;

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

    void print(QPrinter& printer) const;
    /// Shows the pages before they are printed.
    void preview(QWidget* parent) const;

private:
    struct Column
    {
        int index;
        double left;
        double width;
    };

    std::vector<Column> placeColumns(double pageWidth) const;
    double printTitle(QPainter& painter, const QRectF& page, int pageNumber) const;
    void printHeadings(QPainter& painter, const std::vector<Column>& columns, double top,
                       double height) const;
    void printRow(QPainter& painter, const std::vector<Column>& columns, int row, double top,
                  double height) const;

    const RowGrid* grid_;
};

} // namespace velcro::ui
