// The register of repair orders.
#include "Steps.h"

#include "ui/RowGrid.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

namespace {

const QString title = QStringLiteral("Workshop Centre: Repair Orders Management");

void sortByName(Tour& tour) {
    auto& grid = tour.find<velcro::ui::RowGrid>(QString());
    const auto columns = grid.rowModel().columns();
    const auto name = std::ranges::find(columns, QStringLiteral("Name"),
                                        [](const auto& column) { return column.heading(); });
    auto* header = grid.horizontalHeader();
    const int section = int(name - columns.begin());
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(section) + 20, 12));
    tour.say(QStringLiteral("A click on the heading sorts by name."));
    tour.picture(QStringLiteral("register-sorted"));
}

void search(Tour& tour) {
    tour.say(QStringLiteral("Alt+S drops the search panel in; Enter searches."));
    tour.click(QStringLiteral("btnLookup"));
    tour.type(QStringLiteral("mar"));
    tour.picture(QStringLiteral("register-search"));
    const int all = tour.rowCount();
    tour.press(Qt::Key_Return);
    const int found = tour.rowCount();
    tour.check(found > 0 && found < all, QStringLiteral("the search narrows the list"));
    tour.picture(QStringLiteral("register-found"));
    tour.press(Qt::Key_R, Qt::ControlModifier);
    tour.check(tour.rowCount() == all, QStringLiteral("Ctrl+R shows the whole list again"));
}

void look(Tour& tour) {
    sortByName(tour);
    search(tour);
    tour.say(QStringLiteral("The technical reference of the screen."));
    tour.expect({}, QStringLiteral("technical-reference"), [&tour] { tour.press(Qt::Key_Escape); });
    tour.click(QStringLiteral("btnTechHelp"));
    tour.say(QStringLiteral("Ctrl+P shows what would be printed."));
    tour.expect(QStringLiteral("Print Preview"), QStringLiteral("register-print"),
                [&tour] { tour.press(Qt::Key_Escape); });
    tour.press(Qt::Key_P, Qt::ControlModifier);
    tour.press(Qt::Key_Escape);
}

} // namespace

void addRegister(Tour& tour) {
    tour.then(QStringLiteral("F2 opens the register of repair orders."), [&tour] {
        tour.expect(title, QStringLiteral("register"), [&tour] { look(tour); });
        tour.press(Qt::Key_F2);
    });
}
