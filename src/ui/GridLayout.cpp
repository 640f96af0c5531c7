#include "ui/GridLayout.h"

#include "ui/RowGrid.h"

#include <QHeaderView>
#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace velcro::ui {

namespace {

constexpr auto section = "[Grid]"_L1;
constexpr auto version = "Version=1"_L1;
constexpr auto columnKey = "Column."_L1;
constexpr auto sortKey = "Sort="_L1;
constexpr int narrowestStored = 20; // a column that nobody can take hold of any more is lost
constexpr int widestStored = 2000;
constexpr qsizetype longestText = 64 * 1024; // of any layout that was ever written, by far

struct StoredColumn
{
    QString name;
    bool shown = true;
    int width = 0;
};

struct StoredLayout
{
    std::vector<StoredColumn> columns;
    QString sortName;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
};

/// "Name=first,second" after its key.
std::optional<std::array<QString, 3>> parts(QStringView line) {
    const auto equals = line.lastIndexOf(u'=');
    const auto comma = line.lastIndexOf(u',');
    if (equals < 1 || comma < equals) {
        return std::nullopt;
    }
    return std::array{line.left(equals).toString(),
                      line.mid(equals + 1, comma - equals - 1).toString(),
                      line.mid(comma + 1).toString()};
}

std::optional<StoredColumn> readColumn(QStringView line) {
    const auto read = parts(line);
    bool isNumber = false;
    const int width = read ? (*read)[2].toInt(&isNumber) : 0;
    if (!isNumber || ((*read)[1] != "shown"_L1 && (*read)[1] != "hidden"_L1)) {
        return std::nullopt;
    }
    return StoredColumn{(*read)[0], (*read)[1] == "shown"_L1,
                        std::clamp(width, narrowestStored, widestStored)};
}

std::optional<StoredLayout> readLayout(const QString& text) {
    if (text.size() > longestText) {
        return std::nullopt;
    }
    QStringList lines = text.split(u'\n');
    for (auto& line : lines) {
        line = line.trimmed();
    }
    if (lines.value(0) != section || lines.value(1) != version) {
        return std::nullopt;
    }
    StoredLayout layout;
    for (const QStringView line : lines) {
        if (line.startsWith(columnKey)) {
            if (auto column = readColumn(line.mid(columnKey.size()))) {
                layout.columns.push_back(*std::move(column));
            }
        } else if (line.startsWith(sortKey)) {
            const auto comma = line.lastIndexOf(u',');
            layout.sortName = line.mid(sortKey.size(), comma - sortKey.size()).toString();
            layout.sortOrder =
                line.mid(comma + 1) == "descending"_L1 ? Qt::DescendingOrder : Qt::AscendingOrder;
        }
    }
    return layout;
}

int columnOfField(const RowGrid& grid, const QString& name) {
    const auto& columns = grid.rowModel().columns();
    const auto found = std::ranges::find_if(columns, [&](const GridColumn& column) {
        return column.field.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

} // namespace

std::vector<GridLayoutColumn> gridColumnOrder(const RowGrid& grid) {
    std::vector<GridLayoutColumn> order;
    const auto* header = grid.horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int index = header->logicalIndex(visual);
        order.push_back({index, !header->isSectionHidden(index)});
    }
    return order;
}

void arrangeGrid(RowGrid& grid, const std::vector<GridLayoutColumn>& columns) {
    auto* header = grid.horizontalHeader();
    int position = 0;
    for (const auto& column : columns) {
        header->moveSection(header->visualIndex(column.index), position++);
        grid.setColumnHidden(column.index, !column.shown);
    }
    grid.standOnShownColumn();
}

QString gridLayoutText(const RowGrid& grid) {
    const auto& columns = grid.rowModel().columns();
    QStringList lines{section, version};
    for (const auto& column : gridColumnOrder(grid)) {
        lines += u"%1%2=%3,%4"_s
                     .arg(columnKey, columns[column.index].field,
                          column.shown ? u"shown"_s : u"hidden"_s)
                     .arg(grid.widthOf(column.index));
    }
    const auto* header = grid.horizontalHeader();
    if (const int sorted = header->sortIndicatorSection();
        sorted >= 0 && sorted < static_cast<int>(columns.size())) {
        lines += sortKey + columns[sorted].field +
                 (header->sortIndicatorOrder() == Qt::DescendingOrder ? u",descending"_s
                                                                      : u",ascending"_s);
    }
    return lines.join(u'\n') + u'\n';
}

bool restoreGridLayout(RowGrid& grid, const QString& text) {
    const auto layout = readLayout(text);
    if (!layout) {
        return false;
    }
    std::vector<GridLayoutColumn> order;
    for (const auto& column : layout->columns) {
        const int index = columnOfField(grid, column.name);
        if (index >= 0 && !std::ranges::count(order, index, &GridLayoutColumn::index)) {
            order.push_back({index, column.shown});
            grid.setWidthOf(index, column.width);
        }
    }
    arrangeGrid(grid, order);
    if (const int sorted = columnOfField(grid, layout->sortName); sorted >= 0) {
        grid.horizontalHeader()->setSortIndicator(sorted, layout->sortOrder);
    }
    return true;
}

} // namespace velcro::ui
