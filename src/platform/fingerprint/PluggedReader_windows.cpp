// The vendors' readers, through their components: ZKTeco's ZKFPEngX control, and DigitalPersona's
// capture, feature extraction and verification objects. All are reached by name through IDispatch.
#include "platform/fingerprint/FingerprintReader.h"
#include "platform/fingerprint/WindowsComponent.h"

#include <map>
#include <string>
#include <utility>

namespace velcro::fingerprint {

namespace {

struct VariantPrint : Print
{
    explicit VariantPrint(const VARIANT& what)
        : value(what) {}
    Variant value;
};

/// What both readers have: a component for the thread's life, and its events.
class ComponentReader : public FingerprintReader
{
public:
    ComponentReader() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~ComponentReader() override {
        leaveEvents();
        CoUninitialize();
    }

protected:
    void hear(const Component& source, std::map<std::wstring, EventSink::Handler> handlers) {
        sink_ = Com<EventSink>(new EventSink(source, std::move(handlers)));
    }
    void leaveEvents() {
        if (sink_) {
            sink_->leave();
            sink_.reset();
        }
    }
    static const VARIANT& argument(const DISPPARAMS& arguments, UINT fromFront) {
        return arguments.rgvarg[arguments.cArgs - 1 - fromFront];
    }
    static const VariantPrint& own(const Print& print) {
        return dynamic_cast<const VariantPrint&>(print);
    }

private:
    Com<EventSink> sink_;
};

class ZktecoReader : public ComponentReader
{
public:
    ZktecoReader()
        : control_(Component::create(L"ZKFPEngXControl.ZKFPEngX")) {
        if (control_) {
            cache_ = control_.call(L"CreateFPCacheDB").number();
        }
    }

    bool open(ReaderEvents events) override {
        if (!control_) {
            return false;
        }
        events_ = std::move(events);
        constexpr DISPID unnamedSetting = 231;
        control_.setProperty(unnamedSetting, Variant(1));
        control_.setProperty(L"FPEngineVersion", Variant(QStringLiteral("10")));
        if (control_.call(L"InitEngine").number() != 0) {
            control_.call(L"EndEngine");
            return false;
        }
        secondCache_ = control_.call(L"CreateFPCacheDBEx").number();
        open_ = true;
        hear(control_,
             {{L"OnCapture",
               [this](const DISPPARAMS& arguments) {
                   events_.captured(std::make_shared<VariantPrint>(argument(arguments, 1)));
               }},
              {L"OnFeatureInfo",
               [this](const DISPPARAMS& arguments) {
                   events_.touched();
                   events_.featureInfo(Variant(argument(arguments, 0)).number());
               }},
              {L"OnImageReceived", [this](const DISPPARAMS&) { showImage(); }}});
        return true;
    }
    void close() override {
        leaveEvents();
        if (std::exchange(open_, false)) {
            control_.call(L"CancelCapture");
            control_.call(L"EndEngine");
        }
    }
    QString serialNumber() const override { return control_.property(L"SensorSN").text(); }
    QString engineVersion() const override { return control_.property(L"FPEngineVersion").text(); }
    int lastQuality() const override { return control_.property(L"LastQuality").number(); }
    bool isRegister() const override { return control_.property(L"IsRegister").number() != 0; }
    int enrollIndex() const override { return control_.property(L"EnrollIndex").number(); }
    void cancelEnroll() override { control_.call(L"CancelEnroll"); }

    // Without learning: the stored template stays as it is.
    Comparison compare(const Print& print, const QByteArray& stored) override {
        const Variant same =
            control_.call(L"VerFinger", {own(print).value, Variant(QString::fromUtf8(stored)),
                                         Variant(false), Variant(false)});
        return {.verified = same.number() != 0};
    }

private:
    // The control paints on a device context.
    void showImage() {
        const int width = control_.property(L"ImageWidth").number();
        const int height = control_.property(L"ImageHeight").number();
        BITMAPINFO format{};
        format.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        HDC canvas = CreateCompatibleDC(nullptr);
        HBITMAP bitmap = CreateDIBSection(canvas, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
        if (bitmap != nullptr) {
            HGDIOBJ before = SelectObject(canvas, bitmap);
            control_.call(L"PrintImageAt",
                          {Variant(int(reinterpret_cast<INT_PTR>(canvas))), Variant(0), Variant(0),
                           Variant(width), Variant(height)});
            GdiFlush();
            events_.imageReceived(
                QImage(static_cast<const uchar*>(bits), width, height, QImage::Format_RGB32)
                    .copy());
            SelectObject(canvas, before);
            DeleteObject(bitmap);
        }
        DeleteDC(canvas);
    }

    Component control_;
    ReaderEvents events_;
    int cache_ = 0, secondCache_ = 0; // made as the control wants it; nothing is compared in them
    bool open_ = false;
};

class DigitalPersonaReader : public ComponentReader
{
public:
    DigitalPersonaReader()
        : capture_(Component::create(L"DPFPDevX.DPFPCapture"))
        , extraction_(Component::create(L"DPFPEngX.DPFPFeatureExtraction"))
        , verification_(Component::create(L"DPFPEngX.DPFPVerification")) {}

    bool open(ReaderEvents events) override {
        if (!capture_ || !extraction_ || !verification_) {
            return false;
        }
        events_ = std::move(events);
        hear(capture_,
             {{L"OnComplete", [this](const DISPPARAMS& arguments) { extract(arguments); }},
              {L"OnFingerTouch", [this](const DISPPARAMS&) { events_.touched(); }},
              {L"OnReaderDisconnect", [this](const DISPPARAMS&) {
                   events_.lost(QStringLiteral("The reader was unplugged."));
               }}});
        capture_.call(L"StartCapture");
        open_ = true;
        return true;
    }
    void close() override {
        leaveEvents();
        if (std::exchange(open_, false)) {
            capture_.call(L"StopCapture");
        }
    }
    QString serialNumber() const override {
        return capture_.property(L"ReaderSerialNumber").text();
    }
    QString engineVersion() const override { return {}; }
    int lastQuality() const override { return lastQuality_; }

    Comparison compare(const Print& print, const QByteArray& stored) override {
        const Component stencil = Component::create(L"DPFPShrX.DPFPTemplate");
        if (!stencil) {
            throw TemplateError("The reader's components are not installed.");
        }
        stencil.call(L"Deserialize", {Variant::bytes(stored)});
        const Variant outcome =
            verification_.call(L"Verify", {own(print).value, Variant(stencil.get())});
        const Component result(outcome.object());
        return {.verified = result.property(L"Verified").number() != 0,
                .falseAcceptanceRate = double(result.property(L"FARAchieved").number())};
    }

private:
    void extract(const DISPPARAMS& arguments) {
        constexpr int forVerification = 2;
        constexpr int best = 100;
        const Variant sample(argument(arguments, 1));
        const int quality =
            extraction_.call(L"CreateFeatureSet", {sample, Variant(forVerification)}).number();
        lastQuality_ = quality == 0 ? best : 0;
        events_.featureInfo(quality);
        if (quality == 0) {
            const Variant features = extraction_.property(L"FeatureSet");
            events_.captured(std::make_shared<VariantPrint>(features.get()));
        }
    }

    Component capture_, extraction_, verification_;
    ReaderEvents events_;
    int lastQuality_ = 0;
    bool open_ = false;
};

} // namespace

std::unique_ptr<FingerprintReader> pluggedReader(Family family) {
    if (family == Family::ZKTeco) {
        return std::make_unique<ZktecoReader>();
    }
    return std::make_unique<DigitalPersonaReader>();
}

} // namespace velcro::fingerprint
