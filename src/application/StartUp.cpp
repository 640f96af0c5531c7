#include "application/StartUp.h"

#include "application/MachineConfiguration.h"
#include "application/SessionInit.h"
#include "data/DataUCMN.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "platform/seat/RegionalFormats.h"
#include "security/SysMachine.h"

#include <QCoreApplication>

namespace {

bool isBlank(const QString& text) {
    return text.trimmed().isEmpty();
}

bool logIn(const StartUpSteps& steps, const LogInArguments& given) {
    if (isBlank(given.user) || isBlank(given.password) || isBlank(given.databaseRecID)) {
        return steps.showLogInForm();
    }
    if (steps.silentLogIn(given.user, given.password, StrToInt(given.databaseRecID), given.company,
                          given.branch)) {
        return true;
    }
    // Refused credentials may be typed again; any other end of the log-in lets the program go on.
    return gLoginResult == QLatin1String("1") ? steps.showLogInForm() : true;
}

} // namespace

LogInArguments readCommandLine(const QStringList& arguments) {
    if (arguments.size() < 6 || isBlank(arguments[0])) {
        return {};
    }
    LogInArguments result;
    result.givesServerCategory = arguments[0].startsWith(QLatin1Char('%'));
    const int first = result.givesServerCategory ? 1 : 0;
    if (result.givesServerCategory) {
        result.serverCategory = arguments[0].mid(1, 10).trimmed();
    }
    result.user = arguments[first];
    result.password = arguments[first + 1];
    result.databaseRecID = arguments[first + 2];
    result.company = arguments[first + 3];
    result.branch = arguments[first + 4];
    return result;
}

bool startUp(const StartUpSteps& steps, const QStringList& arguments) {
    velcro::seat::forceSystemFormats();
    velcro::seat::forceProgramFormats();
    gSuite = QStringLiteral("VELMARA");
    gModCode = QStringLiteral("CRO");
    sfg_InitGlobalVars(QCoreApplication::applicationFilePath());
    if (steps.initSystem) {
        steps.initSystem();
    }
    const LogInArguments given = readCommandLine(arguments);
    if (!sfg_ReadSysReg()) {
        sfg_ErrorDlg("000-001", gErrorMsg, "MAIN000", "FormShow");
        return false;
    }
    if (given.givesServerCategory) {
        gSvrCatCode = given.serverCategory;
    }
    if (!cData->ConnectDB_Common()) {
        return false;
    }
    QCoreApplication::setApplicationName(gEXETitle);
    gVersion = sm_Version();
    return steps.checkVersion() && logIn(steps, given);
}
