// Long work: a modal form with a bar and a cancel, which comes up only when the work is long indeed.
#pragma once

#include "ui/Events.h"

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QDialog;
class QLabel;
class QProgressBar;

namespace velcro::ui {

/// Stands while the work runs, in the thread of the screens. Everything but Escape and the cancel
/// button waits until it is gone, so that the screen behind cannot be touched.
class Progress
{
public:
    /// From the first step on that comes so late the form shows, in milliseconds.
    static constexpr int patience = 500;

    /// total steps; 0 where nobody knows, and the bar then only moves.
    Progress(const QString& title, int total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// So many steps are done, and perhaps what is worked on. False once the user has cancelled.
    bool step(int done, const QString& what = {});
    bool isCancelled() const;
    bool isShown() const;

private:
    void show();

    InputHold hold_;
    QElapsedTimer since_;
    QElapsedTimer sincePaint_;
    QString title_;
    int total_;
    bool cancelled_ = false;
    std::unique_ptr<QDialog> form_;
    QLabel* what_ = nullptr;
    QProgressBar* bar_ = nullptr;
};

} // namespace velcro::ui
