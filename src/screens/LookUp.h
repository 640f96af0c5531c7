// How an edit looks something up: what is typed or scanned is asked for, "?" and the button beside
// the edit open a selection, and so does a text that nothing is known by.
#pragma once

#include <QObject>
#include <QString>

#include <functional>

class DetailScreen;
class QLineEdit;

class LookUp : public QObject
{
    Q_OBJECT

public:
    enum Answer {
        Found,   // and filled in
        Unknown, // nothing is known by this text
        Refused, // known and not to be had; why has been said
    };

    /// What differs from edit to edit.
    struct Rules
    {
        /// Asks for what stands in the edit.
        std::function<Answer()> find;
        /// Shows the selection, narrowed to the text, and fills in what was picked. False without a
        /// choice.
        std::function<bool(const QString& xStartSearch)> browse;
        bool onEnter = true;
        bool onLeaving = false;
        bool browsesOnLeaving = true;  // "?" browses then too, else it is asked for like any text
        bool findsAfterBrowse = false; // what "?" brought is asked for also when that is nothing
        bool findsBlank = false;       // also an empty edit is asked for
        bool browsesUnknown = true;    // else the user is left to correct the text
        QString unknown = {};          // refusal of a text that nothing was found or picked for
        QString blank = {};            // refusal of an empty edit that was asked for in vain
    };

    /// Its button is the one named after the edit ("btnAccount" of "edAccount"), if there is one.
    LookUp(DetailScreen& screen, QLineEdit& edit, Rules rules);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void browseClicked();
    void left(bool byMouse);
    /// Whether the user may go on to the next control.
    bool run(bool leaving);
    bool stayUnknown(const QString& refusal);
    bool stay();

    DetailScreen& screen_;
    QLineEdit& edit_;
    Rules rules_;
};
