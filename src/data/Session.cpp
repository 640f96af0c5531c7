#include "data/Session.h"

void sfg_ResetParamFields(const QString& xType) {
    const bool all = xType.trimmed().isEmpty();
    if (all || xType == QLatin1String("S")) {
        gSParam.fill(QString());
    }
    if (all || xType == QLatin1String("I")) {
        gIParam.fill(0);
    }
    if (all || xType == QLatin1String("D")) {
        gDParam.fill(0);
    }
    if (all || xType == QLatin1String("B")) {
        gBParam.fill(false);
    }
}
