#include "data/DataUVEL.h"

#include "data/ConnectModule.h"
#include "data/Reading.h"
#include "data/RunBatch.h"
#include "data/Session.h"

namespace {

// Without failover: what was lost is never run again, whatever a lost-connection event would say.
ConnectionOptions suiteOptions() {
    return {.pooling = false,
            .autoCommit = false,
            .localFailover = false,
            .enableBCD = true,
            .whenLost = WhenLost::Raise};
}

} // namespace

TgData::TgData()
    : Velmara(suiteOptions())
    , RemoteDB(suiteOptions()) {}

bool TgData::ConnectDB_VEL(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                           const QString& xUser, const QString& xPswd, const QString& xAzure) {
    return connectModule(Velmara, {xHost, xDBase, xUser, xPswd, xDBConnector, xAzure, "DataUVEL"});
}

bool TgData::ConnectDB_Remote(const QString& xDBConnector, const QString& xHost,
                              const QString& xDBase, const QString& xUser, const QString& xPswd,
                              const QString& xAzure) {
    return connectModule(RemoteDB, {xHost, xDBase, xUser, xPswd, xDBConnector, xAzure, "DataUVEL"});
}

void TgData::CloseDB_VEL() {
    Velmara.Disconnect();
}

void TgData::Disconnect_VEL() {
    Velmara.Disconnect();
}

void TgData::CloseDB_Remote() {
    RemoteDB.Disconnect();
}

void TgData::Close_Query_VEL() {
    for (Statement* statement :
         {&vLoadQuery1,  &vLoadQuery2,  &qryCO,      &qryBranch,    &qryImages,   &vUpdTemplate,
          &cds01,        &cds02,        &cds03,      &cds04,        &cds05,       &vQrySerials,
          &vDebMstQuery, &vDebBalQuery, &vMstQuery1, &vMstQuery2,   &vQryTrig,    &qryBulk,
          &qryPreAudit,  &qryPostAudit, &qryPostGL,  &qrySTKBalFix, &qryInfinity, &UniQuery3,
          &vQuery1,      &vQuery2,      &vQuery3,    &vQuery4,      &vQuery5,     &vQuery6,
          &vQuery7,      &vQuery8,      &vQuery9,    &vQuery10,     &vQuery11,    &vQuery12,
          &vQuery13,     &vQuery14,     &vQuery15}) {
        statement->Close();
    }
}

void TgData::Close_Query_Remote() {
    for (Statement* statement :
         {&remLoadQuery1, &remUpdSQL, &remQuery1, &remQuery2, &remQuery3, &remQuery4, &remQuery5,
          &remQuery6, &remQuery7, &remQuery8, &remQuery9, &remQuery10, &remQuery11, &remQuery12,
          &remQryTrig, &remQueryImages}) {
        statement->Close();
    }
}

QString TgData::VEL_GetSPID() {
    return readRows(Velmara, {"SELECT @@SPID AS SPID"},
                    dialogAndRaise("999999", sqlErrorOnTable("SPID"), "DataUVEL", "VEL_GetSPID"),
                    [](const Statement& rows) { return rows.FieldByName("SPID").AsString(); });
}

bool TgData::vel_ExecSQL(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), vUpdSQL,
                    {.routine = "DataUVEL.vel_ExecSQL",
                     .failureFile = gEXEPath + "SQL\\SQLError-Velmara.TXT",
                     .transaction = &Velmara,
                     .clearsErrorMsg = true,
                     .onFailure = BatchRules::OnFailure::MessageBox});
}

bool TgData::vel_ExecSQL_NoTrans(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), vUpdSQL,
                    {.routine = "DataUVEL.vel_ExecSQL_NoTrans",
                     .failureFile = gEXEPath + "SQL\\SQLError-Velmara.TXT",
                     .transaction = nullptr,
                     .clearsErrorMsg = true,
                     .onFailure = BatchRules::OnFailure::MessageBox});
}

bool TgData::rem_ExecSQL(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), remUpdSQL,
                    {.routine = "DataUVEL.rem_ExecSQL",
                     .failureFile = gEXEPath + "SQL\\SQLError-RemoteDB.TXT",
                     .transaction = &RemoteDB,
                     .clearsErrorMsg = true,
                     .onFailure = BatchRules::OnFailure::MessageBox});
}
