// What the two selections among the linked items of a parent have in common: the parent above, its
// packs below, the largest first.
#pragma once

#include "screens/SelectionScreen.h"

class QLineEdit;

class LinkedItems : public SelectionScreen
{
    Q_OBJECT

public:
    // The parent; filled by the caller.
    QLineEdit* edStockCode = nullptr;
    QLineEdit* edDescription1 = nullptr;

    // The selected row of STKMaster; 0 and 1 until one is selected.
    QString xReturnCode; // its link code
    int xReturnRecID = 0;
    int xReturnUnits = 1;

protected:
    LinkedItems(ListFacts facts, QWidget* parent);

    static std::vector<velcro::ui::GridColumn> packs();

    void FormShow() override;
};
