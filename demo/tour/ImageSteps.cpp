// Photographs of an item, by the camera that needs none; and the register as its user likes it.
#include "Steps.h"

#include "SuiteRows.h"

#include "platform/seat/Shell.h"
#include "ui/RowGrid.h"

#include <QAction>
#include <QFileInfo>
#include <QTest>

namespace {

const QString registerTitle = QStringLiteral("Workshop Centre: Repair Orders Management");
const QString itemsTitle = QStringLiteral("Workshop Centre: Repair Order Item Management");
const QString imagesTitle = QStringLiteral("Customer Repair Orders: Item Camera Capture");
const QString columnsTitle = QStringLiteral("Grid Customisation Settings");

const QString order = QStringLiteral("100299");

int pictures() {
    return suiteNumber("SELECT COUNT(*) FROM CRORepItmImages WHERE [CRONo] = '" + order +
                       "' AND [ItemNo] = '1'");
}

void photograph(Tour& tour) {
    const int before = pictures();
    tour.say(QStringLiteral("Space takes a picture, F10 keeps it."));
    for (int i = 0; i < 3; ++i) {
        QTest::qWait(250); // the picture moves
        tour.press(Qt::Key_Space);
        tour.press(Qt::Key_F10);
    }
    tour.check(pictures() == before + 3, QStringLiteral("three pictures are kept"));
    tour.picture(QStringLiteral("images-three"));
    tour.say(QStringLiteral("Delete takes the second one away; the others close up."));
    tour.press(Qt::Key_Down);
    tour.expect({}, QStringLiteral("image-delete"), [&tour] { tour.press(Qt::Key_Y); });
    tour.press(Qt::Key_Delete);
    tour.check(pictures() == before + 2, QStringLiteral("two pictures are left"));
    tour.check(tour.column("Image Index").last() == QString::number(tour.rowCount()),
               QStringLiteral("numbered without a gap"));
    tour.press(Qt::Key_Down);
    tour.press(Qt::Key_Return);
    tour.picture(QStringLiteral("images-two"));
    tour.press(Qt::Key_Escape);
}

void arrange(Tour& tour) {
    tour.say(QStringLiteral("Customise Grid: without the e-mail address, the name first."));
    tour.expect(columnsTitle, QStringLiteral("grid-columns"), [&tour] {
        while (tour.current("Column") != "EMail") {
            tour.press(Qt::Key_Down);
        }
        tour.press(Qt::Key_Space);
        while (tour.current("Column") != "Name") {
            tour.press(Qt::Key_Up);
        }
        for (int i = 0; i < 5; ++i) {
            tour.press(Qt::Key_Up, Qt::ControlModifier);
        }
        tour.picture(QStringLiteral("grid-columns-chosen"));
        tour.press(Qt::Key_F10);
    });
    tour.find<QAction>("acGridCustom").trigger();
    tour.picture(QStringLiteral("register-arranged"));
    QString workbook;
    velcro::seat::setDesktopOpener([&workbook](const QString& file) {
        workbook = file;
        return true;
    });
    tour.say(QStringLiteral("Export Grid to Excell writes what is seen to a workbook."));
    tour.find<QAction>("acGridExcel").trigger();
    velcro::seat::setDesktopOpener({});
    tour.check(QFileInfo(workbook).size() > 0, QStringLiteral("the workbook is there"));
    tour.press(Qt::Key_Escape);
}

} // namespace

void addImages(Tour& tour) {
    tour.then(QStringLiteral("F4 on an item opens its pictures."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-for-images"), [&tour] {
            while (tour.current("Order #No") != order) {
                tour.press(Qt::Key_Down);
            }
            tour.expect(itemsTitle, QStringLiteral("items-for-images"), [&tour] {
                tour.expect(imagesTitle, QStringLiteral("images"), [&tour] { photograph(tour); });
                tour.press(Qt::Key_F4);
                tour.press(Qt::Key_Escape);
            });
            tour.press(Qt::Key_Return);
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
    tour.then(QStringLiteral("A grid as its user likes it."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-as-it-comes"),
                    [&tour] { arrange(tour); });
        tour.press(Qt::Key_F2);
    });
    tour.then(QStringLiteral("And so it opens again."), [&tour] {
        tour.expect(registerTitle, QStringLiteral("register-kept"), [&tour] {
            const auto& grid = tour.find<velcro::ui::RowGrid>({});
            tour.check(grid.isColumnHidden(grid.rowModel().columnOf("EMail")),
                       QStringLiteral("the column stays away"));
            tour.press(Qt::Key_Escape);
        });
        tour.press(Qt::Key_F2);
    });
}
