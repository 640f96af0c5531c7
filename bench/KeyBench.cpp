// Every key on the road of booking in an order, from the press to the painted screen, over 45,000
// debtors and a register as long as told.
//   KeyBench [roads] [orders]
#include "Shop.h"
#include "Stopwatch.h"

#include "data/DataModules.h"
#include "repairs/CRO100.h"
#include "support/Desk.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QTest>

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

using velcro::test::Desk;

namespace {

/// Types on real screens. A key that opens a form is over when that form is painted, one that
/// closes a form when the form below is.
class Typist : public QObject
{
public:
    using Form = std::function<void(QDialog&)>;

    Typist() {
        velcro::ui::setModalWatcher([this](QDialog& form) { meet(form); });
        qApp->installEventFilter(this);
    }
    ~Typist() override { velcro::ui::setModalWatcher({}); }

    void press(QDialog& form, const std::string& name, Qt::Key key,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        begin(name);
        QTest::keyClick(form.focusWidget(), key, modifiers);
        end(form);
    }
    void type(QDialog& form, const char* text) {
        for (; *text != 0; ++text) {
            begin("letter in " + form.focusWidget()->objectName().toStdString());
            QTest::keyClick(form.focusWidget(), *text);
            end(form);
        }
    }
    /// Works in the form that the key opens.
    void pressInto(QDialog& form, const std::string& name, Qt::Key key,
                   Qt::KeyboardModifiers modifiers, Form steps) {
        next_.push_back(std::move(steps));
        press(form, name, key, modifiers);
        if (!next_.empty()) {
            throw std::runtime_error(name + " opened no form");
        }
    }
    void work(QDialog& form, Form steps) {
        next_.push_back(std::move(steps));
        begin("open " + form.objectName().toStdString());
        velcro::ui::runModal(form);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    std::map<std::string, bench::Rounds> keys;
    bench::Rounds all;
    int unpainted = 0; // keys that changed nothing on the screen

private:
    void begin(const std::string& name) {
        name_ = name;
        painted_ = false;
        processor_ = std::clock();
        start_ = bench::Clock::now();
    }
    void end(QDialog& form) {
        if (name_.empty() || !form.isVisible()) {
            return; // the form below ends it
        }
        QApplication::processEvents();
        const auto taken = bench::Clock::now() - start_;
        const auto processor = std::clock() - processor_;
        unpainted += painted_ ? 0 : 1;
        keys[std::exchange(name_, {})].add(taken, processor);
        all.add(taken, processor);
    }
    void meet(QDialog& form) {
        if (next_.empty()) {
            std::fprintf(stderr, "nobody expected \"%s\"\n", qPrintable(form.windowTitle()));
            std::exit(1);
        }
        const Form steps = std::move(next_.back());
        next_.pop_back();
        end(form);
        steps(form);
    }

    std::vector<Form> next_;
    std::string name_;
    bool painted_ = false;
    bench::Clock::time_point start_;
    std::clock_t processor_ = 0;
};

void pickCustomer(Typist& typist, QDialog& customers) {
    for (int i = 0; i < 3; ++i) {
        typist.press(customers, "Down in the customers", Qt::Key_Down);
    }
    typist.press(customers, "Alt+S in the customers", Qt::Key_S, Qt::AltModifier);
    typist.type(customers, "norman");
    typist.press(customers, "Enter searches the customers", Qt::Key_Return);
    typist.press(customers, "Down in the customers", Qt::Key_Down);
    typist.press(customers, "Enter picks the customer", Qt::Key_Return);
}

void fill(Typist& typist, QDialog& header) {
    for (int i = 0; i < 4; ++i) {
        typist.press(header, "Enter to the next edit", Qt::Key_Return);
    }
    typist.type(header, "?");
    typist.pressInto(header, "Enter opens the customers", Qt::Key_Return, Qt::NoModifier,
                     [&](QDialog& customers) { pickCustomer(typist, customers); });
    for (const char* text : {"", "14 Quarry Lane", "Flat 3", "Northfold", "Brindavel", "7001",
                             "Ask for Wanda", "0825550199"}) {
        typist.type(header, text);
        typist.press(header, "Enter to the next edit", Qt::Key_Return);
    }
    typist.press(header, "F10 saves the order", Qt::Key_F10);
}

void change(Typist& typist, QDialog& header) {
    for (int i = 0; i < 3; ++i) {
        typist.press(header, "Tab to the reference", Qt::Key_Tab);
    }
    typist.type(header, "K-8");
    typist.press(header, "F10 changes the order", Qt::Key_F10);
}

void walk(Typist& typist) {
    TfrmCRO100 list;
    typist.work(list, [&](QDialog& form) {
        typist.pressInto(form, "Insert opens the header", Qt::Key_Insert, Qt::NoModifier,
                         [&](QDialog& header) { fill(typist, header); });
        typist.press(form, "Down in the register", Qt::Key_Down);
        typist.press(form, "Up in the register", Qt::Key_Up);
        typist.pressInto(form, "Ctrl+Enter opens the header", Qt::Key_Return, Qt::ControlModifier,
                         [&](QDialog& header) { change(typist, header); });
        typist.press(form, "Alt+S in the register", Qt::Key_S, Qt::AltModifier);
        typist.type(form, "K-8");
        typist.press(form, "Enter searches the register", Qt::Key_Return);
        typist.press(form, "Ctrl+R restores the register", Qt::Key_R, Qt::ControlModifier);
        typist.pressInto(
            form, "Delete opens the header", Qt::Key_Delete, Qt::NoModifier,
            [&](QDialog& header) { typist.press(header, "F10 deletes the order", Qt::Key_F10); });
        form.reject();
    });
}

void print(const Typist& typist) {
    std::printf("%-40s %6s %9s %9s %9s %9s\n", "ms from key to painted screen", "keys", "median",
                "99 %", "longest", "cpu 99 %");
    const auto line = [](const std::string& name, const bench::Rounds& rounds) {
        std::printf("%-40s %6zu %9.2f %9.2f %9.2f %9.2f\n", name.c_str(), rounds.count(),
                    rounds.median(), rounds.percentile(0.99), rounds.percentile(1),
                    rounds.processor(0.99));
    };
    for (const auto& [name, rounds] : typist.keys) {
        line(name, rounds);
    }
    line("all keys (aim: 50 at 99 %)", typist.all);
    std::printf("%d of them painted nothing\n", typist.unpainted);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    velcro::ui::applyTheme(application);
    const int roads = argc > 1 ? std::atoi(argv[1]) : 30;
    const Desk desk;
    bench::addCustomers(45'000);
    bench::addOrders(argc > 2 ? std::atoi(argv[2]) : 5'000);
    Typist typist;
    for (int i = 0; i < roads; ++i) {
        walk(typist);
    }
    print(typist);
    for (const QString& problem : desk.shown) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    return desk.shown.isEmpty() ? 0 : 1;
}
