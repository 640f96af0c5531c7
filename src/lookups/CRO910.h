// Serial number selection: picks a serial-numbered article of the stock.
#pragma once

#include "screens/SelectionScreen.h"

class TfrmCRO910 : public SelectionScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO910(QWidget* parent = nullptr);

    // The selected row of STKSerialMst; 0 and blank until one is selected.
    int xRecID = 0;
    QString xSerialNo, xStatus, xStockCode, xLinkCode, xDescription1;

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void searchEntered() override;
};
