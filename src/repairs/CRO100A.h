// The header screen of a repair order: adds, changes and deletes one order of the register.
#pragma once

#include "screens/DetailScreen.h"

class TfrmCRO100A : public DetailScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO100A(QWidget* parent = nullptr);

protected:
    bool Validation() override;
    void DeleteData() override;

private:
    bool browseAccount(const QString& xStartSearch);
    /// True if edAccount names a debtor; account and name are then as the debtor's row has them.
    bool GetDebtor();

    QLineEdit* edAccount = nullptr;
    QLineEdit* edName = nullptr;
};
