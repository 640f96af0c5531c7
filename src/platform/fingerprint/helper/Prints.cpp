#include "platform/fingerprint/helper/Prints.h"

#include "platform/fingerprint/TemplateText.h"

#include <algorithm>

namespace velcro::fingerprint {

FpDevice* firstReader(FpContext& context, QByteArray& failure) {
    fp_context_enumerate(&context);
    const GPtrArray* devices = fp_context_get_devices(&context);
    for (guint i = 0; devices != nullptr && i < devices->len; ++i) {
        auto* device = FP_DEVICE(g_ptr_array_index(devices, i));
        if (fp_device_has_feature(device, FP_DEVICE_FEATURE_IDENTIFY)) {
            return device;
        }
    }
    failure = "No fingerprint reader was found.";
    return nullptr;
}

QByteArray textOf(FpPrint& print) {
    guchar* bytes = nullptr;
    gsize size = 0;
    Failure failure;
    if (!fp_print_serialize(&print, &bytes, &size, failure.out())) {
        return {};
    }
    const QByteArray text =
        toTemplateText(QByteArray(reinterpret_cast<const char*>(bytes), qsizetype(size)));
    g_free(bytes);
    return text;
}

Owned<FpPrint> printOf(const QByteArray& text, FpDevice& reader) {
    const auto bytes = fromTemplateText(text);
    if (!bytes) {
        return nullptr;
    }
    Failure failure;
    Owned<FpPrint> print(fp_print_deserialize(reinterpret_cast<const guchar*>(bytes->constData()),
                                              gsize(bytes->size()), failure.out()));
    return print && fp_print_compatible(print.get(), &reader) ? std::move(print) : nullptr;
}

int qualityOf(FpPrint& print) {
    constexpr int best = 100;
    auto* image = fp_print_get_image(&print);
    const GPtrArray* features = image != nullptr ? fp_image_get_minutiae(image) : nullptr;
    return features == nullptr ? best : std::min(best, int(features->len));
}

} // namespace velcro::fingerprint
