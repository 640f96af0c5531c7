// What must hold of every detail screen: what is typed into a field comes into its column and no
// other, by an add and by an update, and comes back into the field.
#pragma once

#include "screens/DetailScreen.h"
#include "support/ScriptedUser.h"

#include <QMap>

#include <functional>
#include <memory>
#include <utility>

struct DetailCase
{
    std::function<std::unique_ptr<DetailScreen>()> screen;
    /// What an add and an update type into the fields that do not take any text, by control; all
    /// others get a text of their own.
    QMap<QString, std::pair<QString, QString>> typed = {};
    /// Columns that nobody types, and what they hold after both.
    QMap<QString, QString> others = {};
    /// Columns that an update leaves as they are.
    QStringList keeps = {};
};

/// Adds a row through the screen, changes every field of it, and looks at every column of the table
/// after each. A column that nobody states is a failure.
void expectEveryColumnIsKept(ScriptedUser& user, const DetailCase& stated);
