// What list, selection and detail screens have in common: the status bar with unit and title, keys
// that click buttons, and the technical reference.
#pragma once

#include "screens/Buttons.h"
#include "ui/Handler.h"
#include "ui/StatusBar.h"

#include <QDialog>
#include <QKeySequence>
#include <QShortcut>

class QVBoxLayout;

class Screen : public QDialog
{
    Q_OBJECT

public:
    /// Command of the technical reference in a window's system menu.
    static constexpr int techHelpCommand = 1025;

    Screen(const QString& unit, const QString& caption, QWidget* parent);

    const QString& unitName() const { return unit_; }
    velcro::ui::StatusBar& StatusBar1() { return *statusBar_; }

protected:
    /// Runs when the screen is shown, before it is painted.
    virtual void FormShow() {}

    void displayError(const QString& message);
    void displayMessage(const QString& type, const QString& message);
    void resetStatusBar();
    /// What is wrong with a control is its description; blank takes it away.
    static void describe(QWidget& control, const QString& refusal);

    /// Everything above the status bar goes here.
    QVBoxLayout& body() { return *body_; }
    /// The technical reference, for windows whose title bar cannot hold it.
    velcro::ui::KeyButton* newTechHelpButton();

    /// Takes the pictures of the keys off all buttons; the keys themselves go on working. The other
    /// one does so on seats that are worked by touch alone (till parameter 62).
    void hideKeyCaps();
    void hideKeyCapsBySeat();

    /// For what no button stands for.
    template <typename Receiver, typename Handler>
    void bindKey(const QKeySequence& key, Receiver* receiver, Handler handler) {
        velcro::ui::connectHandler(new QShortcut(key, this), &QShortcut::activated, receiver,
                                   handler);
    }

    void showEvent(QShowEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    void makeStatusBar();
    void techHelp();

    QString unit_;
    velcro::ui::StatusBar* statusBar_ = nullptr;
    QVBoxLayout* body_ = nullptr;
    bool inSystemMenu_ = false;
};
