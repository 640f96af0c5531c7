#include "application/MachineConfiguration.h"

#include "data/Session.h"
#include "platform/seat/Folders.h"
#include "platform/seat/IniFile.h"

#include <QFileInfo>

namespace {

struct Key
{
    const char* section;
    const char* key;
    QString& value;
    const char* missing = "";
};

const std::vector<Key>& keys() {
    static const std::vector<Key> all = {
        {"System", "Format", gRegFmt, "A"},
        {"Common", "Connector", gCmnConnector},
        {"Common", "Host", gCmnHost},
        {"Common", "User", gCmnUser},
        {"Common", "Pswd", gCmnPswd},
        {"Common", "DBName", gCmnDBName},
        {"Common", "OnAzure", gCmnAzure, "N"},
        {"Common", "SvrCat", gSvrCatCode},
        {"Local", "Connector", gLocConnector},
        {"Local", "Host", gLocHost},
        {"Local", "User", gLocUser},
        {"Local", "Pswd", gLocPswd},
        {"Local", "DBName", gLocDBName},
        {"Local", "StandAloneTill", gLocStandAlone, "Y"},
        {"Local", "OnAzure", gLocAzure, "N"},
        {"Till", "Connector", gVELConnector},
        {"Till", "Host", gTillHost},
        {"Till", "User", gTillUser},
        {"Till", "Pswd", gTillPswd},
        {"Till", "DBName", gTillDBName},
        {"Till", "AllowDBConnect", gTillAllowDBConnect, "N"},
        {"Till", "OnAzure", gTillAzure, "N"},
        {"Till", "Company", gCO},
        {"Till", "Branch", gBranch},
        {"Till", "FixIP", gFixIP, "N"},
        {"Till", "HawkEye", gHawkEye},
        {"Till", "ScaleAttached", gScaleAttached, "N"},
        {"Till", "ScalePort", gScalePort},
        {"Till", "ScaleBaudRate", gScaleBaudRate, "9600"},
        {"Till", "ScaleDataBits", gScaleDataBits, "8"},
        {"Till", "ScaleStopBits", gScaleStopBits, "1"},
        {"Till", "ScaleParity", gScaleParity, "None"},
        {"Till", "ScaleMachine", gScaleMachine, "Others"},
        {"Till", "SignPad", gSignPad, "N"},
        {"Till", "TillLoginWH", gTillLoginWH},
        {"Till", "CardDeviceType", gTillCardDeviceType, "M"},
        {"Till", "CardDeviceID", gTillCardDeviceID},
        {"Till", "AltPrinter1", gTillAltPrinter1},
        {"Till", "AltPrinter2", gTillAltPrinter2},
        {"Till", "AltPrinter3", gTillAltPrinter3},
        {"HelpDevice", "DeviceActive", gCGActive, "N"},
        {"HelpDevice", "DeviceIni", gCGInitSettings},
        {"HelpDevice", "DeviceUseCP", gCGUseComm},
        {"HelpDevice", "DeviceCP", gCGComPort},
        {"HelpDevice", "DeviceUseIP", gCGUseIP},
        {"HelpDevice", "DeviceIPAddr", gCGIPAddress},
        {"HelpDevice", "DeviceIPPort", gCGIPPort},
        {"HelpDevice", "RevmaxActive", gRevmaxActive, "N"},
        {"HelpDevice", "RevmaxURL", gRevmaxURL},
        {"HelpDevice", "BDActive ", gBDActive, "N"}, // the key really ends in a blank
        {"HelpDevice", "BDDeviceCode", gBDDeviceCode},
        {"HelpDevice", "BDDeviceName", gBDDeviceName},
    };
    return all;
}

bool isBlank(const QString& text) {
    return text.trimmed().isEmpty();
}

void deriveValues() {
    gSessionKEY = gCO.trimmed() + "-" + gBranch.trimmed();
    if (gSvrCatCode.trimmed() == QLatin1String("ALL")) {
        gSvrCatCode.clear();
    }
    // A blank till connector replaces the local one and stays blank itself.
    if (isBlank(gVELConnector)) {
        gLocConnector = gDBConnector;
    }
    if (isBlank(gLocConnector)) {
        gLocConnector = gDBConnector;
    }
    if (isBlank(gCmnConnector)) {
        gCmnConnector = gDBConnector;
    }
}

} // namespace

QString machineConfigurationFile() {
    QString path;
    const QStringList roots = velcro::seat::programFilesRoots();
    for (const QString& root : roots) {
        if (QFileInfo(root).isDir()) {
            path = root; // the last one that is there
        }
    }
    if (path.isEmpty()) {
        gErrorMsg = QStringLiteral("The machine configuration file was not found: there is neither "
                                   "a folder %1.")
                        .arg(roots.join(QStringLiteral(" nor ")));
        return {};
    }
    for (const char* stage : {"\\Common Files\\Microsoft Shared", "\\MSHelp16", "\\MSHelp16.cnf"}) {
        path = velcro::seat::nativePath(path + QLatin1String(stage));
        if (!QFileInfo::exists(path)) {
            gErrorMsg =
                QStringLiteral("The machine configuration file was not found: there is no %1.")
                    .arg(path);
            return {};
        }
    }
    return path;
}

bool sfg_ReadSysReg() {
    const QString path = machineConfigurationFile();
    if (path.isEmpty()) {
        return false;
    }
    try {
        const auto file = velcro::seat::IniFile::read(path);
        for (const Key& key : keys()) {
            key.value = file.value(key.section, key.key, key.missing);
        }
    } catch (const velcro::seat::IniError& error) {
        gErrorMsg = QString::fromUtf8(error.what());
        return false;
    }
    deriveValues();
    return true;
}
