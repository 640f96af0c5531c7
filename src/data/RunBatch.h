// The one routine behind all run routines of the data modules: a statement buffer goes to its
// database as one text, in one transaction.
#pragma once

#include "data/Connection.h"
#include "data/Statement.h"
#include "data/TextLines.h"

/// How the run routines of the modules differ.
struct BatchRules
{
    enum class OnFailure {
        MessageBox, // "SQL Error" and the server's text
        Silent,
        ErrorMessage, // gErrorMsg: unit.routine and the server's text
    };

    const char* routine;         // unit and routine, for messages
    QString failureFile;         // path, with "\\" between its folders
    Connection* transaction;     // nullptr runs without a transaction of its own
    bool clearsErrorMsg = false; // at the start
    bool testsEmpty = true;      // an empty buffer is left alone; else it runs as an empty text
    bool testsConnected = false; // the buffer keeps its text when there is no connection
    bool lockIsThrown = false;   // a database that others keep locked: the transaction cannot begin
    OnFailure onFailure = OnFailure::Silent;
};

/// Takes the buffer's text, empties it and runs it on the writer. False when it failed and was
/// rolled back. An exception of the transaction's start is not caught; the stand-in's transaction
/// only starts with its first change, which lockIsThrown allows for.
bool runBatch(TextLines& buffer, Statement& writer, const BatchRules& rules);

/// gSQL for 1, gSQL2 for any other number.
TextLines& statementBuffer(int xMemoNo);
