// Product selection: picks a product of the stock with its selling price, what is on hand and its
// costs.
#pragma once

#include "screens/SelectionScreen.h"

class TfrmCRO920 : public SelectionScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO920(QWidget* parent = nullptr);

    // What the list is narrowed to; set before the screen is shown.
    QString xStartSearch; // in code, description, supplier's code and barcode; "?" is blank
    QString xSupplier;
    QString xStockTypeFilter; // blank: all but parents
    QString xShowCosts;       // "Y": the grid has the last and the average costs

    // The selected product; blank and 0 until one is selected.
    QString xStockCode, xLinkCode, xStockType, xVATCode, xDescription1, xDescription2, xBarcode;
    int xRecID = 0;
    int xUnits = 0;
    int xCostDecimal = 0, xQtyDecimal = 0, xSellDecimal = 0;
    double xSQMBox = 0;
    double xExcl = 0, xIncl = 0; // of the price code in company parameter 33
    double xListCostExcl = 0, xListCostIncl = 0, xBuyCostExcl = 0, xBuyCostIncl = 0;
    double xLastCostExcl = 0, xLastCostIncl = 0, xAvgCostExcl = 0, xAvgCostIncl = 0;

protected:
    QStringList statementLines(const QString& xSQL) const override;
    bool rowPicked() override;
    void beforeRead(bool whole) override;

private:
    std::vector<PickedField> results();
    QStringList baseLines() const;
    QStringList filterLines() const;
    /// Lets the user pick a linked item of the current row, which takes the parent's place. False
    /// without a choice.
    bool ShowChildren();
    void takeChild(int recID);
};
