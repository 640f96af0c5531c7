#include "platform/sqlserver/WaitingConnection.h"

#include "platform/sqlserver/Waiting.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>

namespace velcro::sql {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// Most answers are there before anybody could see that there was a wait.
constexpr milliseconds quiet{40};
constexpr milliseconds betweenLooks{20};

/// The connection and the thread that works with it. Whoever gave up a wait leaves it to itself: it
/// ends when the driver lets go of it, and closes the connection then.
class Worker
{
public:
    explicit Worker(std::unique_ptr<SqlConnection> connection)
        : connection_(std::move(connection)) {}

    SqlConnection& connection() { return *connection_; }

    /// Begins work; self keeps the worker alive until it is through.
    static void begin(const std::shared_ptr<Worker>& self,
                      std::function<void(SqlConnection&)> work) {
        const std::lock_guard lock(self->mutex_);
        self->work_ = std::move(work);
        self->failure_ = nullptr;
        if (!self->thread_.joinable()) {
            self->thread_ = std::thread([self] { self->loop(); });
        }
        self->changed_.notify_all();
    }

    /// Whether the work is through by then.
    bool waitFor(milliseconds time) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, time, [this] { return !work_; });
    }

    /// Throws what the work threw.
    void takeOutcome() {
        if (failure_) {
            std::rethrow_exception(std::exchange(failure_, nullptr));
        }
    }

    /// No more work comes. Whoever gave up a wait does not wait for the end of it either.
    void leave(bool wait) {
        {
            const std::lock_guard lock(mutex_);
            left_ = true;
            changed_.notify_all();
        }
        if (thread_.joinable() && wait) {
            thread_.join();
        } else if (thread_.joinable()) {
            thread_.detach();
        }
    }

private:
    void loop() {
        std::unique_lock lock(mutex_);
        while (true) {
            changed_.wait(lock, [this] { return work_ || left_; });
            if (!work_) {
                return;
            }
            const auto work = work_;
            lock.unlock();
            std::exception_ptr failure;
            try {
                work(*connection_);
            } catch (...) {
                failure = std::current_exception();
            }
            lock.lock();
            failure_ = failure;
            work_ = nullptr;
            changed_.notify_all();
        }
    }

    std::unique_ptr<SqlConnection> connection_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::function<void(SqlConnection&)> work_; // that is under way
    std::exception_ptr failure_;
    std::thread thread_; // begun with the first work
    bool left_ = false;
};

class WaitingConnection final : public SqlConnection
{
public:
    explicit WaitingConnection(std::function<std::unique_ptr<SqlConnection>()> make)
        : make_(std::move(make))
        , worker_(std::make_shared<Worker>(make_())) {}
    ~WaitingConnection() override {
        disconnect();
        worker_->leave(!givenUp_);
    }

    void connect(const ConnectionSettings& settings) override {
        if (std::exchange(givenUp_, false)) {
            worker_ = std::make_shared<Worker>(make_());
        }
        perform([settings](SqlConnection& connection) { connection.connect(settings); });
    }
    void disconnect() noexcept override {
        if (!isConnected()) {
            return;
        }
        try {
            perform([](SqlConnection& connection) { connection.disconnect(); });
        } catch (const std::exception&) {
            // Given up: it is as good as closed.
        }
    }
    bool isConnected() const override {
        return !givenUp_ && (busy_ || worker_->connection().isConnected());
    }

    void run(std::string_view batch, std::span<const Parameter> parameters,
             const OnResult& onResult) override {
        if (!waitHook().goOn) {
            requireUsable();
            worker_->connection().run(batch, parameters, onResult);
            return;
        }
        // What the thread works with is its own: it may be left behind with it.
        const auto results = std::make_shared<std::deque<StatementResult>>();
        std::exception_ptr failure;
        try {
            perform([results, text = std::string(batch),
                     values = std::vector<Parameter>(parameters.begin(), parameters.end())](
                        SqlConnection& connection) {
                connection.run(text, values, [&results](StatementResult&& result) {
                    results->push_back(std::move(result));
                });
            });
        } catch (...) {
            failure = std::current_exception();
        }
        if (!givenUp_) {
            for (auto& result : *results) {
                onResult(std::move(result));
            }
        }
        if (failure) {
            std::rethrow_exception(failure);
        }
    }
    void cancel() noexcept override { worker_->connection().cancel(); }
    void begin() override {
        perform([](SqlConnection& connection) { connection.begin(); });
    }
    void commit() override {
        perform([](SqlConnection& connection) { connection.commit(); });
    }
    void rollback() override {
        if (!givenUp_) { // the server rolls back what was given up
            perform([](SqlConnection& connection) { connection.rollback(); });
        }
    }

private:
    void requireUsable() const {
        if (busy_) {
            throw SqlError(SqlErrorKind::Statement, "HY010",
                           {.text = "The connection is still waiting for the server's answer."},
                           {});
        }
        if (givenUp_) {
            throw SqlError(SqlErrorKind::NotConnected, "08003",
                           {.text = "The connection to the server was given up."}, {});
        }
    }

    void perform(std::function<void(SqlConnection&)> work) {
        requireUsable();
        if (!waitHook().goOn) {
            work(worker_->connection());
            return;
        }
        busy_ = true;
        const auto began = Clock::now();
        Worker::begin(worker_, std::move(work));
        const bool through = worker_->waitFor(quiet) || watch(began);
        busy_ = false;
        if (!through) {
            giveUp();
        }
        worker_->takeOutcome();
    }

    /// Whether the work came to its end; false when the user did not want to wait for it.
    bool watch(Clock::time_point began) {
        const WaitHook hook = waitHook();
        bool through = false;
        bool goesOn = true;
        while (!through && goesOn) {
            const auto waited = std::chrono::duration_cast<milliseconds>(Clock::now() - began);
            goesOn = hook.goOn(WaitFor::Server, waited);
            through = worker_->waitFor(goesOn ? betweenLooks : milliseconds(0));
        }
        if (hook.over) {
            hook.over();
        }
        return through;
    }

    [[noreturn]] void giveUp() {
        givenUp_ = true;
        // The driver may wait for the server even to cancel.
        std::thread([worker = worker_] { worker->connection().cancel(); }).detach();
        worker_->leave(false);
        throw SqlError(SqlErrorKind::ConnectionLost, "08S01",
                       {.text = "The server did not answer, and waiting for it was given up."}, {});
    }

    std::function<std::unique_ptr<SqlConnection>()> make_;
    std::shared_ptr<Worker> worker_;
    bool busy_ = false;
    bool givenUp_ = false;
};

} // namespace

std::unique_ptr<SqlConnection>
createWaitingConnection(std::function<std::unique_ptr<SqlConnection>()> make) {
    return std::make_unique<WaitingConnection>(std::move(make));
}

} // namespace velcro::sql
