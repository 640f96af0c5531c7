// The suite database chosen at log-in, where all business data lies, and a second server beside it.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"

#include <memory>

class TgData
{
public:
    TgData();

    Connection Velmara;

    Statement vUpdSQL{Velmara, Statement::Use::Writer};
    Statement vLoadQuery1{Velmara, Statement::Use::Reader};
    Statement vLoadQuery2{Velmara, Statement::Use::Reader};
    Statement vQuery1{Velmara, Statement::Use::Reader};
    Statement vQuery2{Velmara, Statement::Use::Reader};
    Statement vQuery3{Velmara, Statement::Use::Reader};
    Statement vQuery4{Velmara, Statement::Use::Reader};
    Statement vQuery5{Velmara, Statement::Use::Reader};
    Statement vQuery6{Velmara, Statement::Use::Reader};
    Statement vQuery7{Velmara, Statement::Use::Reader};
    Statement vQuery8{Velmara, Statement::Use::Reader};
    Statement vQuery9{Velmara, Statement::Use::Reader};
    Statement vQuery10{Velmara, Statement::Use::Reader};
    Statement vQuery11{Velmara, Statement::Use::Reader};
    Statement vQuery12{Velmara, Statement::Use::Reader};
    Statement vQuery13{Velmara, Statement::Use::Reader};
    Statement vQuery14{Velmara, Statement::Use::Reader};
    Statement vQuery15{Velmara, Statement::Use::Reader};

    // Work queries of one purpose each.
    Statement qryCO{Velmara}, qryBranch{Velmara}, qryImages{Velmara}, vUpdTemplate{Velmara};
    Statement cds01{Velmara}, cds02{Velmara}, cds03{Velmara}, cds04{Velmara}, cds05{Velmara};
    Statement vQrySerials{Velmara}, vDebMstQuery{Velmara}, vDebBalQuery{Velmara};
    Statement vMstQuery1{Velmara}, vMstQuery2{Velmara}, vQryTrig{Velmara}, qryBulk{Velmara};
    Statement qryPreAudit{Velmara}, qryPostAudit{Velmara}, qryPostGL{Velmara};
    Statement qrySTKBalFix{Velmara}, qryInfinity{Velmara}, UniQuery3{Velmara};

    Connection RemoteDB;

    Statement remUpdSQL{RemoteDB, Statement::Use::Writer};
    Statement remLoadQuery1{RemoteDB, Statement::Use::Reader};
    Statement remQuery1{RemoteDB, Statement::Use::Reader};
    Statement remQuery2{RemoteDB, Statement::Use::Reader};
    Statement remQuery3{RemoteDB, Statement::Use::Reader};
    Statement remQuery4{RemoteDB, Statement::Use::Reader};
    Statement remQuery5{RemoteDB, Statement::Use::Reader};
    Statement remQuery6{RemoteDB, Statement::Use::Reader};
    Statement remQuery7{RemoteDB, Statement::Use::Reader};
    Statement remQuery8{RemoteDB, Statement::Use::Reader};
    Statement remQuery9{RemoteDB, Statement::Use::Reader};
    Statement remQuery10{RemoteDB, Statement::Use::Reader};
    Statement remQuery11{RemoteDB, Statement::Use::Reader};
    Statement remQuery12{RemoteDB, Statement::Use::Reader};
    Statement remQryTrig{RemoteDB}, remQueryImages{RemoteDB};

    /// Throws VelmaraError with unit, database and reason. xDBConnector and xAzure change nothing.
    bool ConnectDB_VEL(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                       const QString& xUser, const QString& xPswd, const QString& xAzure);
    bool ConnectDB_Remote(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                          const QString& xUser, const QString& xPswd, const QString& xAzure);
    void CloseDB_VEL();
    void Disconnect_VEL();
    void CloseDB_Remote();
    /// Closes the pool in its fixed order; the connection stays.
    void Close_Query_VEL();
    void Close_Query_Remote();

    /// The server's number of this connection. A failure is shown as "999999" and thrown on.
    QString VEL_GetSPID();

    /// Runs gSQL (xMemoNo 1) or gSQL2 in one transaction and empties it. False after a failure,
    /// which is shown and kept in SQL/SQLError-Velmara.TXT.
    bool vel_ExecSQL(int xMemoNo);
    /// The same without a transaction of its own.
    bool vel_ExecSQL_NoTrans(int xMemoNo);
    bool rem_ExecSQL(int xMemoNo);
};

inline std::unique_ptr<TgData> gData;
