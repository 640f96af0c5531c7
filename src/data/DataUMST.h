// The server's own master database.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"

#include <memory>

class TmData
{
public:
    TmData();

    Connection MasterDB;

    Statement msUpdSQL{MasterDB, Statement::Use::Writer};
    Statement msLoadQuery1{MasterDB, Statement::Use::Reader};
    Statement msQuery1{MasterDB, Statement::Use::Reader};
    Statement msQuery2{MasterDB, Statement::Use::Reader};
    Statement msQuery3{MasterDB, Statement::Use::Reader};

    bool ConnectDB_MST(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                       const QString& xUser, const QString& xPswd, const QString& xAzure);
    void Disconnect_MST();

    /// Runs gSQL in one transaction; a failure goes to MasterDBError.TXT and is not shown.
    bool mst_ExecSQL();
};

inline std::unique_ptr<TmData> mData;
