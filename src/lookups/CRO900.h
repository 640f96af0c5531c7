// Customer selection: picks a debtor.
#pragma once

#include "screens/SelectionScreen.h"

class TfrmCRO900 : public SelectionScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO900(QWidget* parent = nullptr);

    QString xStartSearch; // kept for the caller; the list opens whole
    // The selected debtor of DEBMaster; blank until one is selected.
    QString xDisplay; // "account - name"
    QString xAccount, xName, xIDNo, xCellphone, xTelephone, xTelephone2, xDefBranch;

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void beforeRead(bool whole) override;
    bool rowPicked() override;
};
