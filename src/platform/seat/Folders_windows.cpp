#include "platform/seat/Folders.h"

#include "platform/seat/WindowsApi.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <aclapi.h>
#include <sddl.h>
#include <vector>

namespace velcro::seat::system {

namespace {

/// "S-1-5-21-..." of whom the program runs for; blank when the system does not tell.
QString ownSid() {
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return {};
    }
    std::vector<char> user(1024);
    DWORD size = 0;
    LPWSTR text = nullptr;
    QString sid;
    if (GetTokenInformation(token, TokenUser, user.data(), DWORD(user.size()), &size) &&
        ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &text)) {
        sid = QString::fromWCharArray(text);
        LocalFree(text);
    }
    CloseHandle(token);
    return sid;
}

/// The user, the system and its administrators; nothing is inherited from above, all of it below.
bool closeToOthers(const QString& path) {
    const QString rights =
        QStringLiteral("D:P(A;OICI;FA;;;%1)(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)").arg(ownSid());
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            reinterpret_cast<const wchar_t*>(rights.utf16()), SDDL_REVISION_1, &descriptor,
            nullptr)) {
        return false;
    }
    PACL list = nullptr;
    BOOL present = FALSE;
    BOOL byDefault = FALSE;
    std::wstring folder = QDir::toNativeSeparators(path).toStdWString();
    const bool closed =
        GetSecurityDescriptorDacl(descriptor, &present, &list, &byDefault) &&
        SetNamedSecurityInfoW(folder.data(), SE_FILE_OBJECT,
                              DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, list, nullptr) == ERROR_SUCCESS;
    LocalFree(descriptor);
    return closed;
}

QString folderOf(const char* variable) {
    return QDir::fromNativeSeparators(qEnvironmentVariable(variable));
}

} // namespace

// A seat of its own folders, such as one on sample data, names them as elsewhere.
QStringList programFilesRoots() {
    const QString own = folderOf("XDG_CONFIG_HOME");
    if (!own.isEmpty()) {
        return {own + QLatin1String("/velmara")};
    }
    return {QStringLiteral("C:\\Program Files"), QStringLiteral("C:\\Program Files (x86)")};
}

QString userData() {
    const QString own = folderOf("XDG_DATA_HOME");
    return own.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                         : own;
}

// What may be written is told by access lists, which only an attempt asks.
bool canWriteIn(const QString& folder) {
    QTemporaryFile attempt(folder + QLatin1String("/velcro.XXXXXX"));
    return attempt.open();
}

bool makePrivateFolder(const QString& path) {
    return QDir().mkpath(path) && closeToOthers(path);
}

} // namespace velcro::seat::system
