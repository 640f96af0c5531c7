// The screen of an item: books an article in, with what came with it and what is wrong, and changes
// and deletes it.
#pragma once

#include "repairs/ItemChecklist.h"
#include "repairs/RepairOrderKey.h"
#include "screens/DetailScreen.h"

class TfrmCRO101A : public DetailScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO101A(QWidget* parent = nullptr);

    /// The order that the item belongs to, as its list shows it.
    void showOrder(const RepairOrderKey& order);

protected:
    void FormShow() override;
    void reject() override;
    void setDefaults() override;
    void rowLoaded(const Statement& row) override;
    bool Validation() override;
    void AddData() override;
    void UpdateData() override;
    void DeleteData() override;
    void afterSave() override;

private:
    ItemKey item() const;
    bool BrowseSTKSerialMst();
    /// Whether the stock knows the serial number; its article is then shown.
    bool GetSerialData();
    bool takeItemNo();
    void addTicks();
    void addAudit(const QString& event);
    void addQuotation();
    void UpdateReceivedItems();
    void countInTab(const char* page, const velcro::ui::ChecklistGrid& list);
    void whatWasNotRead();

    QLineEdit* edSerialNo;
    QLineEdit* edItemNo;
    ItemChecklist intakes_;
    ItemChecklist faults_;
    bool rowRead_ = false;
    bool listsRead_ = true;
};
