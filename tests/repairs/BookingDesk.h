// The sample databases, a scripted user and short words for what the tests of the order header do.
#pragma once

#include "repairs/CRO100A.h"
#include "support/Desk.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"

#include <gtest/gtest.h>

inline const QString headerTitle = QStringLiteral("Workshop Centre: Repair Order Management");

/// A user who books in over the sample databases.
class BookingDesk : public testing::Test
{
protected:
    BookingDesk() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised.append(message); });
    }
    ~BookingDesk() override { velcro::ui::setErrorDisplay({}); }

    static QString column(const QString& order, const QString& name) {
        return velcro::test::Desk::suite(
            "SELECT [" + name + "] FROM CRORepMst WHERE CO = '01' AND CRONo = '" + order + "'");
    }
    static int recID(const QString& order) { return column(order, "RecID").toInt(); }
    static QString rowsOf(const QString& table, const QString& order) {
        return velcro::test::Desk::suite("SELECT COUNT(*) FROM " + table +
                                         " WHERE CO = '01' AND CRONo = '" + order + "'");
    }

    void show(int xFunction, const QString& order, const ScriptedUser::Step& steps) {
        TfrmCRO100A screen;
        screen.resize(1024, 768);
        screen.xFunction = xFunction;
        screen.xRecID = xFunction == 1 ? 0 : recID(order);
        user.workIn(screen, steps);
    }
    /// Leaves a screen in which something was typed.
    void leave() {
        user.expectForm("System Prompt", [this] { user.press(Qt::Key_Y); });
        user.press(Qt::Key_Escape);
    }
    void fill(const QString& name) {
        user.typeInto("edAccount", "C00001");
        user.typeInto("edName", name);
        user.typeInto("edCellphone", "0825550199");
    }

    velcro::test::Desk desk;
    ScriptedUser user;
    QStringList raised; // what reached the default error display
};
