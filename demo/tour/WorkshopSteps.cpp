// The workshop's own words: a code of each kind is added, one is changed, one goes again.
#include "Steps.h"

#include "SuiteRows.h"

namespace {

struct Table
{
    const char *button, *listTitle, *detailTitle, *name;
    /// By Enter from edit to edit.
    QStringList typed;
    const char *heading, *code; // the new row in the list
    const char* row;            // and in the database
};

const Table tables[] = {
    {"btnCFGSystemCodes",
     "Workshop Centre: System Codes Management",
     "Workshop Centre: System Code Management",
     "codes",
     {"I", "STRAP", "carrying strap", "look for the second clip"},
     "System Code",
     "STRAP",
     "CROCodeMaster WHERE [CodeType] = 'I' AND [Code] = 'STRAP' AND [Description] = 'CARRYING "
     "STRAP' AND [Notes] = 'LOOK FOR THE SECOND CLIP'"},
    {"btnCFGTechnicians",
     "Workshop Centre: Technicians Management",
     "Workshop Centre: Technician Management",
     "technicians",
     {"t07", "Mirelle O'Dravane", "082-555-0177"},
     "Technician Code",
     "T07",
     "CROTechMst WHERE [TechCode] = 'T07' AND [TechName] = 'MIRELLE O''DRAVANE' AND [Cellphone] = "
     "'082-555-0177'"},
    {"btnCFGProcessCodes",
     "Workshop Centre: Process Codes Management",
     "Workshop Centre: Process Code Management",
     "processes",
     {"soak", "Soak test over night", "75"},
     "Process Code",
     "SOAK",
     "CROProcessMst WHERE [ProcessCode] = 'SOAK' AND [Description] = 'SOAK TEST OVER NIGHT' AND "
     "[ProcessSeq] = 75"},
};

int rowsOf(const Table& table) {
    return suiteNumber(
        QStringLiteral("SELECT COUNT(*) FROM %1 AND [CO] = '01'").arg(QLatin1String(table.row)));
}

void add(Tour& tour, const Table& table) {
    const auto name = QLatin1String(table.name);
    tour.expect(table.detailTitle, name + QStringLiteral("-new"), [&] {
        for (const QString& text : table.typed) {
            tour.type(text);
            tour.press(Qt::Key_Return);
        }
        tour.picture(name + QStringLiteral("-filled"));
        tour.press(Qt::Key_F10);
    });
    tour.press(Qt::Key_Insert);
    tour.check(rowsOf(table) == 1 && tour.column(table.heading).contains(table.code),
               QStringLiteral("the new row is in the list and in the database"));
}

void addAgain(Tour& tour, const Table& table) {
    const auto name = QLatin1String(table.name);
    tour.expect(table.detailTitle, name + QStringLiteral("-second"), [&] {
        for (const QString& text : table.typed) {
            tour.type(text);
            tour.press(Qt::Key_Return);
        }
        tour.press(Qt::Key_F10);
        tour.picture(name + QStringLiteral("-refused"));
        tour.expect(QStringLiteral("System Prompt"), name + QStringLiteral("-leave"),
                    [&tour] { tour.press(Qt::Key_Y); });
        tour.press(Qt::Key_Escape);
    });
    tour.press(Qt::Key_Insert);
    tour.check(rowsOf(table) == 1, QStringLiteral("a code that is there is not added again"));
}

void remove(Tour& tour, const Table& table) {
    while (tour.current(table.heading) != QLatin1String(table.code)) {
        tour.press(Qt::Key_Down);
    }
    tour.expect(table.detailTitle, QLatin1String(table.name) + QStringLiteral("-delete"),
                [&tour] { tour.press(Qt::Key_F10); });
    tour.press(Qt::Key_Delete);
    tour.check(rowsOf(table) == 0, QStringLiteral("the row is gone"));
}

} // namespace

void addWorkshop(Tour& tour) {
    tour.then(QStringLiteral("F8, and the workshop's words by click: codes, technicians, steps."),
              [&tour] {
                  tour.press(Qt::Key_F8);
                  for (const Table& table : tables) {
                      tour.expect(table.listTitle, table.name, [&] {
                          add(tour, table);
                          addAgain(tour, table);
                          if (&table == tables) {
                              remove(tour, table);
                          }
                          tour.press(Qt::Key_Escape);
                      });
                      tour.click(table.button);
                  }
                  tour.press(Qt::Key_Escape);
              });
}
