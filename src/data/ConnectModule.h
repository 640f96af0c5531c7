// How every data module opens a connection, and the options that several of them share.
#pragma once

#include "data/Connection.h"

/// Where to, and how a failure is told.
struct ConnectTarget
{
    QString host, database, user, password;
    QString connector, azure; // change nothing
    const char* unit;         // first %1 of the failure
    const char* failure = "%1.VelmaraConnect - Failed to connect to database [%2]. Reason: %3";
};

/// Closes what is open and connects. Throws VelmaraError with unit, database and reason.
bool connectModule(Connection& connection, const ConnectTarget& target);

/// The specific options of the control, till and master connections.
QStringList standardSpecificOptions();
