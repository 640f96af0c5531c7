#include "Options.h"

#include <QCommandLineParser>

using namespace Qt::Literals::StringLiterals;

namespace velcro::report {

const char* const usage =
    "usage: velcro-report [-U user [-P password] [-d database]] [NAME [argument]...]\n"
    "\n"
    "Prints what a function answers to the script of a report template; without NAME all "
    "functions\n"
    "with what the report designer shows of them.\n"
    "  -U       signs this user in on the seat first, as the program does; without it the "
    "functions\n"
    "           that need no database answer\n"
    "  -P       password; better in VELCRO_PASSWORD, where other users do not see it\n"
    "  -d       name of the database at log-in; without it the first that is offered\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: 0 the function answered, 1 it failed or nobody could sign in, 2 wrong usage.\n";

std::optional<Options> readOptions(const QStringList& line, const QString& environmentPassword,
                                   QString& problem) {
    QCommandLineParser parser;
    // A negative amount is an argument.
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOptions({{{u"h"_s, u"help"_s}, {}},
                       {u"U"_s, {}, u"user"_s},
                       {u"P"_s, {}, u"password"_s},
                       {u"d"_s, {}, u"database"_s}});
    problem.clear();
    if (!parser.parse(line)) {
        problem = parser.errorText();
    } else if (parser.isSet(u"help"_s)) {
        return std::nullopt;
    } else if (parser.value(u"U"_s).isEmpty() && (parser.isSet(u"P"_s) || parser.isSet(u"d"_s))) {
        problem = u"-P and -d want -U"_s;
    }
    if (!problem.isEmpty()) {
        return std::nullopt;
    }
    QStringList words = parser.positionalArguments();
    return Options{.user = parser.value(u"U"_s),
                   .password = parser.isSet(u"P"_s) ? parser.value(u"P"_s) : environmentPassword,
                   .database = parser.value(u"d"_s),
                   .function = words.isEmpty() ? QString() : words.takeFirst(),
                   .arguments = words};
}

} // namespace velcro::report
