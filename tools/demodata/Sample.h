// What the sample data is made of, and the steps that make it. Later steps use what earlier ones
// made: orders need debtors and serial numbers.
#pragma once

#include "Dates.h"
#include "Random.h"

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

namespace velcro::demo {

/// A branch that books orders in, and the branches whose masters it uses.
struct BranchPlan
{
    const char* company;
    const char* branch;
    const char* debtorBranch;
    const char* stockBranch;
    int orders;
    int firstOrder;     // the order numbers of a branch are this plus 1 upward
    int firstQuotation; // likewise
};

struct Debtor
{
    std::string company, branch, account, name, contact;
    std::string address1, address2, address3, postCode;
    std::string cellphone, telephone, telephone2, mail;
};

struct StockItem
{
    std::string company, branch, stockCode, linkCode, stockType, description;
    std::int64_t costCents = 0;  // without VAT
    std::int64_t priceCents = 0; // retail, without VAT
    bool active = true;
};

struct Serial
{
    std::string company, branch, serialNo, model;
};

struct Sample
{
    explicit Sample(Day when)
        : today(when) {}

    Day today;
    Random random{20240229};
    std::vector<Debtor> debtors;
    std::vector<StockItem> stock;
    std::vector<Serial> serials;
};

/// The branches that have orders, in the order they are listed at log-in.
const std::vector<BranchPlan>& branchPlans();

/// A price with VAT, rounded to the cent.
std::int64_t withVat(std::int64_t centsExclusive);

/// Accounting periods, day-end log and employees, all around today.
void writeCalendar(Sample& sample, std::ostream& out);
void writeDebtors(Sample& sample, std::ostream& out);
void writeWorkshopCodes(std::ostream& out);
void writeStock(Sample& sample, std::ostream& out);
void writeOrders(Sample& sample, std::ostream& out);

} // namespace velcro::demo
