#include "Shop.h"

#include "data/DataModules.h"
#include "data/Statement.h"

#include <functional>

namespace bench {

namespace {

/// The statements of each row that the table lacks, in one transaction.
void fill(const QString& table, int count, const std::function<QStringList(int row)>& statements) {
    Statement work(gData->Velmara);
    work.Open({"SELECT COUNT(*) FROM " + table});
    const int missing = count - work.Fields(0).AsInteger();
    gData->Velmara.StartTransaction();
    for (int row = 0; row < missing; ++row) {
        for (const QString& statement : statements(row)) {
            work.setText({statement});
            work.ExecSQL();
        }
    }
    gData->Velmara.Commit();
}

QString number(int value, int digits) {
    return QString::number(value).rightJustified(digits, QLatin1Char('0'));
}

} // namespace

void addCustomers(int count) {
    fill(QStringLiteral("DEBMaster"), count, [count](int row) {
        return QStringList(
            QStringLiteral("INSERT INTO DEBMaster ([CO], [Branch], [Account], [Name],"
                           " [CellPhone], [Telephone], [Contact], [IDNo]) VALUES ('01', '100',"
                           " 'X%1', 'Customer %2 Pell%3', '0825%1', '0215%1', 'Contact %3',"
                           " '80%1')")
                .arg(number(row, 6), QLatin1String(row % 41 == 0 ? "Norman" : "Edward"))
                .arg((row * 7919) % count));
    });
}

void addOrders(int count) {
    fill(QStringLiteral("CRORepMst"), count, [](int row) {
        return QStringList(
            QStringLiteral("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [TranDate],"
                           " [Account], [Name], [Address1], [Cellphone], [Reference],"
                           " [ReceiveDate], [ReceiveMthd], [ReceiveItems], [Status], [DTODate],"
                           " [DTOTime], [DTOUser], [DTOMacID]) VALUES ('01', '100', '0%1',"
                           " '2025/01/31', 'X%1', 'Customer %1', '14 Quarry Lane', '0825%1',"
                           " 'REF-%1', '2025/01/31', 'WALKIN', '1', '0', '2025/01/31',"
                           " '12:00:00', 'COUNTER1', 'SEAT')")
                .arg(number(row, 6)));
    });
}

QString stockCodeOf(int row) {
    return "X" + number(row, 6);
}

QString barcodeOf(int row) {
    return "6009" + number(row, 9);
}

void addProducts(int count) {
    const char* const kinds[] = {"Drive belt", "Saw blade", "Carbon brush", "Gear wheel"};
    fill(QStringLiteral("STKMaster"), count, [&](int row) {
        const QString key = QStringLiteral("VALUES ('01', '100', '%1', ").arg(stockCodeOf(row));
        QStringList statements = {
            "INSERT INTO STKMaster ([CO], [Branch], [StockCode], [LinkCode], [Description1],"
            " [Description2], [StockType], [Status], [KitFunction], [VATCode], [DeptCode],"
            " [Supplier], [SuppCode], [Barcode], [Units], [QtyDecimal], [CostDecimal],"
            " [SellDecimal], [LastCostExcl], [LastCostIncl]) " +
            key +
            QStringLiteral("'%1', '%2 %3 mm for model %4', 'Bench', 'N', 'A', '1', '1', 'TOOLS',"
                           " 'S%5', 'SU-%6', '%7', 1, 0, 2, 2, 7, 8.05)")
                .arg(stockCodeOf(row), QLatin1String(kinds[row % std::size(kinds)]))
                .arg(row % 97)
                .arg((row * 7919LL) % count)
                .arg(row % 40)
                .arg(number(row, 6), barcodeOf(row))};
        for (const char* code : {"1", "2"}) {
            statements << "INSERT INTO STKPrice ([CO], [Branch], [StockCode], [LinkCode],"
                          " [PriceCode], [FromDate], [ToDate], [Excl], [Incl]) " +
                              key +
                              QStringLiteral("'%1', '%2', '', '', 10, 11.5)")
                                  .arg(stockCodeOf(row), QLatin1String(code));
        }
        for (const char* warehouse : {"MAIN", "SPARE"}) {
            statements << "INSERT INTO STKBalance ([CO], [Branch], [StockCode], [WH], [Onhand]) " +
                              key + QStringLiteral("'%1', 4)").arg(QLatin1String(warehouse));
        }
        return statements;
    });
}

} // namespace bench
