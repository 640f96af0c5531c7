// The register of repair orders: lists the orders of the company and branch, searches them, and
// leads down to an order's header and to its items.
#pragma once

#include "screens/ListScreen.h"

class TfrmCRO100 : public MaintenanceList
{
    Q_OBJECT

public:
    explicit TfrmCRO100(QWidget* parent = nullptr);

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void openDetail(int xFunction, int xRecID) override;

private:
    ButtonFacts linesButton();
    void showItems(int xRecID);
};
