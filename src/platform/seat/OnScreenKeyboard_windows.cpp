#include "platform/seat/OnScreenKeyboard.h"

#include "platform/seat/WindowsApi.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <objbase.h>
#include <shobjidl.h>

namespace velcro::seat {

namespace {

QString firstThere(const QStringList& paths) {
    for (const QString& path : paths) {
        if (QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

template <typename Interface>
struct Released
{
    ~Released() {
        if (object != nullptr) {
            object->Release();
        }
    }
    Interface* object = nullptr;
};

/// What the tray's own keyboard button calls.
struct TipInvocation : IUnknown
{
    virtual HRESULT STDMETHODCALLTYPE Toggle(HWND window) = 0;
};
constexpr GUID tipInvocation = {
    0x37c994e7, 0x432b, 0x4834, {0xa2, 0xf7, 0xdc, 0xe1, 0xf1, 0x3b, 0x83, 0x4b}};
constexpr GUID tipHost = {
    0x4ce576fa, 0x83dc, 0x4f88, {0x95, 0x1c, 0x9d, 0x07, 0x82, 0xb4, 0xe3, 0x76}};
constexpr GUID inputPane = {
    0xd5120aa3, 0x46ba, 0x44c5, {0x82, 0x2d, 0xca, 0x80, 0x92, 0xc1, 0xfc, 0x72}};

bool isTouchKeyboardShown() {
    Released<IFrameworkInputPane> pane;
    RECT place{};
    return SUCCEEDED(CoCreateInstance(inputPane, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_IFrameworkInputPane,
                                      reinterpret_cast<void**>(&pane.object))) &&
           SUCCEEDED(pane.object->Location(&place)) && place.bottom > place.top;
}

/// False where it does not run.
bool showTouchKeyboard() {
    Released<TipInvocation> invocation;
    if (FAILED(CoCreateInstance(tipHost, nullptr, CLSCTX_INPROC_HANDLER | CLSCTX_LOCAL_SERVER,
                                tipInvocation, reinterpret_cast<void**>(&invocation.object)))) {
        return false;
    }
    return isTouchKeyboardShown() || SUCCEEDED(invocation.object->Toggle(GetDesktopWindow()));
}

} // namespace

QString touchKeyboard() {
    const QString ink = QStringLiteral("/Common Files/Microsoft Shared/Ink/TabTip.exe");
    return firstThere(
        {QStringLiteral("C:/Program Files") + ink, QStringLiteral("C:/Program Files (x86)") + ink});
}

QString onScreenKeyboard() {
    const QString root = QDir::fromNativeSeparators(qEnvironmentVariable("SystemRoot"));
    return firstThere(
        {root + QStringLiteral("/SysNative/osk.exe"), root + QStringLiteral("/System32/osk.exe")});
}

bool hasKeyboard() {
    return !touchKeyboard().isEmpty() || !onScreenKeyboard().isEmpty();
}

QStringList keyboardArguments(const QString& /*path*/) {
    return {};
}

// The plain keyboard, started again, shows itself; the touch keyboard waits hidden once it was
// started, and is asked for.
bool showRunningKeyboard(const QString& path) {
    return path == touchKeyboard() && showTouchKeyboard();
}

} // namespace velcro::seat
