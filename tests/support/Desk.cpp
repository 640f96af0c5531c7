#include "support/Desk.h"

#include "application/MachineConfiguration.h"
#include "application/SessionInit.h"
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/PeriodAndTax.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/seat/Folders.h"
#include "security/SysLogIn.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>

#include <stdexcept>

namespace velcro::test {

namespace {

// Sample data stands around today and follows the scripts: other scripts, another template.
QString templateName() {
    qint64 newest = 0;
    QFileInfoList files = {QFileInfo(VELCRO_SAMPLE), QFileInfo(VELCRO_SWEEP)};
    for (const char* folder : {VELCRO_SAMPLE_DATA, VELCRO_SAMPLE_STRUCTURE}) {
        files += QDir(folder).entryInfoList(QDir::Files);
    }
    for (const QFileInfo& file : files) {
        newest = qMax(newest, file.lastModified().toSecsSinceEpoch());
    }
    return QDate::currentDate().toString(QStringLiteral("yyyyMMdd-")) + QString::number(newest);
}

void run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        throw std::runtime_error(
            "The sample databases could not be made: " + process.errorString().toStdString() +
            "\n" + process.readAll().toStdString());
    }
}

// A seat that somebody has signed in at before: its till has been swept.
void provision(const QString& folder) {
    const QString work = folder + ".work";
    QDir(work).removeRecursively();
    run(QStringLiteral(VELCRO_SAMPLE), {"--no-start", "--seat", work, "--data", VELCRO_SAMPLE_DATA,
                                        "--structure", VELCRO_SAMPLE_STRUCTURE});
    run(QStringLiteral(VELCRO_SWEEP),
        {"--run", "-S", "embedded:" + work + "/databases", "-d", "VELTILL"});
    QDir().rename(work, folder);
}

// Made by the first test that needs it, for all of them, whatever program they are in.
QString templateSeat() {
    const QDir templates(QStringLiteral(VELCRO_DESK_TEMPLATES));
    templates.mkpath(".");
    QLockFile lock(templates.filePath("lock"));
    lock.setStaleLockTime(0);
    lock.lock();
    const QString name = templateName();
    if (!templates.exists(name + "/databases")) {
        for (const QString& old : templates.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QDir(templates.filePath(old)).removeRecursively();
        }
        provision(templates.filePath(name));
    }
    return templates.filePath(name);
}

// As another seat would: over a connection of its own.
void runOn(const QString& database, const QString& statement) {
    Connection other(ConnectionOptions{});
    other.setConnectString(sfg_BuildUNIConnectionStr(gCmnHost, database, {}, {}, {}, {}));
    other.Connect();
    Statement work(other);
    work.SQL.Add(statement);
    work.ExecSQL();
}

QString firstField(Connection& connection, const QString& select) {
    Statement query(connection);
    query.SQL.Add(select);
    query.Open();
    return query.IsEmpty() ? QString() : query.Fields(0).AsString();
}

} // namespace

Desk::Desk(Start start) {
    takeSample();
    configure();
    gPrompts.errorForm = [this](const QString& number, const QString& text, const QString&,
                                const QString&) { shown.append(number + "|" + text); };
    gPrompts.errorBox = [this](const QString&, const QString& text) {
        shown.append("box|" + text);
    };
    createDataModules();
    // The sample names the folder that it was made in.
    onCommon("UPDATE vcSettings SET [DBHost] = " + QuotedStr(gCmnHost));
    if (start == Start::Connected) {
        connect();
    } else if (start == Start::SignedIn) {
        logIn();
    }
}

Desk::~Desk() {
    freeDataModules();
    gPrompts = {};
    seat::setProgramFilesRoots({});
}

void Desk::takeSample() {
    const QString from = templateSeat() + "/databases";
    QDir().mkpath(databases());
    for (const QString& name : QDir(from).entryList(QDir::Files)) {
        QFile::copy(from + "/" + name, databases() + "/" + name);
    }
}

void Desk::configure() const {
    const QString root = QString::fromStdString(folder_.file("shared"));
    seat::setProgramFilesRoots({root});
    QDir().mkpath(QFileInfo(configurationFile()).path());
    QFile file(configurationFile());
    const QString server = "embedded:" + databases();
    const QString text = "[Common]\nHost=" + server + "\nDBName=VELCOMMON\n" +
                         "[Local]\nHost=" + server + "\nDBName=VELTILL\n" +
                         "[Till]\nDBName=VELSUITE\nCompany=01\nBranch=100\n" +
                         "[HelpDevice]\nBDActive =N\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        throw std::runtime_error("The machine configuration file could not be written.");
    }
    QDir().mkpath(workingFolder());
    gSuite = "VELMARA";
    gModCode = "CRO";
    file.close();
    sfg_InitGlobalVars(workingFolder() + "velCRO");
    if (!sfg_ReadSysReg()) {
        throw std::runtime_error(gErrorMsg.toStdString());
    }
}

void Desk::connect() {
    const QString server = gCmnHost;
    cData->ConnectDB_Common();
    gData->ConnectDB_VEL(gDBConnector, server, "VELSUITE", {}, {}, "N");
    signIn("COUNTER1", "01", "100");
}

void Desk::logIn() {
    cData->ConnectDB_Common();
    if (!sli_VerifyDatabase("Brindavel Central Workshop") ||
        !sli_LogIn("COUNTER1", "COUNTER", gDBaseRecID.toInt(), {}, {})) {
        throw std::runtime_error("COUNTER1 could not sign in: " + gErrorMsg.toStdString());
    }
}

QString Desk::databases() const {
    return QString::fromStdString(folder_.file("databases"));
}

QString Desk::configurationFile() const {
    return QString::fromStdString(
        folder_.file("shared/Common Files/Microsoft Shared/MSHelp16/MSHelp16.cnf"));
}

QString Desk::workingFolder() const {
    return QString::fromStdString(folder_.file("work")) + "/";
}

QString Desk::suite(const QString& select) {
    return firstField(gData->Velmara, select);
}

QString Desk::common(const QString& select) {
    return firstField(cData->VelmaraCommon, select);
}

void Desk::onSuite(const QString& statement) {
    runOn("VELSUITE", statement);
}

void Desk::onCommon(const QString& statement) {
    runOn("VELCOMMON", statement);
}

void signIn(const QString& user, const QString& company, const QString& branch) {
    gUserCode = gUserLogInCode = user;
    gUserName = user;
    gCO = gCmbCO = company;
    gBranch = gCmbBranch = branch;
    gStkCO = gDebCO = gCrdCO = gGlgCO = gPurCO = gVIPCO = company;
    gStkBranch = gDebBranch = gCrdBranch = gGlgBranch = gPurBranch = gVIPBranch = branch;
    gAP = sfvel_GetPeriod(sfg_Date(0));
    gAPFrom = gSParam[1];
    gAPTo = gSParam[2];
    gSessionKEY = company + "-" + branch + "-" + user;
}

} // namespace velcro::test
