// The items of a repair order: lists them below the order that they belong to, and leads to what
// hangs below an item.
#pragma once

#include "repairs/RepairOrderKey.h"
#include "screens/ListScreen.h"

class TfrmCRO101 : public MaintenanceList
{
    Q_OBJECT

public:
    explicit TfrmCRO101(const RepairOrderKey& order, QWidget* parent = nullptr);

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void afterRead() override;
    void openDetail(int xFunction, int xRecID) override;

private:
    void makeBand();
    /// Leads to a screen of what hangs below the current item, which is found again by the field.
    ButtonFacts belowButton(const QString& name, const QString& caption, const QKeySequence& key,
                            const QString& hint, void (TfrmCRO101::*show)(),
                            const QString& locateBy = QStringLiteral("RecID"));
    void showProcesses();
    void showImages();
    void showQuotation();

    const RepairOrderKey order_;
};
