#include "Session.h"

#include "BatchReader.h"
#include "ResultPrinter.h"

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
        }
        return true;
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
            runBatches(standardInput_);
        } else if (source.kind == Source::Kind::Text) {
            std::istringstream text(source.value);
            runBatches(text);
        } else {
            std::ifstream file(source.value, std::ios::binary);
            runBatches(file);
        }
    }

    void runBatches(std::istream& in) {
        BatchReader reader(in);
        while (!over_) {
            const auto batch = reader.next();
            if (!batch) {
                return;
            }
            for (int i = 0; i < batch->count && !over_; ++i) {
                runBatch(batch->text);
            }
        }
    }

    void runBatch(const std::string& text) {
        bool printedError = false;
        try {
            connection_->run(text, {}, [&](sql::StatementResult&& result) {
                for (const auto& message : result.messages) {
                    printedError = printedError || isError(message);
                }
                print(result, out_);
            });
        } catch (const SqlError& error) {
            if (!printedError) {
                print(error.message(), out_);
            }
            failed_ = true;
            over_ = line_.stopAtError || error.kind() != SqlErrorKind::Statement;
        }
        out_.flush();
    }

    const CommandLine& line_;
    std::istream& standardInput_;
    std::ostream& out_;
    std::ostream& problems_;
    std::unique_ptr<sql::SqlConnection> connection_;
    bool failed_ = false;
    bool over_ = false;
};

} // namespace

int runSession(const CommandLine& line, std::istream& standardInput, std::ostream& out,
               std::ostream& problems) {
    return Session(line, standardInput, out, problems).run();
}

} // namespace velcro::velsql
