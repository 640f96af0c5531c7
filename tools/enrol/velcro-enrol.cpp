// velcro-enrol: takes a finger on the seat's reader and writes its template for a user, so that a
// site can try signing in by finger.
#include "Enrolment.h"
#include "Storage.h"

#include "platform/about/About.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <exception>
#include <iostream>

using namespace Qt::Literals::StringLiterals;
using velcro::fingerprint::Family;

namespace {

const char* const usage =
    "usage: velcro-enrol --user <code> -S <server> -d <database> [-U user] [-P password]\n"
    "                    [--device 01|02] [--finger <description>] [--mask <number>]\n"
    "       velcro-enrol --user <code> --print\n"
    "\n"
    "Takes a finger on this seat's reader and writes its template into the suite database.\n"
    "  --user    code of a user who is there\n"
    "  --device  as BDDeviceCode of the machine configuration: 01 writes SYSUserBiometrics,\n"
    "            02 SYSBiometricDetl and the user's BioID; 01 without it\n"
    "  --finger  which finger it is, up to 20 letters\n"
    "  --mask    finger mask\n"
    "  --print   writes the template's text and nothing into a database\n"
    "  -S -d -U -P  as velsql; the password better in VELSQL_PASSWORD\n"
    "  --version, --notices  the version; the libraries it stands on and their licences\n"
    "Exit status: 0 done, 1 not done, 2 wrong usage.\n";

constexpr int wrongUsage = 2;

void addOptions(QCommandLineParser& line) {
    for (const QString& name :
         {u"user"_s, u"device"_s, u"finger"_s, u"mask"_s, u"S"_s, u"d"_s, u"U"_s, u"P"_s}) {
        line.addOption({name, {}, u"value"_s});
    }
    line.addOptions({{u"print"_s, {}}, {{u"h"_s, u"help"_s}, {}}});
}

QString problemOf(const QCommandLineParser& line) {
    const QString device = line.value(u"device"_s);
    if (!line.positionalArguments().isEmpty()) {
        return "unknown argument: " + line.positionalArguments().constFirst();
    }
    if (line.value(u"user"_s).isEmpty()) {
        return u"--user is missing"_s;
    }
    if (!line.isSet(u"print"_s) && (!line.isSet(u"S"_s) || !line.isSet(u"d"_s))) {
        return u"-S and -d are missing"_s;
    }
    return device.isEmpty() || device == "01"_L1 || device == "02"_L1 ? QString()
                                                                      : "no such device: " + device;
}

void enrol(const QCommandLineParser& line, QTextStream& out, QTextStream& progress) {
    const auto value = [&](const char* name) {
        return line.value(QString::fromLatin1(name)).toStdString();
    };
    std::unique_ptr<velcro::sql::SqlConnection> suite;
    if (!line.isSet(u"print"_s)) { // before anybody lays a finger on five times for nothing
        suite = velcro::sql::createConnection(value("S"));
        suite->connect({.server = value("S"),
                        .database = value("d"),
                        .user = value("U"),
                        .password = line.isSet(u"P"_s)
                                        ? value("P")
                                        : qEnvironmentVariable("VELSQL_PASSWORD").toStdString()});
        velcro::enrol::identityOf(*suite, value("user"));
    }
    const QByteArray text = velcro::enrol::takeFinger(line.value(u"user"_s), progress);
    if (!suite) {
        out << text << '\n';
        return;
    }
    velcro::enrol::store(*suite, value("device") == "02" ? Family::ZKTeco : Family::DigitalPersona,
                         {.user = value("user"),
                          .description = value("finger"),
                          .mask = line.value(u"mask"_s).toInt(),
                          .text = text.toStdString()});
    out << "The template of " << line.value(u"user"_s) << " is written.\n";
}

} // namespace

int main(int argc, char** argv) {
    if (velcro::about::answer(argc, argv, std::cout)) {
        return 0;
    }
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout), problems(stderr);
    QCommandLineParser line;
    line.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    addOptions(line);
    const bool parsed = line.parse(QCoreApplication::arguments());
    if (parsed && line.isSet(u"help"_s)) {
        out << usage;
        return 0;
    }
    if (const QString problem = parsed ? problemOf(line) : line.errorText(); !problem.isEmpty()) {
        problems << "velcro-enrol: " << problem << "\n\n" << usage;
        return wrongUsage;
    }
    try {
        enrol(line, out, problems);
        return 0;
    } catch (const std::exception& error) {
        problems << "velcro-enrol: " << error.what() << '\n';
        return 1;
    }
}
