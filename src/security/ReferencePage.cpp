#include "security/ReferencePage.h"

#include "ui/Handler.h"
#include "ui/RowGrid.h"

#include <QLineEdit>
#include <QVBoxLayout>

ReferencePage::ReferencePage(const QString& gridName, const QString& title,
                             const QStringList& headings, QWidget* parent)
    : QWidget(parent)
    , title_(title) {
    grid_ = new velcro::ui::RowGrid(this);
    grid_->setObjectName(gridName);
    grid_->setAccessibleName(title);
    std::vector<velcro::ui::GridColumn> columns;
    for (const QString& heading : headings) {
        fields_ << QStringLiteral("c%1").arg(fields_.size());
        columns.push_back({fields_.last(), heading.isEmpty() ? QStringLiteral(" ") : heading});
    }
    grid_->setColumns(std::move(columns));
    edSearch_ = new QLineEdit(this);
    edSearch_->setObjectName(gridName + QStringLiteral("Search"));
    edSearch_->setAccessibleName(QStringLiteral("Search in Grid"));
    edSearch_->setPlaceholderText(QStringLiteral("Search in Grid"));
    edSearch_->hide();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grid_);
    layout->addWidget(edSearch_);
    velcro::ui::connectHandler(edSearch_, &QLineEdit::textChanged, grid_,
                               &velcro::ui::RowGrid::filter);
}

void ReferencePage::addRow(const QStringList& cells) {
    rows_.append(cells);
}

void ReferencePage::showRows() {
    std::vector<velcro::sql::Column> columns;
    for (const QString& field : fields_) {
        columns.push_back({field.toStdString()});
    }
    velcro::sql::RowSetBuilder shown(std::move(columns));
    for (const QStringList& row : rows_) {
        for (const QString& cell : row) {
            shown.addBytes(cell.toStdString());
        }
        shown.endRow();
    }
    grid_->setRows(shown.take());
}

bool ReferencePage::footerIsOpen() const {
    return !edSearch_->isHidden(); // also on a page that is not in front
}

void ReferencePage::flipFooter() {
    if (footerIsOpen()) {
        closeFooter();
    } else {
        edSearch_->show();
        edSearch_->setFocus();
    }
}

void ReferencePage::closeFooter() {
    edSearch_->clear();
    edSearch_->hide();
    if (isVisible()) {
        grid_->setFocus();
    }
}
