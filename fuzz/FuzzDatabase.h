// The database that the session fuzzer works on: made once, and put back whenever an input kept
// something, so that every input meets the same one.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "support/TempFolder.h"

#include <memory>
#include <string>
#include <vector>

struct sqlite3;

class FuzzDatabase
{
public:
    /// Makes the tables of the deployment scripts, with a few rows. Only one may live at a time.
    FuzzDatabase();
    ~FuzzDatabase();
    FuzzDatabase(const FuzzDatabase&) = delete;
    FuzzDatabase& operator=(const FuzzDatabase&) = delete;

    velcro::sql::SqlConnection& connection() { return *connection_; }

    /// Lets what runs from now on take this many steps of SQLite's machine; then it is interrupted.
    void allowSteps(int steps);
    bool wasInterrupted() const { return interrupted_; }

    /// True while no transaction is open in the file.
    bool isAtRest() const;
    /// Every byte of the database as it was made.
    bool isAsMade();
    /// A new connection, on a file that is as it was made.
    void restore();
    /// A new connection that remembers nothing of the last one.
    void reconnect();

private:
    static int watch(sqlite3* database, const char** message, const void* api);
    static int countDown(void* self);
    void connect(bool create);
    void fill();
    std::string image() const;

    velcro::test::TempFolder folder_;
    std::unique_ptr<velcro::sql::SqlConnection> connection_;
    sqlite3* file_ = nullptr; // the connection's own handle
    std::string made_;        // the file
    std::string opened_;      // its image once a connection has touched it
    bool wrote_ = false;
    int stepsLeft_ = 0;
    bool interrupted_ = false;
};
