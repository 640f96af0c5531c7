#include "data/PeriodAndTax.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"

int sfvel_GetPeriod(const QString& xDate) {
    sfg_ResetParamFields(QString());
    return readRows(
        gData->Velmara, sld_PeriodOf(xDate),
        dialogAndRaise("SFVEL-14", sqlErrorOnTable("SYSAP"), "SysFuncVelmara", "sld_GetPeriod"),
        [](const Statement& rows) {
            if (rows.IsEmpty()) {
                return 0;
            }
            gSParam[1] = rows.FieldByName("FromDate").AsString();
            gSParam[2] = rows.FieldByName("ToDate").AsString();
            gSParam[3] = rows.FieldByName("APActive").AsString();
            gSParam[4] = rows.FieldByName("APOpen").AsString();
            return rows.FieldByName("AP").AsInteger();
        });
}

double sfvel_GetVATRate(const QString& xVATCode, const QString& xDate) {
    const QString date = xDate.trimmed().isEmpty() ? sfg_Date(0) : xDate;
    for (const auto& rate : gVatRates) {
        if (rate->FromDate.trimmed().isEmpty()) {
            rate->FromDate = QStringLiteral("2000/01/01");
        }
        if (rate->ToDate.trimmed().isEmpty()) {
            rate->ToDate = QStringLiteral("2100/01/01");
        }
        if (rate->VATCode.compare(xVATCode, Qt::CaseInsensitive) == 0 && rate->FromDate <= date &&
            date <= rate->ToDate) {
            return rate->VATRate;
        }
    }
    return 0;
}
