// The common database of the installation: versions, error messages, the list of suite databases.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"

#include <memory>

class TcData
{
public:
    TcData();

    Connection VelmaraCommon;

    Statement vcUpdSQL{VelmaraCommon, Statement::Use::Writer};
    Statement vcLoadQuery1{VelmaraCommon, Statement::Use::Reader};
    Statement vcQuery1{VelmaraCommon, Statement::Use::Reader};
    Statement vcQuery2{VelmaraCommon, Statement::Use::Reader};
    Statement vcQuery3{VelmaraCommon, Statement::Use::Reader};
    Statement qryServices{VelmaraCommon};
    Statement vcImages{VelmaraCommon};
    Statement vcUpdTemplate{VelmaraCommon};

    /// Opens by the gCmn... values. Throws VelmaraError with unit, database and reason.
    bool ConnectDB_Common();
    void CloseDB_Common();
    void Close_Query_Common();

    /// Runs gSQL, also an empty one, in one transaction; a failure goes to CMNSQLError.TXT.
    bool cmn_ExecSQL();
};

inline std::unique_ptr<TcData> cData;
