#include "ui/Modal.h"

#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/MessageBox.h"

#include <QApplication>
#include <QScreen>
#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// A form that asks something before it is on screen.
class AskingForm : public QDialog
{
public:
    AskingForm() {
        setWindowTitle(QStringLiteral("form"));
        connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this, &QDialog::accept);
    }

protected:
    void showEvent(QShowEvent* event) override {
        QDialog::showEvent(event);
        velcro::ui::showMessageBox(nullptr, "box", "text");
    }
};

} // namespace

TEST(ModalTest, aFormThatAsksFirstIsMetAfterItsQuestionAndTakesKeys) {
    ScriptedUser user;
    QStringList met;
    user.expectForm("box", [&] {
        met << "box";
        user.press(Qt::Key_Return);
    });
    user.expectForm("form", [&] {
        met << "form";
        user.press(Qt::Key_F10);
    });
    AskingForm form;
    EXPECT_EQ(velcro::ui::runModal(form), QDialog::Accepted);
    EXPECT_EQ(met, (QStringList{"box", "form"}));
}

TEST(ModalTest, aFormStaysOnTheScreenWithItsFrame) {
    ScriptedUser user;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect& wanted : {QRect(QPoint(), screen.size() * 2), QRect(QPoint(), screen.size()),
                                QRect(screen.bottomRight(), QSize(200, 100))}) {
        QDialog form;
        form.setWindowTitle("form");
        form.setGeometry(wanted);
        user.workIn(form, [&] {
            EXPECT_EQ(offScreen(form), QStringList());
            EXPECT_GE(form.width(), std::min(wanted.width(), screen.width() - 10));
            const QPoint elsewhere = screen.center();
            form.move(elsewhere);
            QApplication::processEvents();
            EXPECT_EQ(form.pos(), elsewhere) << "a user may drag it where he likes";
            form.reject();
        });
    }
}

TEST(ModalTest, theKeyboardGoesBackToTheWindowBelow) {
    ScriptedUser user;
    QWidget window;
    int keys = 0;
    QObject::connect(new QShortcut(Qt::Key_F2, &window), &QShortcut::activated, &window,
                     [&keys] { ++keys; });
    window.show();
    QDialog form;
    form.setWindowTitle(QStringLiteral("form"));
    user.workIn(form, [&] {
        user.expectForm("box", [&] { user.press(Qt::Key_Return); });
        velcro::ui::showMessageBox(nullptr, "box", "text");
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeWindow(), &form);
        user.press(Qt::Key_Escape);
    });
    QApplication::processEvents();
    QTest::keyClick(&window, Qt::Key_F2);
    EXPECT_EQ(keys, 1);
}
