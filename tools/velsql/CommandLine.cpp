#include "CommandLine.h"

#include <string_view>

namespace velcro::velsql {

const char* const usage =
    "usage: velsql -S <server> -d <database> [-U user] [-P password] [-i file]... [-Q \"batch\"] "
    "[-b]\n"
    "\n"
    "Sends T-SQL, with GO lines between batches, and prints what comes back.\n"
    "  -S  host, host,port or host\\instance; embedded:<folder> is the stand-in on this machine\n"
    "  -d  database\n"
    "  -U  user; without one the seat's own account, where the driver knows it\n"
    "  -P  password; better in VELSQL_PASSWORD, where other users do not see it\n"
    "  -i  file to run; may be given several times, also mixed with -Q, and runs in this order\n"
    "  -Q  text to run; without -i and -Q standard input is read\n"
    "  -b  stop at the first batch that fails\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: 0 all batches ran, 1 a batch failed or there was no connection, 2 wrong usage.\n";

namespace {

class Parser
{
public:
    Parser(std::span<const char* const> arguments, std::string& problem)
        : arguments_(arguments)
        , problem_(problem) {}

    std::optional<CommandLine> run() {
        for (; at_ < arguments_.size(); ++at_) {
            if (!takeOption(arguments_[at_])) {
                return std::nullopt;
            }
        }
        if (!line_.help && (line_.server.empty() || line_.database.empty())) {
            problem_ = line_.server.empty() ? "-S is missing" : "-d is missing";
            return std::nullopt;
        }
        if (line_.sources.empty()) {
            line_.sources.emplace_back();
        }
        return line_;
    }

private:
    bool takeOption(std::string_view argument) {
        if (argument == "-b") {
            return line_.stopAtError = true;
        }
        if (argument == "-h" || argument == "-?" || argument == "--help") {
            return line_.help = true;
        }
        const bool isOption =
            argument.size() >= 2 && argument[0] == '-' &&
            std::string_view("SdUPiQ").find(argument[1]) != std::string_view::npos;
        if (!isOption) {
            problem_ = "unknown argument: " + std::string(argument);
            return false;
        }
        if (argument.size() == 2 && at_ + 1 == arguments_.size()) {
            problem_ = std::string(argument) + " wants a value";
            return false;
        }
        takeValue(argument[1], argument.size() > 2 ? argument.substr(2) : arguments_[++at_]);
        return true;
    }

    void takeValue(char option, std::string_view value) {
        switch (option) {
        case 'S':
            line_.server = value;
            break;
        case 'd':
            line_.database = value;
            break;
        case 'U':
            line_.user = value;
            break;
        case 'P':
            line_.password = value;
            break;
        case 'i':
            line_.sources.push_back({Source::Kind::File, std::string(value)});
            break;
        default:
            line_.sources.push_back({Source::Kind::Text, std::string(value)});
        }
    }

    std::span<const char* const> arguments_;
    std::string& problem_;
    std::size_t at_ = 0;
    CommandLine line_;
};

} // namespace

std::optional<CommandLine> parseCommandLine(std::span<const char* const> arguments,
                                            const char* environmentPassword, std::string& problem) {
    auto line = Parser(arguments, problem).run();
    if (line && line->password.empty() && environmentPassword != nullptr) {
        line->password = environmentPassword;
    }
    return line;
}

} // namespace velcro::velsql
