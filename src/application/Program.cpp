#include "application/Program.h"

#include "application/DatabaseWait.h"
#include "application/ServiceWait.h"
#include "application/SessionInit.h"
#include "application/StartUp.h"
#include "application/VersionCheck.h"
#include "data/DataModules.h"
#include "data/Session.h"
#include "data/SysDataModel.h"
#include "platform/camera/SeatCamera.h"
#include "platform/camera/SimulatedCamera.h"
#include "platform/fingerprint/SimulatedReader.h"
#include "repairs/CRO100.h"
#include "reports/ReportFunctions.h"
#include "screens/ImageLists.h"
#include "screens/ScreenServices.h"
#include "screens/SysFuncGlobal.h"
#include "security/SysLogIn.h"
#include "security/SysLogInForms.h"
#include "security/VEL710.h"
#include "ui/Icons.h"
#include "workshop/CRO001.h"
#include "workshop/CRO002.h"
#include "workshop/CRO003.h"

#include <QApplication>

namespace {

StartUpSteps stepsFor(TfrmMAIN000& mainForm) {
    StartUpSteps steps;
    steps.initSystem = [&mainForm] { sfvel_InitSystem(mainForm); };
    steps.checkVersion = sfg_CheckEXEVersion;
    steps.silentLogIn = sli_LogIn;
    steps.showLogInForm = slif_Show_LogInForm;
    return steps;
}

// A seat without a camera can try the screen of the pictures out.
velcro::camera::CameraMaker cameraMaker() {
    if (qEnvironmentVariable("VELCRO_CAMERA") != QLatin1String("simulated")) {
        return velcro::camera::makeSeatCamera;
    }
    return [] {
        return std::make_unique<velcro::camera::SimulatedCamera>(
            QStringList{QStringLiteral("Simulated camera"), QStringLiteral("Second camera")});
    };
}

template <typename Screen>
std::unique_ptr<QDialog> make(QWidget* parent) {
    return std::make_unique<Screen>(parent);
}

// "SIMULATED", with or without ":" and a file, stands for a reader to try things out with.
std::unique_ptr<velcro::fingerprint::FingerprintReader>
seatsReader(velcro::fingerprint::Family family) {
    static const QString simulated = QStringLiteral("SIMULATED");
    if (gBDDeviceName.startsWith(simulated)) {
        return std::make_unique<velcro::fingerprint::SimulatedReader>(
            gBDDeviceName.mid(simulated.size() + 1));
    }
    return velcro::fingerprint::pluggedReader(family);
}

} // namespace

Program::Program(const QStringList& arguments)
    : mainForm_([this, arguments] { return startUp(stepsFor(mainForm_), arguments); }) {
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(velcro::ui::icon(QStringLiteral("product-logo")));
    QGuiApplication::setDesktopFileName(QStringLiteral("example.velmara.velcro")); // its menu entry
    connectPrompts();
    watchDatabaseWaits();
    watchServiceWaits();
    createDataModules();
    fillImageLists(*sData);
    registerReportFunctions();
    velcro::camera::makeCamera = cameraMaker();
    velcro::fingerprint::readerFactory = seatsReader;
    gScreenServices.techHelp = sfvel_TechHelp;
    gMenuScreens = {
        .repairOrders = make<TfrmCRO100>,
        .systemCodes = make<TfrmCRO001>,
        .technicians = make<TfrmCRO002>,
        .processCodes = make<TfrmCRO003>,
    };
}

Program::~Program() {
    freeSharedLists();
    freeDataModules();
}

int Program::run() {
    mainForm_.show();
    return QApplication::exec();
}
