#include "CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::Literals::StringLiterals;

namespace velcro::sweep {

const char* const usage =
    "usage: velcro-sweep --print [-S <server> -d <database> [-U user] [-P password]]\n"
    "       velcro-sweep --run    -S <server> -d <database> [-U user] [-P password]\n"
    "\n"
    "Brings a till database to this version's schema, or shows what that would send.\n"
    "  --print  writes the statements, with GO lines between them, and sends none; without -S\n"
    "           and -d those that an empty database gets\n"
    "  --run    sends them, writes what the server refused, and records the version for this\n"
    "           machine\n"
    "  -S       host, host,port or host\\instance; embedded:<folder> is the stand-in on this "
    "machine\n"
    "  -d       database of the till\n"
    "  -U       user; without one the seat's own account, where the driver knows it\n"
    "  -P       password; better in VELSQL_PASSWORD, where other users do not see it\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: 0 the sweep went to its end, 1 it did not, 2 wrong usage.\n";

std::optional<CommandLine> parseCommandLine(const QStringList& arguments,
                                            const QString& environmentPassword, QString& problem) {
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({{u"print"_s, {}},
                       {u"run"_s, {}},
                       {{u"h"_s, u"help"_s}, {}},
                       {u"S"_s, {}, u"server"_s},
                       {u"d"_s, {}, u"database"_s},
                       {u"U"_s, {}, u"user"_s},
                       {u"P"_s, {}, u"password"_s}});
    problem.clear();
    if (!parser.parse(arguments)) {
        problem = parser.errorText();
    } else if (parser.isSet(u"help"_s)) {
        return std::nullopt;
    } else if (!parser.positionalArguments().isEmpty()) {
        problem = "unknown argument: " + parser.positionalArguments().constFirst();
    } else if (parser.isSet(u"print"_s) == parser.isSet(u"run"_s)) {
        problem = u"either --print or --run"_s;
    } else if (parser.isSet(u"S"_s) != parser.isSet(u"d"_s)) {
        problem = u"-S and -d belong together"_s;
    } else if (parser.isSet(u"run"_s) && parser.value(u"S"_s).isEmpty()) {
        problem = u"--run wants -S and -d"_s;
    }
    if (!problem.isEmpty()) {
        return std::nullopt;
    }
    return CommandLine{.run = parser.isSet(u"run"_s),
                       .server = parser.value(u"S"_s),
                       .database = parser.value(u"d"_s),
                       .user = parser.value(u"U"_s),
                       .password =
                           parser.isSet(u"P"_s) ? parser.value(u"P"_s) : environmentPassword};
}

} // namespace velcro::sweep
