// Pictures of keys, drawn on buttons so that a user sees which key does the same.
#pragma once

#include <QIcon>
#include <QKeySequence>

#include <span>

namespace velcro::ui {

/// A key that has a picture. Its place in keyCaps() is its index in the list of large pictures.
struct KeyCap
{
    const char* key;    // as screens name it, in upper case
    const char* legend; // what stands on the cap
    int smallIndex;     // in the list of small pictures, shared by the suite
};

std::span<const KeyCap> keyCaps();
/// nullptr for a key that has no picture; case does not count.
const KeyCap* findKeyCap(const QString& key);

/// The name under which a key has its picture: "CTRL-P", "INS", "ENTER"; blank for no key.
QString keyCapName(const QKeySequence& key);

/// Blue caps stand on light screens, light ones on the dark main window.
enum class KeyCapStyle { Blue, Light };

/// Empty for a key that has no picture.
QIcon keyCapIcon(const QString& key, KeyCapStyle style = KeyCapStyle::Blue);
/// How much room the cap of this key takes at a height in pixels: wide legends make wide caps.
QSize keyCapSize(const QString& key, int height);

} // namespace velcro::ui
