// A database server on loopback that says what a test tells it to, in the protocol of SQL Server:
// what a real one does rarely, and breaking off in the middle, can so be had at will.
#pragma once

#include "support/Sockets.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace velcro::test {

/// The tokens of one answer, in order. Columns and rows are one nvarchar(50) wide.
class TdsReply
{
public:
    TdsReply& error(int number, const std::string& text, int level = 16, int state = 1,
                    int line = 1) {
        return message(0xAA, number, text, level, state, line);
    }
    TdsReply& information(int number, const std::string& text) {
        return message(0xAB, number, text, 0, 1, 1);
    }
    TdsReply& column(const std::string& name);
    TdsReply& row(const std::string& value);
    /// One column of decimal(digits, scale), and its rows without their point.
    TdsReply& decimalColumn(const std::string& name, int digits, int scale);
    TdsReply& decimalRow(std::int64_t value);
    /// Ends a statement. affected is -1 where it has no count; more tells that another follows.
    TdsReply& done(std::int64_t affected = -1, bool more = false, bool failed = false);
    /// The connection is cut behind what stands so far.
    TdsReply& cut() {
        cut_ = true;
        return *this;
    }
    /// Nothing follows what stands so far, until the client cancels.
    TdsReply& stall() {
        stalls_ = true;
        return *this;
    }
    /// The error before it has ended the transaction; done() follows.
    TdsReply& endTransaction();

private:
    friend class TdsServer;
    TdsReply& message(int token, int number, const std::string& text, int level, int state,
                      int line);
    TdsReply& acceptLogin();
    TdsReply& acknowledgeCancel();
    TdsReply& transactionChange(int type, bool begins);

    std::string bytes_;
    bool cut_ = false;
    bool stalls_ = false;
    bool endsTransaction_ = false;
};

class TdsServer
{
public:
    /// What a batch is answered with; it runs on the server's thread. Batches that ask for or begin a
    /// transaction are answered by the server itself.
    using Answer = std::function<TdsReply(const std::string& batch)>;

    enum class Login { Accept, Refuse, CutAtOnce, NeverAnswer };

    explicit TdsServer(Answer answer, Login login = Login::Accept);
    ~TdsServer();
    TdsServer(const TdsServer&) = delete;
    TdsServer& operator=(const TdsServer&) = delete;

    /// "127.0.0.1,<port>"
    std::string address() const;
    /// From now on a commit or rollback is not answered: the connection is cut.
    std::atomic<bool> cutAtTransactionEnd = false;

    /// The batches that begin with INSERT and were kept: committed, or sent outside a transaction.
    std::vector<std::string> kept() const {
        const std::lock_guard lock(mutex_);
        return kept_;
    }
    /// The bytes of the last procedure call, which is how a batch with parameters comes.
    std::string lastCall() const {
        const std::lock_guard lock(mutex_);
        return lastCall_;
    }

private:
    void serve();
    void serveClient(int socket);
    TdsReply answerRequest(int type, const std::string& body);
    TdsReply answerTransaction(const std::string& body);
    TdsReply answerBatch(const std::string& batch);
    TdsReply begun();
    void noteWork(const std::string& batch);
    void endTransaction(bool keep);

    Answer answer_;
    Login login_;
    mutable std::mutex mutex_;
    std::string lastCall_;
    std::vector<std::string> kept_;
    std::vector<std::string> waiting_; // for the commit
    bool inTransaction_ = false;
    int listener_ = -1;
    Bell bell_;
    int port_ = 0;
    std::thread thread_;
};

} // namespace velcro::test
