// The control and configuration databases of the suite; no screen of this program opens them.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"

#include <memory>

class TcfgData
{
public:
    TcfgData();

    Connection ControlDB;
    Connection ConfigDB;

    Statement conUpdSQL{ControlDB, Statement::Use::Writer};
    Statement conLoadQuery1{ControlDB, Statement::Use::Reader};
    Statement conQuery1{ControlDB, Statement::Use::Reader};
    Statement conQuery2{ControlDB, Statement::Use::Reader};
    Statement conQuery3{ControlDB, Statement::Use::Reader};

    Statement cfgUpdSQL{ControlDB, Statement::Use::Writer}; // bound to the control database
    Statement cfgLoadQuery1{ConfigDB, Statement::Use::Reader};
    Statement cfgQuery1{ConfigDB, Statement::Use::Reader};
    Statement cfgQuery2{ConfigDB, Statement::Use::Reader};
    Statement cfgQuery3{ConfigDB, Statement::Use::Reader};

    bool ConnectDB_CON(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                       const QString& xUser, const QString& xPswd, const QString& xAzure);
    bool ConnectDB_CFG(const QString& xDBConnector, const QString& xHost, const QString& xDBase,
                       const QString& xUser, const QString& xPswd, const QString& xAzure);

    bool con_ExecSQL(int xMemoNo);
    /// The statement runs on the control database, the transaction on the configuration database.
    bool cfg_ExecSQL(int xMemoNo);
};

inline std::unique_ptr<TcfgData> cfgData;
