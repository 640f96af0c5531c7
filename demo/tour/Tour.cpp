#include "Tour.h"

#include "ui/Modal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTextStream>
#include <QTimer>

#include <stdexcept>
#include <utility>

Tour::Tour(const QString& folder)
    : folder_(folder) {
    if (!folder_.mkpath(QStringLiteral("."))) {
        throw std::runtime_error("cannot make the folder " + folder.toStdString());
    }
    velcro::ui::setModalWatcher([this](QDialog& form) { meet(form); });
}

Tour::~Tour() {
    velcro::ui::setModalWatcher({});
}

void Tour::say(const QString& text) {
    QTextStream(stdout) << text << Qt::endl;
}

void Tour::fail(const QString& text) {
    ++failures_;
    say(QStringLiteral("  FAILED: ") + text);
}

void Tour::picture(QWidget& widget, const QString& name) {
    QApplication::processEvents();
    const QString file =
        QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
    if (!widget.grab().save(folder_.filePath(file))) {
        fail(QStringLiteral("cannot write ") + folder_.filePath(file));
    }
    say(QStringLiteral("  -> ") + file);
}

void Tour::then(const QString& text, Step step) {
    road_.push_back({text, std::move(step)});
}

void Tour::expect(const QString& title, const QString& name, FormStep steps) {
    expected_.push_back({title, name, std::move(steps)});
}

void Tour::start() {
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
    for (const Expected& missing : std::exchange(expected_, {})) {
        fail(QStringLiteral("\"%1\" did not come up").arg(missing.title));
    }
    start();
}

void Tour::meet(QDialog& form) {
    const bool isExpected = !expected_.empty() && (expected_.front().title.isEmpty() ||
                                                   expected_.front().title == form.windowTitle());
    if (!isExpected) {
        fail(QStringLiteral("nobody expected \"%1\"").arg(form.windowTitle()));
        picture(form, QStringLiteral("unexpected"));
        form.reject();
        return;
    }
    const Expected expected = std::move(expected_.front());
    expected_.pop_front();
    picture(form, expected.name);
    const QPointer<QDialog> guard(&form);
    try {
        expected.steps(form);
    } catch (const std::exception& error) {
        fail(QString::fromUtf8(error.what()));
    }
    if (guard && guard->isVisible()) {
        fail(QStringLiteral("\"%1\" is still open").arg(guard->windowTitle()));
        guard->reject();
    }
}

void Tour::press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* target = widget.focusWidget() != nullptr ? widget.focusWidget() : &widget;
    QTest::keyClick(target, key, modifiers);
    QApplication::processEvents();
}

void Tour::type(QWidget& form, const QString& text) {
    for (const QChar letter : text) {
        if (form.focusWidget() == nullptr) {
            throw std::runtime_error("typed where nothing has the focus");
        }
        QTest::keyClick(form.focusWidget(), letter.toLatin1());
    }
    QApplication::processEvents();
}

void Tour::click(QWidget& form, const QString& button) {
    auto& control = find<QAbstractButton>(form, button);
    if (!control.isVisible() || !control.isEnabled()) {
        throw std::runtime_error("nobody can click " + button.toStdString());
    }
    QTest::mouseClick(&control, Qt::LeftButton);
    QApplication::processEvents();
}

void Tour::check(bool isSo, const QString& what) {
    if (!isSo) {
        fail(what);
    }
}
