#include "lookups/LinkedItems.h"

#include "ui/FormBuilder.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

std::vector<velcro::ui::GridColumn> LinkedItems::packs() {
    return {{"LinkCode"}, {"Description1"}, {"Units"}, {"Barcode"}, {"SuppCode", "Supplier Code"},
            {"Variant"},  {"Singles"}};
}

LinkedItems::LinkedItems(ListFacts facts, QWidget* parent)
    : SelectionScreen(
          std::move(facts),
          {{"RecID", &xReturnRecID}, {"Units", &xReturnUnits}, {"LinkCode", &xReturnCode}},
          parent) {
    velcro::ui::FormBuilder band(&above());
    edStockCode = band.edit(u"edStockCode"_s, u"Stock Code"_s, {.readOnly = true});
    edDescription1 =
        band.beside().edit(u"edDescription1"_s, u"Description"_s, {.width = 40, .readOnly = true});
}

void LinkedItems::FormShow() {
    SelectionScreen::FormShow();
    xReturnUnits = 1;
}
