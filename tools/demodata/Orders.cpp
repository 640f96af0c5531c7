// Six hundred repair orders of four branches, with all that hangs below them.
#include "InsertScript.h"
#include "Picture.h"
#include "Sample.h"
#include "Workshop.h"

#include <algorithm>
#include <array>
#include <set>

namespace velcro::demo {

const std::vector<BranchPlan>& branchPlans() {
    static const std::vector<BranchPlan> plans = {{"01", "100", "100", "100", 300, 100000, 500000},
                                                  {"01", "101", "100", "100", 150, 200000, 600000},
                                                  {"01", "102", "102", "102", 110, 300000, 700000},
                                                  {"02", "201", "201", "201", 40, 400000, 800000}};
    return plans;
}

namespace {

using std::chrono::days;

constexpr std::array<const char*, 10> receiveMethods = {
    "WALKIN",      "WALKIN",  "WALKIN",   "WALKIN",     "COURIER",
    "APPOINTMENT", "DROPOFF", "WARRANTY", "THIRDPARTY", "ONSITE"};
constexpr std::array<const char*, 6> references = {
    "", "", "SMS WHEN READY", "INSURANCE CLAIM", "REPEAT REPAIR", "CUSTOMER WAITS"};
constexpr std::array<const char*, 5> itemNotes = {
    "", "", "HANDLE WITH CARE", "CUSTOMER HAS A SECOND ONE OF THESE",
    "DOES NOT WANT TO PAY MORE THAN HALF OF THE PRICE OF A NEW ONE, PLEASE CALL BEFORE ANY WORK"};
constexpr int daysOfHistory = 540;

class OrderWriter
{
public:
    explicit OrderWriter(Sample& sample)
        : sample_(sample)
        , random_(sample.random) {}

    void writeBranch(const BranchPlan& plan) {
        plan_ = &plan;
        quotation_ = plan.firstQuotation;
        process_ = 0;
        collectMasters();
        for (int i = 1; i <= plan.orders; ++i) {
            number_ = std::to_string(plan.firstOrder + i);
            taken_ = sample_.today - days(daysOfHistory * (plan.orders - i) / plan.orders);
            addOrder();
        }
    }

    void writeTo(std::ostream& out) const {
        for (const auto* script : {&orders_, &items_, &intakes_, &faults_, &steps_, &quotes_,
                                   &lines_, &audit_, &images_}) {
            script->writeTo(out);
        }
    }

private:
    void collectMasters() {
        const auto here = [&](const auto& from, const char* branch, auto& into, auto&& wanted) {
            into.clear();
            for (const auto& one : from) {
                if (one.company == plan_->company && one.branch == branch && wanted(one)) {
                    into.push_back(&one);
                }
            }
        };
        const auto any = [](const auto&) { return true; };
        here(sample_.debtors, plan_->debtorBranch, debtors_, any);
        here(sample_.serials, plan_->stockBranch, serials_, any);
        here(sample_.stock, plan_->stockBranch, stock_, [](const StockItem& item) {
            return item.active && (item.stockType == "N" || item.stockType == "X");
        });
    }

    void addOrder() {
        const Debtor& debtor = *random_.pick(debtors_);
        const int items =
            random_.percent(4) ? 0 : 1 + random_.below(10) / 6 + random_.below(12) / 11;
        const auto date = dateText(taken_);
        time_ = random_.between(8 * 60, 16 * 60 + 30);
        orders_.add({plan_->company,
                     plan_->branch,
                     number_,
                     date,
                     debtor.account,
                     debtor.name,
                     debtor.address1,
                     debtor.address2,
                     debtor.address3,
                     "",
                     debtor.postCode,
                     debtor.telephone,
                     debtor.telephone2,
                     debtor.cellphone,
                     debtor.contact,
                     debtor.mail,
                     random_.pick(references),
                     date,
                     random_.pick(receiveMethods),
                     items,
                     "0",
                     date,
                     clock(),
                     "COUNTER1",
                     "SEAT01"});
        for (item_ = 1; item_ <= items; ++item_) {
            addItem();
        }
        if (items > 0) {
            addSteps("0");
        }
    }

    std::string clock() { return timeText(time_ / 60, time_ % 60, random_.below(60)); }

    void addItem() {
        const Serial& serial = *random_.pick(serials_);
        const auto itemNo = std::to_string(item_);
        const auto date = dateText(taken_);
        const std::string notes = random_.pick(itemNotes);
        items_.add({plan_->company, plan_->branch, number_, itemNo, serial.model, serial.serialNo,
                    random_.percent(30) ? "Y" : "N", notes});
        addCodes(intakes_, intakeCodes, itemNo, random_.below(5));
        addCodes(faults_, faultCodes, itemNo, random_.between(1, 3));
        audit_.add({plan_->company, plan_->branch, number_, itemNo, date, clock(), "", "",
                    "Order Item Added"});
        if (random_.percent(35)) {
            addSteps(itemNo);
        }
        addQuotation(itemNo, date, notes);
        if (number_ == "100300" || number_ == "100299") {
            addPictures();
        }
    }

    template <typename Codes>
    void addCodes(InsertScript& script, const Codes& codes, const std::string& itemNo, int count) {
        std::set<std::string> used;
        for (int i = 0; i < count; ++i) {
            const auto& code = random_.pick(codes);
            if (used.insert(code.code).second) {
                script.add({plan_->company, plan_->branch, number_, itemNo, code.code, code.notes});
            }
        }
    }

