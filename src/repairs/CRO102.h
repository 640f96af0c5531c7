// The processes of an item: lists the work steps that technicians took on it.
#pragma once

#include "screens/ListScreen.h"

class QLineEdit;

namespace velcro::ui {
class AmountEdit;
}

class TfrmCRO102 : public MaintenanceList
{
    Q_OBJECT

public:
    explicit TfrmCRO102(QWidget* parent = nullptr);

    /// Leaves a list as it was read until the user restores it.
    void ShowDetailForm(int xFunction) override;

    // Filled by the caller before the list is shown, but for the item number: it stays 0, and the
    // list shows the steps of the order as a whole.
    QLineEdit* edCRONo = nullptr;
    velcro::ui::AmountEdit* edItemNo = nullptr;
    QLineEdit* edDescription1 = nullptr;
    QLineEdit* edSerialNo = nullptr;

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void afterRead() override;
    void openDetail(int xFunction, int xRecID) override;
};
