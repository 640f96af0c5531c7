#include "Session.h"

#include "BatchReader.h"
#include "Interrupt.h"
#include "ResultPrinter.h"

#include <atomic>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace velcro::velsql {

namespace {

using sql::SqlError;
using sql::SqlErrorKind;

class Session
{
public:
    Session(const CommandLine& line, std::istream& standardInput, std::ostream& out,
            std::ostream& problems)
        : line_(line)
        , standardInput_(standardInput)
        , out_(out)
        , problems_(problems)
        , connection_(sql::createConnection(line.server)) {}

    int run() {
        if (!filesAreReadable() || !connect()) {
            return 1;
        }
        const Interrupt interrupt([this] { return cancel(); });
        for (const Source& source : line_.sources) {
            runSource(source);
            if (over_) {
                break;
            }
        }
        return failed_ ? 1 : 0;
    }

private:
    /// Before anything has run, so that a slip in a file's name leaves nothing half done.
    bool filesAreReadable() {
        for (const Source& source : line_.sources) {
            if (source.kind != Source::Kind::File) {
                continue;
            }
            if (std::filesystem::is_directory(source.value) || !std::ifstream(source.value)) {
                problems_ << "velsql: cannot read " << source.value << '\n';
                return false;
            }
            if (std::filesystem::is_regular_file(source.value) && !isText(source.value)) {
                return false;
            }
        }
        return true;
    }

    bool isText(const std::string& name) {
        std::ifstream file(name, std::ios::binary);
        BatchReader reader(file);
        try {
            while (reader.next()) {
            }
            return true;
        } catch (const NoText& problem) {
            problems_ << "velsql: " << name << ", " << problem.what() << '\n';
            return false;
        }
    }

    /// On the thread of the interrupt. False where there is nothing to cancel.
    bool cancel() {
        if (running_) {
            connection_->cancel();
        }
        interrupted_ = true;
        return running_;
    }

    bool connect() {
        sql::ConnectionSettings settings;
        settings.server = line_.server;
        settings.database = line_.database;
        settings.user = line_.user;
        settings.password = line_.password;
        settings.createDatabase = true;
        settings.mayNameDriver = true;
        try {
            connection_->connect(settings);
            return true;
        } catch (const SqlError& error) {
            problems_ << "velsql: cannot connect to " << line_.database << " on " << line_.server
                      << ": " << error.what() << '\n';
            return false;
        }
    }

    void runSource(const Source& source) {
        if (source.kind == Source::Kind::StandardInput) {
            runBatches(standardInput_, {});
        } else if (source.kind == Source::Kind::Text) {
            std::istringstream text(source.value);
            runBatches(text, {});
        } else {
            std::ifstream file(source.value, std::ios::binary);
            runBatches(file, source.value);
        }
    }

    void runBatches(std::istream& in, const std::string& script) {
        BatchReader reader(in);
        while (!over_) {
            std::optional<Batch> batch;
            try {
                batch = reader.next();
            } catch (const NoText& problem) {
                stop("velsql: " + (script.empty() ? "standard input" : script) + ", " +
                     problem.what());
            }
            if (!batch) {
                return;
            }
            running_ = true;
            for (int i = 0; i < batch->count && !over_; ++i) {
                runBatch(batch->text, {script, batch->line});
            }
            running_ = false;
        }
    }

    void stop(const std::string& problem) {
        problems_ << problem << '\n';
        failed_ = true;
        over_ = true;
    }

    void runBatch(const std::string& text, const BatchPlace& place) {
        bool printedError = false;
        try {
            connection_->run(text, {}, [&](sql::StatementResult&& result) {
                for (const auto& message : result.messages) {
                    printedError = printedError || isError(message);
                }
                print(result, place, out_);
            });
        } catch (const SqlError& error) {
            if (!printedError || error.sqlState() == "HY008") {
                print(error.message(), place, out_);
            }
            failed_ = true;
            over_ = line_.stopAtError || error.kind() != SqlErrorKind::Statement;
        }
        failed_ = failed_ || interrupted_;
        over_ = over_ || interrupted_;
        errno = 0;
        if (!out_.flush()) {
            stop(std::string("velsql: cannot write the results: ") +
                 (errno != 0 ? std::strerror(errno) : "the output takes no more"));
        }
    }

    const CommandLine& line_;
    std::istream& standardInput_;
    std::ostream& out_;
    std::ostream& problems_;
    std::unique_ptr<sql::SqlConnection> connection_;
    bool failed_ = false;
    bool over_ = false;
    std::atomic<bool> running_ = false;
    std::atomic<bool> interrupted_ = false;
};

} // namespace

int runSession(const CommandLine& line, std::istream& standardInput, std::ostream& out,
               std::ostream& problems) {
    return Session(line, standardInput, out, problems).run();
}

} // namespace velcro::velsql
