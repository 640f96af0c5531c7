// What screens share that is no data: the image lists, by the index that the suite gave each image.
#pragma once

#include <QIcon>

#include <functional>
#include <memory>

class TsData
{
public:
    /// Image lists; the shell fills them. An empty one gives empty icons.
    using ImageList = std::function<QIcon(int index)>;
    ImageList MainImages = [](int) { return QIcon(); };
    ImageList KeyBoardBlue = [](int) { return QIcon(); };
    ImageList MainMenuKBImages = [](int) { return QIcon(); };
};

inline std::unique_ptr<TsData> sData;
