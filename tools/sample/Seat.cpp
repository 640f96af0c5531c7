#include "Seat.h"

#include "Scripts.h"
#include "Session.h"

#include "platform/seat/Folders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sstream>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace velcro::sample {

namespace {

constexpr auto configurationFolder = "config/velmara/Common Files/Microsoft Shared/MSHelp16"_L1;
constexpr auto configurationFile = "MSHelp16.cnf"_L1;

void require(bool done, const QString& what) {
    if (!done) {
        throw std::runtime_error("cannot make " + what.toStdString());
    }
}

std::filesystem::path pathOf(const QString& path) {
    return path.toStdU16String();
}

/// The structure first, then the data, in their order.
std::vector<velsql::Source> scriptsOf(const QString& prefix, const QStringList& folders) {
    std::vector<velsql::Source> scripts;
    for (const QDir folder : folders) {
        for (const QString& name : folder.entryList({prefix + "-*.sql"}, QDir::Files, QDir::Name)) {
            scripts.push_back({velsql::Source::Kind::File, folder.filePath(name).toStdString()});
        }
    }
    return scripts;
}

void fill(const char* database, const QString& prefix, const Request& request, const QString& work,
          std::ostream& progress) {
    const velsql::CommandLine line{.server = ("embedded:" + work + "/databases").toStdString(),
                                   .database = database,
                                   .sources =
                                       scriptsOf(prefix, {request.structure, work + "/scripts"}),
                                   .stopAtError = true};
    progress << "velcro-sample: making " << database << " from " << line.sources.size()
             << " scripts" << std::endl;
    std::stringstream none, said, problems;
    if (velsql::runSession(line, none, said, problems) != 0) {
        throw std::runtime_error(std::string("making ") + database + " failed: " +
                                 (problems.str().empty() ? said.str() : problems.str()));
    }
}

void build(const Request& request, const QString& work, std::ostream& progress) {
    progress << "velcro-sample: writing the sample data" << std::endl;
    const demo::SeatValues values{
        request.today,
        {{"SERVER", ("embedded:" + request.seat + "/databases").toStdString()},
         {"USER", "velcro"},
         {"PASSWORD", ""}}};
    demo::writeScripts(pathOf(request.data), pathOf(work + "/scripts"), values);
    require(seat::makePrivateFolder(work + "/databases"), work + "/databases");
    fill("VELCOMMON", u"common"_s, request, work, progress);
    fill("VELSUITE", u"suite"_s, request, work, progress);
    fill("VELTILL", u"till"_s, request, work, progress);

    const QString from = work + "/scripts/" + configurationFile;
    const QString folder = work + '/' + configurationFolder;
    require(seat::makePrivateFolder(work + "/config") && QDir().mkpath(folder), folder);
    require(QFile::setPermissions(from, QFile::ReadOwner | QFile::WriteOwner) &&
                QFile::rename(from, folder + '/' + configurationFile),
            folder + '/' + configurationFile);
}

/// What stood there goes into the folder that is thrown away; the databases come last, since they
/// tell that a seat is whole.
void moveIn(const QString& work, const QString& seat) {
    require(QDir(work).mkdir(u"old"_s), work + "/old");
    for (const char* name : {"/databases", "/config"}) {
        const QString there = seat + QLatin1String(name);
        require(!QFileInfo::exists(there) ||
                    QDir().rename(there, work + "/old" + QLatin1String(name)),
                "room for " + there);
    }
    for (const char* name : {"/config", "/databases"}) {
        const QString there = seat + QLatin1String(name);
        require(QDir().rename(work + QLatin1String(name), there), there);
    }
}

} // namespace

void makeSeat(const Request& request, std::ostream& progress) {
    if (!request.fresh && QFileInfo::exists(request.seat + "/databases")) {
        progress << "velcro-sample: " << request.seat.toStdString()
                 << " has its databases and stays as it is; --fresh makes them anew" << std::endl;
        return;
    }
    require(QFileInfo(request.seat).isDir() || seat::makePrivateFolder(request.seat), request.seat);
    const QTemporaryDir work(request.seat + "/.sample.XXXXXX");
    require(work.isValid(), request.seat + "/.sample: " + work.errorString());
    build(request, work.path(), progress);
    moveIn(work.path(), request.seat);
    progress << "velcro-sample: the sample seat is ready in " << request.seat.toStdString()
             << std::endl;
}

} // namespace velcro::sample
