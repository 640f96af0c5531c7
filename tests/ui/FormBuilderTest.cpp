#include "ui/FormBuilder.h"

#include "support/ScreenChecks.h"
#include "ui/DateEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace velcro::ui;

namespace {

class FormBuilderTest : public testing::Test
{
protected:
    FormBuilderTest() {
        FormBuilder form(&page);
        form.group(" [ Order ] ");
        edCode = form.edit("edCode", "Code", {.limit = 5, .upperCase = true});
        edDate = form.beside().date("edDate", "Order &Date");
        cmbHow = form.combo("cmbHow", "Received", {"WALKIN - WALKIN", "COURIER - COURIER"});
        form.browseButton(edCode);
        form.stretch();
        page.resize(800, 300);
        page.show();
        page.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
    }

    QWidget page;
    QLineEdit* edCode = nullptr;
    DateEdit* edDate = nullptr;
    QComboBox* cmbHow = nullptr;
};

TEST_F(FormBuilderTest, ControlsHaveTheirNamesAndLabelsAreBuddies) {
    EXPECT_EQ(page.findChild<QLineEdit*>("edCode"), edCode);
    EXPECT_EQ(edDate->accessibleName(), "Order Date");
    for (const auto* label : page.findChildren<QLabel*>()) {
        EXPECT_NE(label->buddy(), nullptr) << label->text().toStdString();
    }
    EXPECT_EQ(namelessControls(page), QStringList());
    EXPECT_EQ(clippedControls(page), QStringList());
}

TEST_F(FormBuilderTest, TabGoesInReadingOrder) {
    edCode->setFocus();
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        visited << page.focusWidget()->objectName();
        QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, QStringList({"edCode", "edDate", "cmbHow"}));
}

TEST_F(FormBuilderTest, ALongTextShowsItsBeginningAndIsTypedOnAtItsEnd) {
    edDate->setFocus();
    edCode->setText("ABCDE");
    EXPECT_EQ(edCode->cursorPosition(), 0);
    edCode->setFocus();
    QTest::keyClick(edCode, Qt::Key_Backspace);
    EXPECT_EQ(edCode->text(), "ABCD");
    QTest::keyClick(edCode, Qt::Key_Tab);
    EXPECT_EQ(edCode->cursorPosition(), 0);
}

TEST_F(FormBuilderTest, UpperCaseAndLimitHoldForTypedAndPastedText) {
    QTest::keyClicks(edCode, "ab9");
    edCode->insert("éßyz");
    EXPECT_EQ(edCode->text(), "AB9Éß") << "upper case does not make a text longer";
    edCode->setText(QString::fromUtf8("1234😀"));
    EXPECT_EQ(edCode->text(), "1234") << "half a letter is none";
}

TEST_F(FormBuilderTest, DatesAreTypedInManyWaysAndNothingTypedIsLost) {
    QString refused;
    QObject::connect(edDate, &DateEdit::dateRefused, &page,
                     [&refused](const QString& text) { refused = text; });
    const struct
    {
        const char* typed;
        const char* stays;
        bool accepted;
    } cases[] = {
        {"2026/11/22", "2026/11/22", true},
        {"2026-1-5", "2026/01/05", true},
        {"2026.01.05", "2026/01/05", true},
        {"20260105", "2026/01/05", true},
        {"", "", true},
        {"2026/02/30", "2026/02/30", false},
        {"tomorrow", "tomorrow", false},
    };
    for (const auto& c : cases) {
        refused = "none";
        edDate->setFocus();
        edDate->clear();
        QTest::keyClicks(edDate, c.typed);
        QTest::keyClick(edDate, Qt::Key_Tab);
        EXPECT_EQ(edDate->text(), c.stays) << "typed " << c.typed;
        EXPECT_EQ(refused, c.accepted ? "none" : c.typed) << "typed " << c.typed;
    }
}

} // namespace
