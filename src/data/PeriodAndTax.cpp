#include "data/PeriodAndTax.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/ReadGuard.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"

int sfvel_GetPeriod(const QString& xDate) {
    sfg_ResetParamFields(QString());
    return guardedRead("SFVEL-14", "SYSAP", "SysFuncVelmara", "sld_GetPeriod", [&] {
        Statement wQuery(gData->Velmara);
        sld_OpenPeriodOf(wQuery, xDate);
        if (wQuery.IsEmpty()) {
            return 0;
        }
        gSParam[1] = wQuery.FieldByName("FromDate").AsString();
        gSParam[2] = wQuery.FieldByName("ToDate").AsString();
        gSParam[3] = wQuery.FieldByName("APActive").AsString();
        gSParam[4] = wQuery.FieldByName("APOpen").AsString();
        return wQuery.FieldByName("AP").AsInteger();
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
