// What a product sells for today, and how its stock type is called.
#include "lookups/StockDesk.h"

#include "data/DateTimeText.h"
#include "lookups/SysSTK.h"
#include "platform/seat/Clock.h"

using velcro::test::Desk;

namespace {

class SellPriceTest : public StockDesk
{
protected:
    SellPriceTest() { velcro::seat::setClock(QDateTime({2026, 3, 5}, {9, 0})); }
    ~SellPriceTest() override { velcro::seat::setClock({}); }

    static void price(const QString& code, const QString& from, const QString& to,
                      const QString& excl, Values values = {}) {
        values.insert(Values{{"StockCode", "A1"},
                             {"LinkCode", "L1"},
                             {"PriceCode", code},
                             {"FromDate", from},
                             {"ToDate", to},
                             {"Excl", excl},
                             {"Incl", QString::number(excl.toDouble() * 2)}});
        insert("STKPrice", values);
    }
};

} // namespace

TEST_F(SellPriceTest, theFirstRowThatIsInForceGivesThePrice) {
    const struct
    {
        const char* why;
        std::vector<std::array<const char*, 3>> rows; // from, to, price
        bool known;
        double price;
    } cases[] = {
        {"no row", {}, false, 0},
        {"always", {{"", "", "10"}}, true, 10},
        {"begins today", {{"2026/03/05", "", "10"}}, true, 10},
        {"begins tomorrow", {{"2026/03/06", "", "10"}}, true, 0},
        {"ends today", {{"", "2026/03/05", "10"}}, true, 10},
        {"ended yesterday", {{"", "2026/03/04", "10"}}, true, 0},
        {"blank dates", {{"  ", "  ", "10"}}, true, 10},
        {"the first of two", {{"", "", "10"}, {"2026/03/01", "2026/03/31", "20"}}, true, 10},
        {"the second", {{"2026/04/01", "", "10"}, {"2026/03/01", "", "20"}}, true, 20},
        {"texts, not dates", {{"2026/3/1", "", "10"}}, true, 0},
        {"another form of date", {{"", "31/12/2026", "10"}}, true, 10},
    };
    for (const auto& [why, rows, known, expected] : cases) {
        Desk::onSuite("DELETE FROM STKPrice");
        for (const auto& [from, to, excl] : rows) {
            price("1", from, to, excl);
        }
        gPExcl = gPIncl = 99;
        gIRecID = 99;
        EXPECT_EQ(sk_GetSellPrice("A1", "L1", "1"), known) << why;
        EXPECT_EQ(gPExcl, expected) << why;
        EXPECT_EQ(gPIncl, expected * 2) << why;
        EXPECT_EQ(gIRecID > 0, expected > 0) << why;
    }
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(SellPriceTest, aPriceIsThatOfItsCodeItsBranchAndItsCompany) {
    price("1", "", "", "10");
    price("2", "", "", "20");
    price("1", "", "", "30", {{"Branch", "102"}});
    price("1", "", "", "40", {{"CO", "02"}});
    const struct
    {
        const char *code, *branch, *company;
        double price;
    } cases[] = {{"1", "", "", 10},   {"2", "  ", " ", 20}, {"1", "102", "", 30},
                 {"1", "", "02", 40}, {"3", "", "", 0},     {"1", "102", "02", 0},
                 {"O'B", "", "", 0}};
    for (const auto& [code, branch, company, expected] : cases) {
        EXPECT_EQ(sk_GetSellPrice("A1", "L1", code, branch, company), expected != 0) << code;
        EXPECT_EQ(gPExcl, expected) << code << " " << branch << " " << company;
    }
}

TEST_F(SellPriceTest, theOtherValuesComeAlongAndTheTextsStay) {
    price("1", "2026/01/01", "2026/12/31", "10",
          {{"MUP", "1.5"},
           {"GP", "2.5"},
           {"DiscP", "3.5"},
           {"DiscV", "4.5"},
           {"MaxDiscP", "5.5"},
           {"MaxDiscV", "6.5"},
           {"DefaultMUP", "7.5"},
           {"DefaultGP", "8.5"},
           {"PriceRule", "M"},
           {"Rounding", "2"}});
    const auto numbers = [] {
        return std::vector<double>{gPMUP,      gPGP,       gPDiscP,      gPDiscV,
                                   gPMaxDiscP, gPMaxDiscV, gPDefaultMUP, gPDefaultGP};
    };
    ASSERT_TRUE(sk_GetSellPrice("A1", "L1", "1"));
    EXPECT_EQ(numbers(), (std::vector<double>{1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5, 8.5}));
    ASSERT_FALSE(sk_GetSellPrice("A1", "L1", "9"));
    EXPECT_EQ(numbers(), std::vector<double>(8));
    EXPECT_EQ(QStringList({gPFromDate, gPToDate, gPPriceRule, gPRounding}),
              QStringList({"2026/01/01", "2026/12/31", "M", "2"}));
    Desk::onSuite("DROP TABLE STKPrice");
    EXPECT_FALSE(sk_GetSellPrice("A1", "L1", "1"));
    EXPECT_EQ(desk.shown, QStringList("200011|SQL Error Reading : STKPRICE \rInvalid object name "
                                      "'STKPrice'."));
}

TEST_F(SellPriceTest, stockTypesHaveNames) {
    const std::pair<const char*, const char*> types[] = {{"N", "Normal Item"},
                                                         {"P", "Parent Item"},
                                                         {"K", "Kit Item"},
                                                         {"M", "Misc.Item"},
                                                         {"X", "Service Item"},
                                                         {"C", "Child Item"},
                                                         {"E", "Empties"},
                                                         {"H", "Pallet Item"},
                                                         {"n", ""},
                                                         {"", ""},
                                                         {"Z", ""}};
    for (const auto& [type, name] : types) {
        EXPECT_EQ(sk_GetStockTypeName(type), name) << type;
    }
}
