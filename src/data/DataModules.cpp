#include "data/DataModules.h"

void createDataModules() {
    sData = std::make_unique<TsData>();
    cfgData = std::make_unique<TcfgData>();
    cData = std::make_unique<TcData>();
    gData = std::make_unique<TgData>();
    mData = std::make_unique<TmData>();
    tData = std::make_unique<TtData>();
}

void freeDataModules() {
    tData.reset();
    mData.reset();
    gData.reset();
    cData.reset();
    cfgData.reset();
    sData.reset();
}
