// The quotation of an item: its header, which is saved when the screen closes, above the lines that
// parts and work are estimated in.
#pragma once

#include "screens/ListScreen.h"

class QComboBox;
class QLineEdit;

namespace velcro::ui {
class AmountEdit;
class DateEdit;
} // namespace velcro::ui

class TfrmCRO104 : public MaintenanceList
{
    Q_OBJECT

public:
    explicit TfrmCRO104(QWidget* parent = nullptr);

    // Filled by the caller before the screen is shown. The header that is read overwrites them: it
    // is the first of the order, whichever item was chosen.
    QLineEdit* edCRONo = nullptr;
    velcro::ui::AmountEdit* edItemNo = nullptr;

protected:
    QStringList statementLines(const QString& xSQL) const override;
    void openDetail(int xFunction, int xRecID) override;
    void FormShow() override;
    void reject() override;
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeHeader();
    void ExtractData();
    void takeHeader(const Statement& row);
    void UpdateCRORepItmQuoteHdr();

    velcro::ui::DateEdit* edTranDate = nullptr;
    QLineEdit* edOrderNo = nullptr;
    QComboBox* cmbTechCode = nullptr;
    velcro::ui::AmountEdit* edDepositRequired = nullptr;
    velcro::ui::AmountEdit* edDepositPaid = nullptr;
    QLineEdit* edNotes = nullptr;

    // The header in CRORepItmQuoteHdr; 0 without one, and then nothing is saved.
    int recID_ = 0;
    QString techCode_;
    QString tranDate_;
};
