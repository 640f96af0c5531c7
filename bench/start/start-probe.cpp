// The program itself, signing in as a user would, with a stamp at the log-in screen, at OK and at
// the live menu.
#include "Stamp.h"

#include "application/Program.h"
#include "ui/Modal.h"
#include "ui/Theme.h"

#include <QTest>
#include <QTimer>

namespace {

void signIn(QDialog& form) {
    bench::stamp("log-in");
    std::printf("size %d %d\n", form.width(), form.height());
    QTest::keyClicks(form.focusWidget(), QStringLiteral("COUNTER1"));
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    QTest::keyClicks(form.focusWidget(), QStringLiteral("COUNTER"));
    bench::stamp("typed");
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    velcro::ui::setModalWatcher(signIn);
    Program program({});
    QObject::connect(&program.mainForm(), &TfrmMAIN000::menuIsLive, [] {
        bench::stamp("live");
        QTimer::singleShot(0, [] { QApplication::exit(0); });
    });
    return program.run();
}
