#include "screens/ImageLists.h"

#include "data/DataSYS.h"
#include "ui/Icons.h"
#include "ui/KeyCap.h"

#include <algorithm>

namespace {

struct ListImage
{
    int index;
    const char* picture;
    QRgb ink; // readable on the panel colour of its message type
};

constexpr ListImage mainImages[] = {
    {28, "info", 0xff1f4e8c},    {29, "ok", 0xff1d6b2f},    {49, "message", 0xff3b4149},
    {50, "warning", 0xff000000}, {72, "error", 0xffffffff}, {101, "alert", 0xff8c1f1f},
};

QIcon mainImage(int index) {
    const auto* found = std::ranges::find(mainImages, index, &ListImage::index);
    return found == std::end(mainImages)
               ? QIcon()
               : velcro::ui::icon(QLatin1String(found->picture), QColor(found->ink));
}

QIcon smallKeyCap(int index) {
    const auto caps = velcro::ui::keyCaps();
    const auto found = std::ranges::find(caps, index, &velcro::ui::KeyCap::smallIndex);
    return found == caps.end() ? QIcon() : velcro::ui::keyCapIcon(QLatin1String(found->key));
}

QIcon largeKeyCap(int index) {
    const auto caps = velcro::ui::keyCaps();
    return index < 0 || index >= int(caps.size())
               ? QIcon()
               : velcro::ui::keyCapIcon(QLatin1String(caps[index].key));
}

} // namespace

void fillImageLists(TsData& data) {
    data.MainImages = mainImage;
    data.KeyBoardBlue = smallKeyCap;
    data.MainMenuKBImages = largeKeyCap;
}
