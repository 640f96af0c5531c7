#include "data/DataUMST.h"

#include "data/ConnectModule.h"
#include "data/RunBatch.h"
#include "data/Session.h"
#include "data/StatementText.h"

TmData::TmData()
    : MasterDB({.whenLost = WhenLost::RunAgain, .specificOptions = standardSpecificOptions()}) {}

bool TmData::ConnectDB_MST(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                           const QString& xUser, const QString& xPswd, const QString& xAzure) {
    return connectModule(MasterDB, {xHost, xDBase, xUser, xPswd, xDBConnector, xAzure, "DataUMST"});
}

void TmData::Disconnect_MST() {
    MasterDB.Disconnect();
}

bool TmData::mst_ExecSQL() {
    return runBatch(gSQL, msUpdSQL,
                    {.routine = "DataUMST.mst_ExecSQL",
                     .failureFile = gEXEPath + "MasterDBError.TXT",
                     .transaction = &MasterDB});
}
