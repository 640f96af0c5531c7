#include "Answering.h"

#include "application/MachineConfiguration.h"
#include "application/SessionInit.h"
#include "data/DataModules.h"
#include "data/DataUCMN.h"
#include "data/Errors.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "platform/reporting/Functions.h"
#include "platform/seat/RegionalFormats.h"
#include "reports/ReportFunctions.h"
#include "security/SysLogIn.h"
#include "security/SysMachine.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;
using velcro::reporting::Function;
using velcro::reporting::registeredFunction;
using velcro::reporting::registeredFunctions;

namespace velcro::report {

namespace {

class Modules
{
public:
    Modules() { createDataModules(); }
    ~Modules() { freeDataModules(); }
    Modules(const Modules&) = delete;
    Modules& operator=(const Modules&) = delete;
};

void listFunctions(QTextStream& out) {
    for (const QString& name : registeredFunctions()) {
        const Function& function = *registeredFunction(name);
        out << name << '\t' << function.category << '\t' << function.signature << '\n';
    }
}

QString firstDatabase() {
    return readRows(cData->VelmaraCommon,
                    {
                        "SELECT [DisplayName] FROM vcSettings WITH (NOLOCK)",
                        " WHERE [Suite] = " + QuotedStr(gSuite),
                        " ORDER BY [DisplaySeq]",
                    },
                    raised(), [](const Statement& rows) {
                        return rows.IsEmpty() ? QString()
                                              : rows.FieldByName("DisplayName").AsString();
                    });
}

void refuse() {
    throw VelmaraError(gErrorMsg.isEmpty() ? u"The user could not sign in."_s : gErrorMsg);
}

void signIn(const Options& options) {
    gErrorMsg.clear();
    if (!sfg_ReadSysReg()) {
        refuse();
    }
    cData->ConnectDB_Common();
    const QString database = options.database.isEmpty() ? firstDatabase() : options.database;
    if (!sli_VerifyDatabase(database)) {
        throw VelmaraError("There is no database \""_L1 + database + "\" to sign in to."_L1);
    }
    if (!sli_LogIn(options.user, options.password, gDBaseRecID.toInt(), {}, {})) {
        refuse();
    }
}

/// A carriage return alone or with its line feed, as documents have them, ends a line here too.
QString asLines(QString text) {
    return text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

QVariantList values(const QStringList& arguments) {
    return {arguments.begin(), arguments.end()};
}

} // namespace

void perform(const Options& options, QTextStream& out) {
    registerReportFunctions();
    if (options.function.isEmpty()) {
        listFunctions(out);
        return;
    }
    const Function* function = registeredFunction(options.function);
    if (function == nullptr) {
        throw VelmaraError("There is no function "_L1 + options.function +
                           "; velcro-report alone lists them."_L1);
    }
    if (options.arguments.size() > function->argumentCount()) {
        throw VelmaraError("Too many arguments for: "_L1 + function->signature);
    }
    velcro::seat::forceProgramFormats();
    gSuite = u"VELMARA"_s;
    gModCode = u"CRO"_s;
    sfg_InitGlobalVars(QCoreApplication::applicationFilePath());
    gVersion = sm_Version();
    const Modules modules;
    if (!options.user.isEmpty()) {
        signIn(options);
    }
    out << asLines(function->call(values(options.arguments)).toString()) << '\n';
}

} // namespace velcro::report
