#include "data/DataUCFG.h"

#include "data/ConnectModule.h"
#include "data/RunBatch.h"
#include "data/Session.h"

TcfgData::TcfgData()
    : ControlDB({.whenLost = WhenLost::RunAgain, .specificOptions = standardSpecificOptions()})
    , ConfigDB({.whenLost = WhenLost::RunAgain}) {}

bool TcfgData::ConnectDB_CON(const QString& xDBConnector, const QString& xHost,
                             const QString& xDBase, const QString& xUser, const QString& xPswd,
                             const QString& xAzure) {
    return connectModule(ControlDB,
                         {xHost, xDBase, xUser, xPswd, xDBConnector, xAzure, "DataUCFG"});
}

bool TcfgData::ConnectDB_CFG(const QString& xDBConnector, const QString& xHost,
                             const QString& xDBase, const QString& xUser, const QString& xPswd,
                             const QString& xAzure) {
    return connectModule(ConfigDB, {xHost, xDBase, xUser, xPswd, xDBConnector, xAzure, "DataUCFG"});
}

bool TcfgData::con_ExecSQL(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), conUpdSQL,
                    {.routine = "DataUCFG.con_ExecSQL",
                     .failureFile = gEXEPath + "SQL\\SQLError-Config.TXT",
                     .transaction = &ControlDB});
}

bool TcfgData::cfg_ExecSQL(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), cfgUpdSQL,
                    {.routine = "DataUCFG.cfg_ExecSQL",
                     .failureFile = gEXEPath + "SQL\\SQLError-Config.TXT",
                     .transaction = &ConfigDB});
}
