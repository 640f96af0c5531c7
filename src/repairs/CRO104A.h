// The screen of a quotation line: adds, changes and removes one, priced from the stock.
#pragma once

#include "screens/DetailScreen.h"

namespace velcro::ui {
class AmountEdit;
}

class TfrmCRO104A : public DetailScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO104A(QWidget* parent = nullptr);

    // Order and item of a new line. The list hands over neither: the line is stored without an
    // order, under item 0.
    QString xCRONo;
    int xItemNo = 0;

protected:
    QStringList selectLines() const override;
    void rowRead(const Statement& row) override;
    void rowLoaded(const Statement& row) override;
    bool Validation() override;

private:
    /// Decimals of a product: quantity, selling prices, costs.
    struct Decimals
    {
        int quantity, selling, cost;
    };

    velcro::ui::AmountEdit& amount(const char* name) const;
    void setDecimals(const Decimals& decimals);
    LookUp::Answer find();
    /// Nothing is chosen any more.
    void forget();
    /// Lets the user pick a product of the stock; false without a choice.
    bool BrowseSTKMaster();
    bool GetStockData(int xRecID);
    bool takeProduct(const Statement& row);
    void CalculateTotals();

    QLineEdit* edStockCode;
    QLineEdit* edLinkCode;
    int stockRecID_ = 0; // in STKMaster; 0 until the product is found
    QString vatCode_;
};
