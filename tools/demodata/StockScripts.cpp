#include "StockScripts.h"

#include <array>

namespace velcro::demo {

namespace {

using std::chrono::days;

constexpr std::array<std::array<const char*, 2>, 8> departments = {{{"VISION", "Television"},
                                                                    {"SOUND", "Sound"},
                                                                    {"HOME", "Home appliances"},
                                                                    {"OFFICE", "Office"},
                                                                    {"TOOLS", "Power tools"},
                                                                    {"GARDEN", "Garden"},
                                                                    {"SPARES", "Spare parts"},
                                                                    {"SERVICE", "Services"}}};

Money percentOf(std::int64_t cents, int percent) {
    return {cents * percent / 100};
}

} // namespace

std::int64_t withVat(std::int64_t centsExclusive) {
    return (centsExclusive * 115 + 50) / 100;
}

StockScripts::StockScripts()
    : departments_("STKDept", {"CO", "DeptCode", "DeptName"})
    , masters_("STKMaster",
               {"CO",           "Branch",       "StockType",    "StockCode",    "LinkCode",
                "Description1", "Description2", "VATCode",      "DeptCode",     "Supplier",
                "SuppCode",     "BarCode",      "Variant",      "Units",        "Singles",
                "PackSize",     "SerialTrack",  "KitFunction",  "SaleItem",     "QtyDecimal",
                "CostDecimal",  "SellDecimal",  "Status",       "LastCostExcl", "LastCostIncl",
                "AvgCostExcl",  "AvgCostIncl",  "BuyCostExcl",  "BuyCostIncl",  "ListCostExcl",
                "ListCostIncl", "SqmBox",       "Manufacturer", "DefaultWH",    "DTODate",
                "DTOTime",      "DTOUser",      "DTOMacID"})
    , balances_("STKBalance", {"CO", "Branch", "StockCode", "WH", "Onhand"})
    , prices_("STKPrice", {"CO", "Branch", "StockCode", "LinkCode", "PriceCode", "Description",
                           "FromDate", "ToDate", "Excl", "Incl", "MUP", "GP", "MaxDiscP",
                           "PriceRule", "Rounding", "DefaultMUP", "DefaultGP"})
    , barcodes_("STKAltBarcodes",
                {"CO", "Branch", "StockCode", "LinkCode", "Barcode", "Description1"})
    , suppliers_("STKAltSuppliers",
                 {"CO", "Branch", "StockCode", "LinkCode", "Account", "Name", "SuppCode"})
    , kits_("STKKitMaster", {"CO", "Branch", "StockCode", "KitStockCode", "KitLinkCode", "KitQty",
                             "KitLinkQty", "KitUnits"})
    , serials_("STKSerialMst",
               {"CO", "Branch", "StockCode", "LinkCode", "SerialNo", "Status", "GRVDate",
                "GRVWarrantyDays", "DEBAccount", "DEBName", "DEBDocDate", "DEBWarrantyDays"}) {
    for (const char* company : {"01", "02"}) {
        for (const auto& [code, name] : departments) {
            departments_.add({company, code, name});
        }
    }
}

void StockScripts::add(const StockRow& row, Random& random, Day today) {
    addMaster(row, random, today);
    if (row.hasPrices) {
        addPrices(row.item, random, today);
    }
    if (row.item.stockType == "N" || row.item.stockType == "P" || row.item.stockType == "K") {
        addBalances(row.item, random);
        addAlternatives(row, random);
    }
}

void StockScripts::addMaster(const StockRow& row, Random& random, Day today) {
    const auto& item = row.item;
    const auto last = percentOf(item.costCents, 102);
    const auto average = percentOf(item.costCents, 101);
    const auto list = percentOf(item.costCents, 112);
    const bool length = item.stockType == "M";
    const auto firstBlank = item.description.find(' ');
    masters_.add({item.company,
                  item.branch,
                  item.stockType,
                  item.stockCode,
                  item.linkCode,
                  item.description,
                  row.model.empty() ? "" : "Model " + row.model,
                  random.percent(2) ? "0" : "1",
                  row.department,
                  row.supplier,
                  row.supplierCode,
                  row.barcode,
                  "",
                  row.units,
                  row.units == 1 ? 1 : 0,
                  std::to_string(row.units),
                  row.serialTrack ? "Y" : "N",
                  row.kitFunction,
                  "Y",
                  length ? 2 : 0,
                  2,
                  2,
                  row.status,
                  last,
                  Money{withVat(last.cents)},
                  average,
                  Money{withVat(average.cents)},
                  Money{item.costCents},
                  Money{withVat(item.costCents)},
                  list,
                  Money{withVat(list.cents)},
                  0,
                  item.description.substr(0, firstBlank),
                  "MAIN",
                  dateText(today),
                  "08:00:00",
                  "MANAGER",
                  "SERVER"});
}

/// Retail and trade for all, staff for some. Some retail prices have ended and been followed by
/// another, some begin only next month.
void StockScripts::addPrices(const StockItem& item, Random& random, Day today) {
    const auto price = [&](const char* code, const char* name, std::int64_t cents,
                           const std::string& from, const std::string& to) {
        const auto margin = cents - item.costCents;
        prices_.add({item.company, item.branch, item.stockCode, item.linkCode, code, name, from, to,
                     Money{cents}, Money{withVat(cents)}, margin * 100 / item.costCents,
                     margin * 100 / cents, 10, "M", "0", 45, 31});
    };
    const auto trade = item.costCents + (item.priceCents - item.costCents) / 2;
    const int kind = random.below(20);
    if (kind == 0) {
        price("1", "Retail", item.priceCents * 9 / 10, "2020/01/01", dateText(today - days(30)));
        price("1", "Retail", item.priceCents, dateText(today - days(29)), "");
    } else if (kind == 1) {
        price("1", "Retail", item.priceCents, "", dateText(today + days(20)));
        price("1", "Retail", item.priceCents * 11 / 10, dateText(today + days(21)), "");
    } else {
        price("1", "Retail", item.priceCents, "2022/01/01", "");
    }
    price("2", "Trade", trade, "2022/01/01", "");
    if (random.percent(30)) {
        price("3", "Staff", item.costCents * 112 / 100, "", "");
    }
}

/// A row a warehouse; every twelfth item has never been counted and has none.
void StockScripts::addBalances(const StockItem& item, Random& random) {
    const int kind = random.below(12);
    if (kind == 0) {
        return;
    }
    balances_.add({item.company, item.branch, item.stockCode, "MAIN", random.below(40)});
    if (kind < 3 && item.branch == "100") {
        balances_.add({item.company, item.branch, item.stockCode, "SPARE", random.below(8)});
    }
}

void StockScripts::addAlternatives(const StockRow& row, Random& random) {
    const auto& item = row.item;
    if (random.percent(15)) {
        const bool wholeItem = item.stockType == "P" || random.percent(50);
        barcodes_.add({item.company, item.branch, item.stockCode, wholeItem ? "" : item.linkCode,
                       "4" + row.barcode, item.description});
    }
    if (random.percent(12)) {
        suppliers_.add({item.company, item.branch, item.stockCode, item.linkCode, "S119",
                        "Second Source Imports", "ALT-" + row.supplierCode});
    }
}

void StockScripts::addKitPart(const StockItem& kit, const StockItem& part, int quantity) {
    kits_.add({kit.company, kit.branch, kit.stockCode, part.stockCode, part.linkCode, quantity,
               quantity, 1});
}

void StockScripts::addSerial(const Serial& serial, const StockItem& item, Sample& sample) {
    static constexpr std::array<const char*, 12> states = {"9", "9", "9", "9", "9", "0",
                                                           "0", "0", "0", "2", "5", "D"};
    const std::string state = sample.random.pick(states);
    const Day received = sample.today - days(sample.random.between(60, 900));
    const bool sold = state == "9" || state == "2";
    serials_.add({serial.company, serial.branch, item.stockCode, item.linkCode, serial.serialNo,
                  state, dateText(received), 365, "", sold ? "Cash sale" : "",
                  sold ? dateText(received + days(30)) : "", sold ? 730 : 0});
}

void StockScripts::writeTo(std::ostream& out) const {
    for (const auto* script : {&departments_, &masters_, &balances_, &prices_, &barcodes_,
                               &suppliers_, &kits_, &serials_}) {
        script->writeTo(out);
    }
}

} // namespace velcro::demo
