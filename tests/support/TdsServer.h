// A database server on loopback that says what a test tells it to, in the protocol of SQL Server:
// what a real one does rarely, and breaking off in the middle, can so be had at will.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

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
    /// Ends a statement. affected is -1 where it has no count; more tells that another follows.
    TdsReply& done(std::int64_t affected = -1, bool more = false, bool failed = false);
    /// The connection is cut behind what stands so far.
    TdsReply& cut() {
        cut_ = true;
        return *this;
    }

private:
    friend class TdsServer;
    TdsReply& message(int token, int number, const std::string& text, int level, int state,
                      int line);
    TdsReply& acceptLogin();
    TdsReply& transactionChange(int type, bool begins);

    std::string bytes_;
    bool cut_ = false;
};

class TdsServer
{
public:
    /// What a batch is answered with; it runs on the server's thread.
    using Answer = std::function<TdsReply(const std::string& batch)>;

    enum class Login { Accept, Refuse, CutAtOnce, NeverAnswer };

    explicit TdsServer(Answer answer, Login login = Login::Accept);
    ~TdsServer();
    TdsServer(const TdsServer&) = delete;
    TdsServer& operator=(const TdsServer&) = delete;

    /// "127.0.0.1,<port>"
    std::string address() const;
    /// What a commit or rollback is answered with from now on, beside the ordinary.
    std::atomic<bool> cutAtTransactionEnd = false;
    std::atomic<bool> transactionIsOver = false; // rollback is refused with 3903

    /// The bytes of the last procedure call, which is how a batch with parameters comes.
    std::string lastCall() const {
        const std::lock_guard lock(callMutex_);
        return lastCall_;
    }

private:
    void serve();
    void serveClient(int socket);
    TdsReply answerRequest(int type, const std::string& body);
    TdsReply answerTransaction(const std::string& body);

    Answer answer_;
    Login login_;
    mutable std::mutex callMutex_;
    std::string lastCall_;
    int listener_ = -1;
    int wake_[2] = {-1, -1};
    int port_ = 0;
    std::thread thread_;
};

} // namespace velcro::test
