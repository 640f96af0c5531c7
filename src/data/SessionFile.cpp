#include "data/SessionFile.h"

#include "data/Session.h"
#include "platform/seat/Folders.h"
#include "platform/seat/IniFile.h"

#include <QFileInfo>

namespace {

QString section() {
    return "vel" + gModCode.trimmed();
}

// What cannot be read is forgotten, and a link is not followed: the file holds nothing that the user could not choose again.
velcro::seat::IniFile readFile() {
    const QString path = sessionFileName();
    if (!QFileInfo::exists(path) || QFileInfo(path).isSymLink()) {
        return {};
    }
    try {
        return velcro::seat::IniFile::read(path);
    } catch (const velcro::seat::IniError& error) {
        qWarning("%s", error.what());
        return {};
    }
}

} // namespace

QString sessionFileName() {
    return velcro::seat::nativePath(gEXEPath + "Session\\velSSN-" + gSessionKEY.trimmed() + ".ini");
}

void sfg_WriteSession_INIFile(const QString& xKeyName, const QString& xValue) {
    auto file = readFile();
    file.setValue(section(), xKeyName, xValue);
    if (!file.write(sessionFileName())) {
        qWarning("The session file %s cannot be written.", qPrintable(sessionFileName()));
    }
}

QString sfg_ReadSession_INIFile(const QString& xKeyName) {
    return readFile().value(section(), xKeyName);
}
