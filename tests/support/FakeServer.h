// A server that answers as it is told and can go away in the middle of a statement, which no real
// one does on request.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace velcro::test {

/// While it lives, every connection of the program leads to it.
class FakeServer
{
public:
    FakeServer();
    ~FakeServer();
    FakeServer(const FakeServer&) = delete;
    FakeServer& operator=(const FakeServer&) = delete;

    /// What happened, in order: "connect DB", "begin", "commit", "rollback", "disconnect", and the
    /// text of each batch.
    std::vector<std::string> log;
    sql::ConnectionSettings settings;       // of the last connect
    std::vector<sql::Parameter> parameters; // of the last batch

    /// Answers batches whose text holds a word; the first that fits counts.
    using Answer = std::function<sql::RowSet()>;
    void answer(const std::string& word, Answer answer);
    void answer(const std::string& word, const std::vector<std::string>& columns,
                const std::vector<std::vector<std::string>>& rows);
    /// The next batches that hold the word lose the connection, or fail with a message.
    void lose(const std::string& word, int times = 1);
    void fail(const std::string& word, const std::string& message);
    bool refusesConnections = false;

    int count(const std::string& entry) const;

private:
    friend class FakeConnection;
    struct Rule
    {
        std::string word;
        Answer answer;
    };
    struct Loss
    {
        std::string word;
        int times;
    };
    std::vector<Rule> rules_;
    std::vector<Loss> losses_;
};

} // namespace velcro::test
