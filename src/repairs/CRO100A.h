// The header screen of a repair order: adds, changes and deletes one order of the register.
#pragma once

#include "screens/DetailScreen.h"

class QComboBox;

namespace velcro::ui {
class DateEdit;
}

class TfrmCRO100A : public DetailScreen
{
    Q_OBJECT

public:
    explicit TfrmCRO100A(QWidget* parent = nullptr);

protected:
    void setDefaults() override;
    void ExtractData() override;
    bool Validation() override;
    void AddData() override;
    void UpdateData() override;
    void DeleteData() override;

private:
    struct BoundEdit
    {
        const char* column;
        QLineEdit* edit;
    };

    void declareOrder(velcro::ui::FormBuilder& form);
    void declareBilling(velcro::ui::FormBuilder& form);
    void readOrder();
    /// The edits that hold a column each, as INSERT and UPDATE name them after Account.
    std::vector<BoundEdit> boundEdits() const;
    bool valuesAreThere();
    bool valuesAreWellFormed();
    bool takeNumber();

    void edAccountClickBtn();
    void edAccountEntered();
    void browseAccount(const QString& xStartSearch);
    /// True if edAccount names a debtor; account and name are then as the debtor's row has them.
    bool GetDebtor();

    QLineEdit* edCRONo = nullptr;
    velcro::ui::DateEdit* edTranDate = nullptr;
    velcro::ui::DateEdit* edReceiveDate = nullptr;
    QComboBox* cmbReceiveMthd = nullptr;
    QLineEdit* edReference = nullptr;
    QLineEdit* edAccount = nullptr;
    QLineEdit* edName = nullptr;
    QLineEdit* edAddress1 = nullptr;
    QLineEdit* edAddress2 = nullptr;
    QLineEdit* edAddress3 = nullptr;
    QLineEdit* edAddress4 = nullptr;
    QLineEdit* edPostCode = nullptr;
    QLineEdit* edContact = nullptr;
    QLineEdit* edCellphone = nullptr;
    QLineEdit* edTelephone1 = nullptr;
    QLineEdit* edTelephone2 = nullptr;
    QLineEdit* edEMail = nullptr;

    QString wReceiveMthd; // code
    QString wStatus;      // as the loaded row has it
};