    /// The work so far, a step a day. Steps of the order as a whole stand under item 0, which is
    /// where the list of processes looks.
    void addSteps(const std::string& itemNo) {
        const auto age = (sample_.today - taken_).count();
        const auto done = std::min<long>(age, random_.below(static_cast<int>(processCodes.size())));
        for (long step = 0; step <= done; ++step) {
            const auto& technician = random_.pick(technicians);
            const auto& code = processCodes[static_cast<std::size_t>(step)];
            steps_.add({plan_->company, plan_->branch, number_, itemNo,
                        dateText(taken_ + days(step)), clock(), technician.code, code.code,
                        ++process_, step == 1 ? "FAULT CONFIRMED" : ""});
        }
    }

    void addQuotation(const std::string& itemNo, const std::string& date,
                      const std::string& notes) {
        const bool estimated = random_.percent(60);
        const Money deposit{estimated && random_.percent(25) ? random_.between(5, 40) * 1000 : 0};
        const Money paid{random_.percent(60) ? deposit.cents : 0};
        quotes_.add({plan_->company, plan_->branch, number_, itemNo, date,
                     estimated ? random_.pick(technicians).code : "", "0", deposit, paid,
                     std::to_string(++quotation_), notes});
        if (!estimated) {
            return;
        }
        std::set<const StockItem*> used;
        for (int i = random_.between(1, 4); i > 0; --i) {
            const StockItem* item = random_.pick(stock_);
            if (used.insert(item).second) {
                addLine(itemNo, *item);
            }
        }
    }

    void addLine(const std::string& itemNo, const StockItem& item) {
        const int quantity = random_.percent(80) ? 1 : random_.between(2, 5);
        const auto incl = withVat(item.priceCents);
        const auto costIncl = withVat(item.costCents);
        const Money total{item.priceCents * quantity};
        const Money totalIncl{incl * quantity};
        const Money cost{item.costCents * quantity};
        lines_.add({plan_->company,
                    plan_->branch,
                    number_,
                    itemNo,
                    item.stockCode,
                    item.linkCode,
                    item.description,
                    quantity,
                    Money{item.priceCents},
                    Money{incl},
                    Money{totalIncl.cents - total.cents},
                    total,
                    totalIncl,
                    "1",
                    15,
                    Money{item.costCents},
                    Money{costIncl},
                    cost,
                    Money{costIncl * quantity},
                    Money{total.cents - cost.cents},
                    ""});
    }

    void addPictures() {
        for (int picture = 1; picture <= 3; ++picture) {
            images_.add({plan_->company, plan_->branch, number_, item_, 0, picture,
                         Literal::binary(articlePicture(item_ * 3 + picture))});
        }
    }

    Sample& sample_;
    Random& random_;
    const BranchPlan* plan_ = nullptr;
    std::vector<const Debtor*> debtors_;
    std::vector<const Serial*> serials_;
    std::vector<const StockItem*> stock_;
    std::string number_;
    Day taken_;
    int item_ = 0, time_ = 0, quotation_ = 0, process_ = 0;

    InsertScript orders_{"CRORepMst",
                         {"CO",       "Branch",     "CRONo",       "TranDate",    "Account",
                          "Name",     "Address1",   "Address2",    "Address3",    "Address4",
                          "PostCode", "Telephone1", "Telephone2",  "Cellphone",   "Contact",
                          "EMail",    "Reference",  "ReceiveDate", "ReceiveMthd", "ReceiveItems",
                          "Status",   "DTODate",    "DTOTime",     "DTOUser",     "DTOMacID"}};
    InsertScript items_{
        "CRORepItems",
        {"CO", "Branch", "CRONo", "ItemNo", "ModelNo", "SerialNo", "InWarranty", "Notes"}};
    InsertScript intakes_{"CRORepItmIntake",
                          {"CO", "Branch", "CRONo", "ItemNo", "IntakeCode", "Notes"}};
    InsertScript faults_{"CRORepItmFaults",
                         {"CO", "Branch", "CRONo", "ItemNo", "FaultCode", "Notes"}};
    InsertScript steps_{"CRORepItmProcess",
                        {"CO", "Branch", "CRONo", "ItemNo", "TranDate", "TranTime", "TechCode",
                         "ProcessCode", "ProcessID", "Notes"}};
    InsertScript quotes_{"CRORepItmQuoteHdr",
                         {"CO", "Branch", "CRONo", "ItemNo", "TranDate", "TechCode", "Status",
                          "DepositRequired", "DepositPaid", "OrderNo", "Notes"}};
    InsertScript lines_{"CRORepItmQuoteDet",
                        {"CO",       "Branch",        "CRONo",         "ItemNo",        "StockCode",
                         "LinkCode", "Description1",  "Quantity",      "PriceExcl",     "PriceIncl",
                         "LineVAT",  "LineTotalExcl", "LineTotalIncl", "VATCode",       "VATRate",
                         "CostExcl", "CostIncl",      "TotalCostExcl", "TotalCostIncl", "Profit",
                         "Notes"}};
    InsertScript audit_{"CRORepItmAudit",
                        {"CO", "Branch", "CRONo", "ItemNo", "TranDate", "TranTime", "ProcessCode",
                         "TechCode", "Notes"}};
    InsertScript images_{"CRORepItmImages",
                         {"CO", "Branch", "CRONo", "ItemNo", "ProcessID", "ImageID", "ImageData"}};
};

} // namespace

void writeOrders(Sample& sample, std::ostream& out) {
    OrderWriter writer(sample);
    for (const auto& plan : branchPlans()) {
        writer.writeBranch(plan);
    }
    writer.writeTo(out);
}

} // namespace velcro::demo
