// The local database of a till, where the machine has one.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"

#include <functional>
#include <memory>

class TtData
{
public:
    TtData();

    Connection VelmaraTILL;

    Statement tUpdSQL{VelmaraTILL, Statement::Use::Writer};
    Statement tLoadQuery1{VelmaraTILL, Statement::Use::Reader};
    Statement tLoadQuery2{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery1{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery2{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery3{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery4{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery5{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery6{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery7{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery8{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery9{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery10{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery11{VelmaraTILL, Statement::Use::Reader};
    Statement tQuery12{VelmaraTILL, Statement::Use::Reader};

    /// Called after each connect when set, also after one that the connection made by itself.
    std::function<void()> afterConnect;

    /// Opens by the gLoc... values. Throws VelmaraError with unit, database and reason.
    bool ConnectDB_TIL();
    void Disconnect_TIL();
    /// Closes statements and connection, also one that was lost; does nothing when not connected.
    void CloseDB_TIL();
    void Close_Query_TIL();

    /// Runs gSQL (xMemoNo 1) or gSQL2 in one transaction. Shows nothing: the reason of a false
    /// result is in gErrorMsg. Not connected leaves the buffer as it is. A database that others keep
    /// locked is thrown as SqlError 1222: a sweep would wait anew with each of its statements.
    bool til_ExecSQL(int xMemoNo);

private:
    void VelmaraTILLAfterConnect();
};

inline std::unique_ptr<TtData> tData;
