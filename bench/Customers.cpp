#include "Customers.h"

#include "data/DataModules.h"
#include "data/Statement.h"

#include <functional>

namespace bench {

namespace {

/// The statement of each row that the table lacks, in one transaction.
void fill(const QString& table, int count, const std::function<QString(int row)>& statement) {
    Statement work(gData->Velmara);
    work.Open({"SELECT COUNT(*) FROM " + table});
    const int missing = count - work.Fields(0).AsInteger();
    gData->Velmara.StartTransaction();
    for (int row = 0; row < missing; ++row) {
        work.setText({statement(row)});
        work.ExecSQL();
    }
    gData->Velmara.Commit();
}

QString number(int value, int digits) {
    return QString::number(value).rightJustified(digits, QLatin1Char('0'));
}

} // namespace

void addCustomers(int count) {
    fill(QStringLiteral("DEBMaster"), count, [count](int row) {
        return QStringLiteral("INSERT INTO DEBMaster ([CO], [Branch], [Account], [Name],"
                              " [CellPhone], [Telephone], [Contact], [IDNo]) VALUES ('01', '100',"
                              " 'X%1', 'Customer %2 Pell%3', '0825%1', '0215%1', 'Contact %3',"
                              " '80%1')")
            .arg(number(row, 6), QLatin1String(row % 41 == 0 ? "Norman" : "Edward"))
            .arg((row * 7919) % count);
    });
}

void addOrders(int count) {
    fill(QStringLiteral("CRORepMst"), count, [](int row) {
        return QStringLiteral("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [TranDate],"
                              " [Account], [Name], [Address1], [Cellphone], [Reference],"
                              " [ReceiveDate], [ReceiveMthd], [ReceiveItems], [Status], [DTODate],"
                              " [DTOTime], [DTOUser], [DTOMacID]) VALUES ('01', '100', '0%1',"
                              " '2025/01/31', 'X%1', 'Customer %1', '14 Quarry Lane', '0825%1',"
                              " 'REF-%1', '2025/01/31', 'WALKIN', '1', '0', '2025/01/31',"
                              " '12:00:00', 'COUNTER1', 'SEAT')")
            .arg(number(row, 6));
    });
}

} // namespace bench
