// What a text that is typed or scanned finds in the stock.
#include "data/Prompts.h"
#include "lookups/StockDesk.h"

#include "lookups/SysSTKFindItem.h"

using velcro::test::Desk;

namespace {

const QString linkedTitle = QStringLiteral("STOCK MASTER : Select a LINKED Item");

class FindItemTest : public StockDesk
{
protected:
    FindItemTest() {
        sfi_AllowKit = true;
        sfi_AllowArchive = false;
        sfi_PickChild = true;
    }
    static void alternative(const QString& barcode, const QString& stock, const QString& link) {
        insert("STKAltBarcodes", {{"Barcode", barcode}, {"StockCode", stock}, {"LinkCode", link}});
    }
    static void source(const QString& code, const QString& account, const QString& stock,
                       const QString& link) {
        insert(
            "STKAltSuppliers",
            {{"SuppCode", code}, {"Account", account}, {"StockCode", stock}, {"LinkCode", link}});
    }
    /// "stock code/link code" of what is found, blank when nothing is.
    static QString found(const QString& text, const QString& supplier = {}) {
        const int id = sfi_FindStockItem(text, supplier);
        return id == 0 ? QString()
                       : Desk::suite("SELECT [StockCode] + '/' + [LinkCode] FROM STKMaster WHERE "
                                     "[RecID] = " +
                                     QuotedStr(id));
    }
    void stock() {
        product("A1", {{"Barcode", "600100"}, {"SuppCode", "AX-1"}});
        product("A2", {{"Barcode", "A1"}, {"SuppCode", "AX-1"}, {"Supplier", "S102"}});
        product("A3", {{"LinkCode", "A3-B"}});
        product("A3", {{"LinkCode", "A3-A"}, {"Barcode", "600300"}});
        product("B1", {{"LinkCode", "A9"}});
        product("A9");
        product("K1", {{"StockType", "K"}, {"Barcode", "600400"}});
        product("F3", {{"KitFunction", "3"}});
        product("F4", {{"KitFunction", "4"}});
        product("OLD", {{"Status", "X"}, {"Barcode", "600500"}});
        product("NEW", {{"SuppCode", "600500"}});
        product("IDLE", {{"Status", "N"}});
        product("O'B", {{"Barcode", "6'\"--"}});
        product("%", {{"Barcode", "_[x]"}});
        product("FAR", {{"Branch", "101"}, {"Barcode", "600600"}});
        alternative("700100", "A1", "");
        alternative("700101", "A3", "A3-B");
        alternative("700102", "GONE", "");
        alternative("700103", "A1", "GONE");
        alternative("700104", "A3", " ");
        product("AFTER", {{"SuppCode", "GONE"}});
        source("ALT-1", "S119", "A1", "A1");
        source("ALT-1", "S120", "A3", "A3-B");
        source("ALT-2", "S119", "LOST", "");
        source("ALT-3", "S119", "A2", "LOST");
    }
};

} // namespace

