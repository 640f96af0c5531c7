// The register of repair orders: lists the orders of the company and branch, searches them, and
// leads down to an order's header and to its items.
#pragma once

#include "screens/ListScreen.h"

/// What the register hands to the item list of an order.
struct RepairOrderKey
{
    int xRecID = 0;
    QString xCRONo;
    QString xAccount;
    QString xName;
};

/// Shows the item list of an order modally; empty until that screen exists, and then "Order Items"
/// is greyed.
inline std::function<void(QWidget* parent, const RepairOrderKey& order)> gShowRepairOrderItems;

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
};
