#include "Tour.h"

#include "support/ScreenChecks.h"

#include <QApplication>
#include <QTextStream>
#include <QTimer>

#include <stdexcept>
#include <utility>

Tour::Tour(const QString& folder)
    : folder_(folder) {
    if (!folder_.mkpath(QStringLiteral("."))) {
        throw std::runtime_error("cannot make the folder " + folder.toStdString());
    }
}

void Tour::say(const QString& text) {
    QTextStream(stdout) << text << Qt::endl;
}

void Tour::fail(const QString& text) {
    ++failures_;
    say(QStringLiteral("  FAILED: ") + text);
}

void Tour::surprised(QDialog& form) {
    ScreenUser::surprised(form);
    form.grab().save(folder_.filePath(QStringLiteral("unexpected.png")));
}

void Tour::picture(const QString& name) {
    QApplication::processEvents();
    const QString file =
        QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
    if (!form().grab().save(folder_.filePath(file))) {
        fail(QStringLiteral("cannot write ") + folder_.filePath(file));
    }
    say(QStringLiteral("  -> ") + file);
    judge(form());
}

// The main form's panels lie over its background, and over each other.
void Tour::judge(QWidget& screen) {
    QStringList faults = namelessControls(screen) + smallTargets(screen);
    if (screen.isModal()) {
        faults += clippedControls(screen) + offScreen(screen);
    }
    for (const auto& fault : faults) {
        fail(fault);
    }
}

void Tour::then(const QString& text, Step step) {
    road_.push_back({text, std::move(step)});
}

void Tour::expect(const QString& title, const QString& name, Step steps) {
    expectForm(title, [this, name, steps = std::move(steps)] {
        picture(name);
        steps();
    });
}

void Tour::start(QWidget& mainForm) {
    standAt(&mainForm);
    QTimer::singleShot(0, qApp, [this] { walk(); });
}

void Tour::walk() {
    if (road_.empty()) {
        fail(QStringLiteral("the program still runs at the end of the road"));
        QCoreApplication::exit(1);
        return;
    }
    const Planned next = std::move(road_.front());
    road_.pop_front();
    say(next.text);
    try {
        next.step();
    } catch (const std::exception& error) {
        fail(QString::fromUtf8(error.what()));
    }
    missExpected();
    QTimer::singleShot(0, qApp, [this] { walk(); });
}

void Tour::check(bool isSo, const QString& what) {
    if (!isSo) {
        fail(what);
    }
}
