// The register of repair orders.
#include "Steps.h"

#include "ui/RowGrid.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

namespace {

const QString title = QStringLiteral("Workshop Centre: Repair Orders Management");

void sortByName(Tour& tour, QDialog& form) {
    auto& grid = tour.find<velcro::ui::RowGrid>(form, QString());
    const auto columns = grid.rowModel().columns();
    const auto name = std::ranges::find(columns, QStringLiteral("Name"),
                                        [](const auto& column) { return column.heading(); });
    auto* header = grid.horizontalHeader();
    const int section = int(name - columns.begin());
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(section) + 20, 12));
    tour.say(QStringLiteral("A click on the heading sorts by name."));
    tour.picture(form, QStringLiteral("register-sorted"));
}

void search(Tour& tour, QDialog& form) {
    tour.say(QStringLiteral("Alt+S drops the search panel in; Enter searches."));
    tour.click(form, QStringLiteral("btnLookup"));
    tour.type(form, QStringLiteral("mar"));
    tour.picture(form, QStringLiteral("register-search"));
    const int all = tour.find<velcro::ui::RowGrid>(form, QString()).rowModel().rowCount();
    tour.press(form, Qt::Key_Return);
    const int found = tour.find<velcro::ui::RowGrid>(form, QString()).rowModel().rowCount();
    tour.check(found > 0 && found < all, QStringLiteral("the search narrows the list"));
    tour.picture(form, QStringLiteral("register-found"));
    tour.press(form, Qt::Key_R, Qt::ControlModifier);
    tour.check(tour.find<velcro::ui::RowGrid>(form, QString()).rowModel().rowCount() == all,
               QStringLiteral("Ctrl+R shows the whole list again"));
}

void look(Tour& tour, QDialog& form) {
    sortByName(tour, form);
    search(tour, form);
    tour.say(QStringLiteral("The technical reference of the screen."));
    tour.expect({}, QStringLiteral("technical-reference"),
                [&tour](QDialog& page) { tour.press(page, Qt::Key_Escape); });
    tour.click(form, QStringLiteral("btnTechHelp"));
    tour.say(QStringLiteral("Ctrl+P shows what would be printed."));
    tour.expect({}, QStringLiteral("register-print"), [](QDialog& preview) { preview.reject(); });
    tour.press(form, Qt::Key_P, Qt::ControlModifier);
    tour.press(form, Qt::Key_Escape);
}

} // namespace

void addRegister(Tour& tour, TfrmMAIN000& menu) {
    tour.then(QStringLiteral("F2 opens the register of repair orders."), [&tour, &menu] {
        tour.expect(title, QStringLiteral("register"),
                    [&tour](QDialog& form) { look(tour, form); });
        tour.press(menu, Qt::Key_F2);
    });
}
