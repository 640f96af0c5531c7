#include "data/DataUCMN.h"

#include "data/ConnectModule.h"
#include "data/RunBatch.h"
#include "data/Session.h"
#include "data/StatementText.h"

TcData::TcData()
    : VelmaraCommon({.whenLost = WhenLost::RunAgain,
                     .specificOptions = {QStringLiteral("MultipleActiveResultSets=True")}}) {}

bool TcData::ConnectDB_Common() {
    return connectModule(
        VelmaraCommon,
        {.host = gCmnHost,
         .database = gCmnDBName,
         .user = gCmnUser,
         .password = gCmnPswd,
         .connector = gCmnConnector,
         .azure = gCmnAzure,
         .unit = "DataUCMN",
         .failure = "%1.CommonConnect - Failed to connect to database [%2]. Reason: %3"});
}

void TcData::CloseDB_Common() {
    VelmaraCommon.Disconnect();
}

void TcData::Close_Query_Common() {
    for (Statement* statement : {&vcLoadQuery1, &vcQuery1, &vcQuery2, &vcQuery3, &vcUpdSQL,
                                 &qryServices, &vcImages, &vcUpdTemplate}) {
        statement->Close();
    }
}

bool TcData::cmn_ExecSQL() {
    return runBatch(gSQL, vcUpdSQL,
                    {.routine = "DataUCMN.cmn_ExecSQL",
                     .failureFile = gEXEPath + "CMNSQLError.TXT",
                     .transaction = &VelmaraCommon,
                     .testsEmpty = false});
}
