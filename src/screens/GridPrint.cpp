#include "screens/GridPrint.h"

#include "data/DateTimeText.h"
#include "data/Session.h"

void sfvel_GridPrintTitle(velcro::ui::GridPrinter& xGridPrinter, const QString& xProgram,
                          const QString& xComment) {
    xGridPrinter.headerHeightMm = 5;
    xGridPrinter.marginsMm = {10, 20, 10, 10};
    QFont font;
    font.setFamilies({QStringLiteral("Lucida Console"), QStringLiteral("DejaVu Sans Mono")});
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(8);
    xGridPrinter.titleFont = font;
    xGridPrinter.leftTitle = {
        QStringLiteral(" Company : [") + gCO.trimmed() + QStringLiteral("]  ") + gBRName.trimmed(),
        QStringLiteral(" Program : [Version: ") + gVersion.trimmed() + QStringLiteral("] ") +
            xProgram.trimmed(),
        QStringLiteral(" User    : ") + gUserCode.trimmed(),
        QStringLiteral(" ") + xComment,
    };
    xGridPrinter.rightTitle = {
        QStringLiteral("Date : ") + sfg_Date(0) + QStringLiteral("   "),
        QStringLiteral("Time : ") + sfg_Time() + QStringLiteral("     "),
        QStringLiteral("Page : [Page #]           "),
        QStringLiteral(" "),
    };
}
