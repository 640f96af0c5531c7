// What must hold of every screen: controls have names for those who cannot see them, nothing is cut
// off or lies off the seat's screen, and a finger finds everything.
#pragma once

#include <QStringList>

class QWidget;

/// Controls of the visible screen that say no name through the accessibility interface.
QStringList namelessControls(QWidget& screen);

/// What the accessibility interface tells of the visible screen, all the way down: each control has a
/// name, without the mark of a short cut, and a role.
QStringList unspokenControls(QWidget& screen);

/// Buttons, labels and headings of the visible screen whose text does not fit, and controls that
/// stick out of their parent or lie over each other.
QStringList clippedControls(QWidget& screen);

/// Buttons, edits and combos of the visible screen that a finger misses.
QStringList smallTargets(QWidget& screen);
/// What sticks out of the seat's screen, the window's frame included.
QStringList offScreen(QWidget& screen);

/// Saves the screen's picture when the environment names a folder in VELCRO_PICTURES.
void keepPicture(QWidget& screen, const QString& name);
