#include "data/DataUTIL.h"

#include "data/ConnectModule.h"
#include "data/RunBatch.h"
#include "data/Session.h"

TtData::TtData()
    : VelmaraTILL({.whenLost = WhenLost::RunAgain, .specificOptions = standardSpecificOptions()}) {
    VelmaraTILL.afterConnect = [this] { VelmaraTILLAfterConnect(); };
}

void TtData::VelmaraTILLAfterConnect() {
    if (afterConnect) {
        afterConnect();
    }
}

bool TtData::ConnectDB_TIL() {
    return connectModule(
        VelmaraTILL, {.host = gLocHost,
                      .database = gLocDBName,
                      .user = gLocUser,
                      .password = gLocPswd,
                      .connector = gDBConnector,
                      .azure = gLocAzure,
                      .unit = "DataUTIL",
                      .failure = "%1.ConnectDB_TIL - Failed to connect to database [%2].\r: %3"});
}

void TtData::Disconnect_TIL() {
    VelmaraTILL.Disconnect();
}

void TtData::CloseDB_TIL() {
    Close_Query_TIL();
    VelmaraTILL.Disconnect();
}

void TtData::Close_Query_TIL() {
    for (Statement* statement :
         {&tUpdSQL, &tLoadQuery1, &tLoadQuery2, &tQuery1, &tQuery2, &tQuery3, &tQuery4, &tQuery5,
          &tQuery6, &tQuery7, &tQuery8, &tQuery9, &tQuery10, &tQuery11, &tQuery12}) {
        statement->Close();
    }
}

bool TtData::til_ExecSQL(int xMemoNo) {
    return runBatch(statementBuffer(xMemoNo), tUpdSQL,
                    {.routine = "DataUTIL.til_ExecSQL",
                     .failureFile = gSQLPath + "SQLError-TILL.log",
                     .transaction = &VelmaraTILL,
                     .clearsErrorMsg = true,
                     .testsConnected = true,
                     .lockIsThrown = true,
                     .onFailure = BatchRules::OnFailure::ErrorMessage});
}
