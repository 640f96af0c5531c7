// Buttons as screens state them: what a button is called, which key does the same, and what it does.
#pragma once

#include "ui/KeyButton.h"

#include <QKeySequence>

#include <functional>
#include <optional>

struct ButtonFacts
{
    using Role = velcro::ui::KeyButton::Role;

    QString name = {}; // "btnAdd"
    QString caption = {};
    /// Does what a click does, from anywhere on the form, and nothing while the button is greyed.
    /// Enter means the one on the keypad too. A list leaves Enter to its grid.
    QKeySequence key = {};
    std::function<void()> handler = {}; // none: greyed
    /// Greyed as long as the list has no current record.
    bool needsRecord = false;
    Role role = Role::Plain;
    QList<QKeySequence> alsoKeys = {}; // without a picture
    /// Picture of another key than the one that works, blank for none; otherwise that of the key.
    std::optional<QString> cap = {};
    QString hint = {};
    QString icon = {}; // line icon of a button without a cap
};

enum class PlainEnter { PressesButton, StaysWithForm };

/// Makes the button on the form, with its picture, its keys and its handler. A form that uses
/// Enter by itself, as a grid does, keeps it.
velcro::ui::KeyButton* makeButton(QWidget& form, const ButtonFacts& facts,
                                  PlainEnter enter = PlainEnter::PressesButton);
/// btnKeyboard, which starts the keyboard on the screen; greyed, and says so, on a seat without one.
velcro::ui::KeyButton* makeKeyboardButton(QWidget& form);
/// Whether the key is Enter with no other key held down.
bool isPlainEnter(const QKeySequence& key);
