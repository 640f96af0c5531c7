// Amounts as people type and see them, and the one rounding there is.
#include "ui/AmountEdit.h"

#include "ui/DecimalText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <random>

using namespace velcro::ui;

namespace {

class AmountEditTest : public testing::Test
{
protected:
    AmountEditTest() {
        auto* layout = new QVBoxLayout(&page);
        layout->addWidget(&edit);
        layout->addWidget(&other);
        page.show();
        page.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
        other.setFocus();
    }
    std::string shownAfter(const char* typed) {
        edit.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&edit, typed);
        other.setFocus(Qt::TabFocusReason);
        return edit.text().toStdString();
    }

    QWidget page;
    AmountEdit edit{2, &page};
    QLineEdit other{&page};
};

/// Digits as a whole number, rounded away from zero at half.
std::string roundedWhole(__int128 units, int from, int to) {
    const bool negative = units < 0;
    units = negative ? -units : units;
    for (; from < to; ++from) {
        units *= 10;
    }
    __int128 power = 1;
    for (int i = to; i < from; ++i) {
        power *= 10;
    }
    units = (units + power / 2) / power;
    std::string digits;
    for (auto rest = units; rest > 0; rest /= 10) {
        digits.insert(digits.begin(), char('0' + int(rest % 10)));
    }
    digits.insert(0, std::size_t(std::max(0, to + 1 - int(digits.size()))), '0');
    if (to > 0) {
        digits.insert(digits.size() - std::size_t(to), ".");
    }
    return (negative && units > 0 ? "-" : "") + digits;
}

} // namespace

TEST_F(AmountEditTest, roundsTheDigitsThatAreSeen) {
    const struct
    {
        const char* text;
        int decimals;
        const char* rounded;
    } cases[] = {
        {"2.675", 2, "2.68"},
        {"1.005", 2, "1.01"},
        {"-1.005", 2, "-1.01"},
        {"0.005", 2, "0.01"},
        {"-0.004", 2, "0.00"},
        {"9.995", 2, "10.00"},
        {"0.5", 0, "1"},
        {"-0.5", 0, "-1"},
        {"", 2, "0.00"},
        {"-", 0, "0"},
        {".5", 1, "0.5"},
        {"7.", 2, "7.00"},
        {"007.10", 1, "7.1"},
        {"1.2", 5, "1.20000"},
        {"-999.9999", 3, "-1000.000"},
        {"+3.14159", 4, "3.1416"},
        {"123456789012345678901234567890.125", 2, "123456789012345678901234567890.13"},
    };
    for (const auto& [text, decimals, rounded] : cases) {
        EXPECT_EQ(roundedDecimal(text, decimals).toStdString(), rounded) << text;
    }
}

TEST_F(AmountEditTest, randomAmountsRoundAsWholeNumbersDo) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const int from = int(random() % 8);
        const int to = int(random() % 8);
        const auto limit = std::int64_t(1) << (random() % 62);
        const auto units = std::int64_t(random() % std::uint64_t(limit)) * (random() % 2 ? 1 : -1);
        const auto text = QString::fromStdString(roundedWhole(units, from, from));
        EXPECT_EQ(roundedDecimal(text, to).toStdString(), roundedWhole(units, from, to))
            << text.toStdString() << " to " << to;
    }
}

// What is calculated comes as a binary number, and its last digit must not decide.
TEST_F(AmountEditTest, whatIsCalculatedRoundsLikeItsDecimalResult) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        const auto price = std::int64_t(random() % 100000000);
        const auto quantity = std::int64_t(random() % 100000);
        edit.setDecimals(int(random() % 6));
        edit.setValue(double(price) / 100 * (double(quantity) / 1000));
        EXPECT_EQ(edit.text().toStdString(),
                  roundedWhole(__int128(price) * quantity, 5, edit.decimals()))
            << price << " cents times " << quantity << " thousandths";
        EXPECT_EQ(edit.text().toDouble(), edit.value());
    }
    const std::pair<double, const char*> numbers[] = {
        {0.1 + 0.2, "0.3"},
        {1e21, "1000000000000000000000"},
        {1.25e-7, "0.000000125"},
        {-4.5, "-4.5"},
        {std::numeric_limits<double>::quiet_NaN(), "0"},
        {0, "0"},
    };
    for (const auto& [number, text] : numbers) {
        EXPECT_EQ(decimalText(number).toStdString(), text);
    }
}

TEST_F(AmountEditTest, isTypedAnewEachTimeItIsEntered) {
    EXPECT_EQ(edit.text(), "0.00");
    const std::pair<const char*, const char*> typed[] = {
        {"12.5", "12.50"}, {"2.675", "2.68"}, {"-3", "-3.00"},   {".5", "0.50"},
        {"1,25", "1.25"},  {"", "1.25"},      {"abc", "1.25"},   {"1x2y", "12.00"},
        {"1.2.3", "1.23"}, {"4-", "4.00"},    {"0013", "13.00"}, {"-", "0.00"},
    };
    for (const auto& [keys, shown] : typed) {
        EXPECT_EQ(shownAfter(keys), shown) << keys;
        EXPECT_EQ(edit.value(), edit.text().toDouble()) << keys;
    }
    edit.setReadOnly(true);
    EXPECT_EQ(shownAfter("5,5"), "0.00");
}

TEST_F(AmountEditTest, refusesAPastedTextThatIsNoNumberWhole) {
    const std::pair<const char*, const char*> pasted[] = {
        {"1,234.50", "1234.50"}, {"  7.5 ", "7.50"},
        {"R 12", "7.50"},        {"1,234", "7.50"},
        {"1.234,50", "7.50"},    {"12e3", "7.50"},
        {"-8", "-8.00"},         {"1234567890123456", "-8.00"},
    };
    for (const auto& [text, shown] : pasted) {
        edit.setFocus(Qt::TabFocusReason);
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
        other.setFocus(Qt::TabFocusReason);
        EXPECT_EQ(edit.text().toStdString(), shown) << text;
    }
}

TEST_F(AmountEditTest, showsAsManyDecimalsAsItIsTold) {
    edit.setNumber("2.6754");
    EXPECT_EQ(edit.text(), "2.68");
    edit.setDecimals(4);
    EXPECT_EQ(edit.text(), "2.6800") << "what it showed was its value";
    EXPECT_EQ(edit.number(), "2.68");
    edit.setDecimals(0);
    EXPECT_EQ(edit.text(), "3");
    edit.setNumber("no number");
    EXPECT_EQ(edit.number(), "0");
    edit.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&edit, "9.96");
    EXPECT_EQ(edit.number(), "10") << "also before it is left";
}
