// Two thousand stock items with prices, balances, barcodes, suppliers, kits, parents with their
// linked packs, and the serial numbers of what has been sold or stands in the store.
#include "InsertScript.h"
#include "Names.h"
#include "Sample.h"
#include "StockScripts.h"

#include <array>

namespace velcro::demo {

namespace {

struct StockPlan
{
    const char* company;
    const char* branch;
    int items;
    int serials;
    const char* prefix;
};

constexpr std::array<StockPlan, 3> plans = {
    {{"01", "100", 1600, 1600, "A"}, {"01", "102", 250, 250, "B"}, {"02", "201", 150, 150, "K"}}};

struct Kind
{
    const char* name;
    const char* department;
    int lowCents; // cost without VAT
    int highCents;
};

constexpr std::array<Kind, 24> kinds = {{
    {"Television 43\"", "VISION", 280000, 720000},  {"Soundbar", "SOUND", 90000, 450000},
    {"Headphones", "SOUND", 8000, 260000},          {"Microwave Oven 28L", "HOME", 90000, 240000},
    {"Vacuum Cleaner", "HOME", 70000, 380000},      {"Kettle 1.7L", "HOME", 14000, 60000},
    {"Toaster 4 Slice", "HOME", 18000, 70000},      {"Laptop 15\"", "OFFICE", 480000, 1600000},
    {"Ink Printer", "OFFICE", 80000, 320000},       {"Tablet 10\"", "OFFICE", 180000, 700000},
    {"Cordless Drill 18V", "TOOLS", 90000, 320000}, {"Angle Grinder 115mm", "TOOLS", 50000, 180000},
    {"Circular Saw", "TOOLS", 110000, 390000},      {"Lawn Mower", "GARDEN", 180000, 620000},
    {"Hedge Trimmer", "GARDEN", 90000, 260000},     {"Pressure Washer", "GARDEN", 110000, 480000},
    {"Power Supply 19V", "SPARES", 9000, 52000},    {"Battery Pack 18V", "SPARES", 26000, 140000},
    {"Remote Control", "SPARES", 4500, 26000},      {"Drive Belt", "SPARES", 1200, 9500},
    {"Carbon Brush Pair", "SPARES", 900, 6500},     {"Display Panel", "SPARES", 60000, 380000},
    {"Main Board", "SPARES", 38000, 290000},        {"Door Seal", "SPARES", 7000, 32000},
}};

struct Service
{
    const char* code;
    const char* description;
    int cents;
};

constexpr std::array<Service, 6> services = {{{"LABOUR-HR", "Workshop labour per hour", 42000},
                                              {"ASSESS", "Assessment fee", 25000},
                                              {"CALLOUT", "Call-out within 30 km", 48000},
                                              {"COURIER", "Courier to customer", 12500},
                                              {"CLEAN", "Clean and service", 31000},
                                              {"RUSH", "Same-day repair", 60000}}};

constexpr int childPacks[] = {12, 6, 1};

class StockWriter
{
public:
    StockWriter(Sample& sample, const StockPlan& plan, StockScripts& scripts)
        : sample_(sample)
        , random_(sample.random)
        , plan_(plan)
        , scripts_(scripts) {}

    void write() {
        const std::size_t first = sample_.stock.size();
        for (const auto& service : services) {
            addService(service);
        }
        while (left() > 0) {
            const int number = made_;
            if (number % 80 == 40 && left() >= 4) {
                addFamily();
            } else if (number % 110 == 50) {
                addKit(first);
            } else {
                addSingle();
            }
        }
        addSerials(first);
    }

private:
    int left() const { return plan_.items - made_; }
    std::string nextCode() { return plan_.prefix + std::to_string(10000 + ++codes_); }

    StockRow blank(const std::string& code, const std::string& type) {
        StockRow row;
        row.item.company = plan_.company;
        row.item.branch = plan_.branch;
        row.item.stockCode = code;
        row.item.linkCode = code;
        row.item.stockType = type;
        return row;
    }

    void keep(StockRow& row) {
        row.supplier = "S" + std::to_string(random_.between(101, 118));
        scripts_.add(row, random_, sample_.today);
        sample_.stock.push_back(row.item);
        ++made_;
    }

