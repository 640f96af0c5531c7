// A checklist: a tick, the code and what it means, and a note that can be typed over.
#pragma once

#include "ui/RowGrid.h"

namespace velcro::ui {

class ChecklistGrid : public RowGrid
{
    Q_OBJECT

public:
    struct Facts
    {
        GridColumn code;
        GridColumn description;
        GridColumn note;
        int noteLimit = 0; // letters; 0 is no limit
    };

    struct Entry
    {
        QString code;
        QString note; // as it is shown
    };

    explicit ChecklistGrid(const Facts& facts, QWidget* parent = nullptr);

    /// Ticks the first row of each code, in any case; those that the list does not have are passed
    /// over.
    void tick(const QStringList& codes);
    /// The rows that are ticked, in the order of the list, with what is being typed into a note.
    std::vector<Entry> ticked();

    /// What stands in the list while it has no rows; blank: nothing.
    void setEmptyText(const QString& text);

signals:
    /// How many rows are ticked now.
    void ticksChanged(int count);
    /// A tick or a note is another than before.
    void edited();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    enum Column { Tick, Code, Description, Note };

    void countTicks();

    QString emptyText_;
    int count_ = 0;
    bool ticking_ = false;
};

} // namespace velcro::ui