TEST_F(FindItemTest, aTextIsTriedInTheOrderOfWhatItCanBe) {
    stock();
    const struct
    {
        const char *text, *supplier, *expected, *why;
    } cases[] = {
        {"", "", "", "nothing typed"},
        {"   ", "", "", "blanks"},
        {"600100", "", "A1/A1", "a barcode"},
        {"  600100 ", "", "A1/A1", "with blanks around it"},
        {"A1", "", "A2/A2", "a barcode beats a link code and a stock code"},
        {"A9", "", "A9/A9", "of two with one link code the lower stock code"},
        {"A3", "", "A3/A3-A", "of a stock code the lowest link code"},
        {"a3-b", "", "A3/A3-B", "in any case"},
        {"700100", "", "A1/A1", "an alternative barcode of the stock code"},
        {"700101", "", "A3/A3-B", "of the link code"},
        {"700104", "", "A3/A3-A", "a blank link code is none"},
        {"700102", "", "AFTER/AFTER", "its item is gone: what it stood for is searched on"},
        {"700103", "", "AFTER/AFTER", "its link is gone, and the stock code is not tried"},
        {"AX-1", "", "A1/A1", "a supplier's code, the lowest stock code"},
        {"AX-1", "S102", "A2/A2", "of that supplier"},
        {"AX-1", "S199", "", "which nobody has from this one"},
        {"ALT-1", "", "A1/A1", "an alternative supplier's code"},
        {"ALT-1", "S120", "A3/A3-B", "of that supplier"},
        {"ALT-1", "S199", "", "which nobody has from this one"},
        {"ALT-2", "", "", "its item is gone"},
        {"ALT-3", "", "", "its link is gone"},
        {"K1", "", "K1/K1", "a kit"},
        {"F3", "", "F3/F3", "a kit function"},
        {"IDLE", "", "IDLE/IDLE", "not active is the caller's matter"},
        {"600500", "", "NEW/NEW", "archived: on to the supplier's codes"},
        {"O'B", "", "O'B/O'B", "an apostrophe"},
        {"6'\"--", "", "O'B/O'B", "a barcode of signs"},
        {"%", "", "%/%", "no wildcard"},
        {"_[x]", "", "%/%", "no wildcard"},
        {"600600", "", "", "of another branch"},
    };
    for (const auto& [text, supplier, expected, why] : cases) {
        EXPECT_EQ(found(text, supplier), expected) << text << ": " << why;
    }
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(FindItemTest, kitsAndArchivedItemsAreHiddenBySettings) {
    stock();
    product("NOKIT", {{"KitFunction", ""}});
    sfi_AllowKit = false;
    for (const char* text : {"K1", "600400", "F3", "F4"}) {
        EXPECT_EQ(found(text), "") << text;
    }
    EXPECT_EQ(found("A2"), "A2/A2");
    EXPECT_EQ(found("NOKIT"), "NOKIT/NOKIT");
    sfi_AllowArchive = true;
    EXPECT_EQ(found("600500"), "OLD/OLD");
}

TEST_F(FindItemTest, ofAParentAPackIsPickedAndTheLargestComesFirst) {
    product("P1", {{"StockType", "P"}, {"Barcode", "600700"}, {"LinkCode", ""}});
    product("P1", {{"StockType", "C"}, {"LinkCode", "P1-6"}, {"Units", "6"}});
    product("P1", {{"StockType", "C"}, {"LinkCode", "P1-12"}, {"Units", "12"}});
    product("P1", {{"StockType", "C"}, {"LinkCode", "P1-X"}, {"Units", "99"}, {"Status", "X"}});
    user.expectForm(linkedTitle, [&] {
        EXPECT_EQ(user.sees("edStockCode"), "P1");
        EXPECT_EQ(user.sees("edDescription1"), "Of P1");
        EXPECT_EQ(user.column("Units"), QStringList({"12", "6"}));
        user.press(Qt::Key_Down);
        user.press(Qt::Key_Return);
    });
    EXPECT_EQ(found("600700"), "P1/P1-6");
    sfi_PickChild = false;
    EXPECT_EQ(found("600700"), "P1/") << "the parent itself";
    sfi_PickChild = true;
    // Without a choice nothing was found, and the search goes on: the text is no link code, and as a
    // stock code it finds the parent once more.
    product("P2", {{"StockType", "P"}, {"Barcode", "P2"}, {"LinkCode", ""}, {"SuppCode", "P2"}});
    product("P2", {{"StockType", "C"}, {"LinkCode", "P2-1"}});
    const auto leave = [&] { user.press(Qt::Key_Escape); };
    for (int i = 0; i < 3; ++i) {
        user.expectForm(linkedTitle, leave);
    }
    EXPECT_EQ(found("P2"), "") << "barcode, stock code and supplier's code each asked";
    EXPECT_EQ(desk.shown, QStringList());
}

TEST_F(FindItemTest, aReadThatFailsIsToldAndTheSearchGoesOn) {
    const struct
    {
        const char *table, *text, *number;
        QStringList routines;
    } reads[] = {
        {"STKAltSuppliers",
         "Error Reading STKALTSUPPLIERS : ",
         "900005",
         {"sfi_SearchAltSupplier", "sfi_SearchAltSupplier", "sfi_SearchAltSupplier"}},
        {"STKAltBarcodes", "Error Reading STKAltBarCodes : ", "900003", {"sfi_SearchAltBarcode"}},
        {"STKMaster",
         "Error Reading STKMaster : ",
         "900001",
         {"sfi_SearchStockCode", "sfi_SearchStockCode", "sfi_SearchStockCode",
          "sfi_SearchStockCode"}},
    };
    QStringList told; // number, routine and text as the dialog has them
    gPrompts.errorForm = [&](const QString& number, const QString& text, const QString& program,
                             const QString& routine) {
        told << number + "|" + text + "|" + program + "|" + routine;
    };
    for (const auto& [table, text, number, routines] : reads) {
        told.clear();
        Desk::onSuite(QString("DROP TABLE ") + table);
        EXPECT_EQ(found("NOTHING"), "");
        QStringList mine = told.filter(text, Qt::CaseInsensitive);
        EXPECT_EQ(mine.size(), routines.size()) << told.join('\n').toStdString();
        EXPECT_TRUE(mine.value(0).startsWith(QString(text) + "\r\rInvalid object name"))
            << mine.value(0).toStdString();
        EXPECT_TRUE(mine.value(0).endsWith("|" + routines[0] + "|" + number + "|SysFindItem"))
            << mine.value(0).toStdString();
    }
    EXPECT_EQ(raised, QStringList());
}