    void addService(const Service& service) {
        auto row = blank(service.code, "X");
        row.item.description = service.description;
        row.item.costCents = service.cents / 2;
        row.item.priceCents = service.cents;
        row.department = "SERVICE";
        keep(row);
    }

    /// A product, not yet kept: kind, maker and model, cost and price.
    StockRow product(const std::string& type) {
        auto row = blank(nextCode(), type);
        const auto& kind = random_.pick(kinds);
        const std::string maker = brandName(random_);
        row.model =
            upperCase(maker.substr(0, 2)) + "-" + std::to_string(random_.between(100, 9899));
        row.item.description = maker + " " + kind.name + " " + row.model;
        row.item.costCents = random_.between(kind.lowCents, kind.highCents);
        row.item.priceCents = row.item.costCents * (135 + random_.below(25)) / 100 / 10 * 10;
        row.department = kind.department;
        row.supplierCode = row.model + "/" + std::to_string(random_.between(10, 99));
        row.barcode =
            "600" + std::to_string(1000000000 + std::stoi(plan_.branch) * 100000 + codes_);
        return row;
    }

    void addSingle() {
        auto row = product("N");
        const int kind = random_.below(200);
        if (kind < 3) {
            row.item.stockType = kind == 0 ? "E" : kind == 1 ? "H" : "M";
        } else if (kind < 7) {
            row.item.active = false;
            row.status = kind < 5 ? "N" : "X";
        } else if (kind < 9) {
            row.item.description +=
                ", stainless steel, with wall bracket, two-year warranty and printed manual";
        } else if (kind < 11) {
            row.hasPrices = false;
        }
        row.serialTrack = row.item.stockType == "N" && row.department != "SPARES";
        keep(row);
    }

    void addFamily() {
        auto parent = product("P");
        parent.barcode.clear();
        const auto base = parent.item;
        keep(parent);
        for (const int pack : childPacks) {
            auto child = blank(base.stockCode, "C");
            child.item.linkCode = base.stockCode + "-" + std::to_string(pack);
            child.item.description = base.description + " x" + std::to_string(pack);
            child.item.costCents = base.costCents * pack;
            child.item.priceCents = base.priceCents * pack;
            child.department = parent.department;
            child.units = pack;
            child.barcode =
                "6" + std::to_string(std::stoi(plan_.branch) * 1000000 + codes_ * 100 + pack);
            child.supplierCode = parent.supplierCode + "-" + std::to_string(pack);
            keep(child);
        }
    }

    /// A starter set of two items that are there already.
    void addKit(std::size_t first) {
        auto kit = product("K");
        kit.item.description = "Starter set " + kit.item.description;
        kit.kitFunction = random_.percent(30) ? "3" : "1";
        for (int i = 0; i < 2; ++i) {
            const int made = static_cast<int>(sample_.stock.size() - first);
            const auto& part = sample_.stock[first + static_cast<std::size_t>(random_.below(made))];
            scripts_.addKitPart(kit.item, part, i + 1);
        }
        keep(kit);
    }

    void addSerials(std::size_t first) {
        const auto last = sample_.stock.size();
        int serial = 0;
        for (std::size_t at = first; serial < plan_.serials; at = at + 1 < last ? at + 1 : first) {
            const auto& item = sample_.stock[at];
            if (item.stockType != "N" || item.costCents < 60000) {
                continue;
            }
            const auto model = item.description.substr(0, item.description.find(','));
            Serial made{item.company, item.branch, "", model.substr(model.rfind(' ') + 1)};
            made.serialNo = "SN" + std::string(plan_.branch) + std::to_string(100000 + ++serial);
            scripts_.addSerial(made, item, sample_);
            sample_.serials.push_back(made);
        }
    }

    Sample& sample_;
    Random& random_;
    const StockPlan& plan_;
    StockScripts& scripts_;
    int made_ = 0;
    int codes_ = 0;
};

} // namespace

void writeStock(Sample& sample, std::ostream& out) {
    StockScripts scripts;
    for (const auto& plan : plans) {
        StockWriter(sample, plan, scripts).write();
    }
    scripts.writeTo(out);
}

} // namespace velcro::demo
