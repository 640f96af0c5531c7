#include "Sweep.h"

#include "Replica.h"

#include "data/DataUCMN.h"
#include "data/DataUTIL.h"
#include "data/Session.h"
#include "platform/seat/Folders.h"
#include "platform/sqlserver/SqlConnection.h"
#include "schema/SysDBGen.h"
#include "schema/SysTillDBMods.h"
#include "security/SysMachine.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace velcro::sweep {

namespace {

std::unique_ptr<sql::SqlConnection> connect(const CommandLine& line, bool create) {
    auto connection = sql::createConnection(line.server.toStdString());
    connection->connect({.server = line.server.toStdString(),
                         .database = line.database.toStdString(),
                         .user = line.user.toStdString(),
                         .password = line.password.toStdString(),
                         .createDatabase = create});
    return connection;
}

/// The till and, for today's date alone, the common database: both are the one on the line.
class Till
{
public:
    /// The folder keeps the last refused statement, and which table a killed sweep left unfinished.
    Till(const CommandLine& line, const QString& workingFolder) {
        gLocHost = line.server;
        gLocDBName = line.database;
        gLocUser = line.user;
        gLocPswd = line.password;
        gPCName = sm_GetPCName();
        gSQLPath = workingFolder;
        cData = std::make_unique<TcData>();
        tData = std::make_unique<TtData>();
        const QString connection = sfg_BuildUNIConnectionStr(line.server, line.database, line.user,
                                                             line.password, QString(), QString());
        tData->VelmaraTILL.setConnectString(connection);
        tData->VelmaraTILL.Connect(); // as at a log-in, the stand-in makes the database
        cData->VelmaraCommon.setConnectString(connection);
        cData->VelmaraCommon.Connect();
    }
    ~Till() {
        schema::gSchemaWatch = {};
        tData.reset();
        cData.reset();
    }
    Till(const Till&) = delete;
    Till& operator=(const Till&) = delete;

    static void sweep() {
        tb_Upgrade();
        tb_Update_TillDBVersion(requiredTillDBVersion);
    }
};

void writeRefusal(QTextStream& out) {
    out << "-- refused: " << QString(gErrorMsg).replace('\n', ' '_L1).replace('\r', ' '_L1) << '\n';
}

void print(const CommandLine& line, QTextStream& out) {
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        throw std::runtime_error(folder.errorString().toStdString());
    }
    const CommandLine scratch{
        .server = "embedded:" + folder.path(), .database = u"Till"_s, .user = {}, .password = {}};
    auto copy = connect(scratch, true);
    if (!line.server.isEmpty()) {
        replicate(*connect(line, false), *copy);
    }
    copy.reset();
    Till till(scratch, folder.path() + '/');
    schema::gSchemaWatch.afterSend = [&out](const QString& statement, bool done) {
        out << statement << "\nGO\n";
        if (!done) {
            writeRefusal(out);
        }
    };
    till.sweep();
}

// In the folder of the program beside it, whose sweep may have been stopped in the middle.
void run(const CommandLine& line, QTextStream& out) {
    const QString program = QCoreApplication::applicationDirPath() + "/velCRO";
    Till till(line, seat::nativePath(seat::workingFolder(program) + "SQL\\"));
    int sent = 0, refused = 0;
    schema::gSchemaWatch.afterSend = [&](const QString& statement, bool done) {
        ++sent;
        if (!done) {
            ++refused;
            out << statement << '\n';
            writeRefusal(out);
        }
    };
    till.sweep();
    out << line.database << ": " << sent << " statements, " << refused << " refused; version "
        << requiredTillDBVersion << " recorded for " << gPCName << '\n';
}

} // namespace

void perform(const CommandLine& line, QTextStream& out) {
    line.run ? run(line, out) : print(line, out);
}

} // namespace velcro::sweep
