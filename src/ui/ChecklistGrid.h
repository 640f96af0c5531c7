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

    /// Ticks the first row with the code, in any case; false when there is none.
    bool tick(const QString& code);
    /// The rows that are ticked, in the order of the list, with what is being typed into a note.
    std::vector<Entry> ticked();

private:
    enum Column { Tick, Code, Description, Note };
};

} // namespace velcro::ui
