// Three thousand customers with balances, and the contacts of the firms among them.
#include "InsertScript.h"
#include "Names.h"
#include "Sample.h"

#include <array>

namespace velcro::demo {

namespace {

struct DebtorPlan
{
    const char* company;
    const char* branch;
    int count;
    const char* prefix;
};

constexpr std::array<DebtorPlan, 3> plans = {
    {{"01", "100", 2400, "C"}, {"01", "102", 350, "N"}, {"02", "201", 250, "K"}}};

Debtor makeDebtor(Random& random, const DebtorPlan& plan, int serial) {
    Debtor debtor;
    debtor.company = plan.company;
    debtor.branch = plan.branch;
    debtor.account = plan.prefix + std::to_string(100000 + serial).substr(1);
    const bool firm = random.percent(22);
    debtor.contact = firm ? personName(random) : "";
    debtor.name = firm ? firmName(random) : personName(random);
    debtor.address1 = streetAddress(random);
    debtor.address2 = townName(random);
    debtor.address3 = "Velden";
    debtor.postCode = std::to_string(random.between(7001, 7299));
    debtor.cellphone = phoneNumber(random, serial);
    debtor.telephone = random.percent(45) ? phoneNumber(random, serial + 3000) : "";
    debtor.telephone2 = firm || random.percent(15) ? phoneNumber(random, serial + 6000) : "";
    debtor.mail = random.percent(70) ? mailAddress(debtor.name, serial) : "";
    return debtor;
}

/// A counter knows these three: the first of the list, one whose name has an apostrophe, one that
/// is as long as the column.
void setKnownNames(std::vector<Debtor>& debtors) {
    debtors[0].name = "Aalderwyn Household Repairs (Pty) Ltd";
    debtors[1].name = "O'Brackenfell Guest House & Wedding Venue";
    debtors[2].name = "Hohenstrand-Vandermoor Agricultural Co-operation";
}

class DebtorScripts
{
public:
    void add(Sample& sample, const Debtor& debtor, int serial) {
        auto& random = sample.random;
        const bool firm = !debtor.contact.empty();
        const Money balance{random.percent(40) ? random.between(100, 900000) : 0};
        masters_.add({debtor.company,
                      debtor.branch,
                      debtor.account,
                      "D",
                      debtor.name,
                      debtor.address1,
                      debtor.address2,
                      debtor.address3,
                      debtor.postCode,
                      debtor.telephone,
                      debtor.telephone2,
                      debtor.cellphone,
                      debtor.mail,
                      std::to_string(6500000000 + serial * 37),
                      debtor.contact,
                      firm ? "AC" : "CA",
                      random.percent(96) ? "A" : "H",
                      Money{firm ? 2500000 : 0},
                      balance,
                      firm ? "2" : "1",
                      debtor.branch,
                      dateText(sample.today),
                      "08:00:00",
                      "MANAGER",
                      "SERVER"});
        if (balance.cents > 0) {
            addBalance(sample, debtor, balance);
        }
        if (firm) {
            addContacts(random, debtor, serial);
        }
    }

    void writeTo(std::ostream& out) const {
        masters_.writeTo(out);
        balances_.writeTo(out);
        contacts_.writeTo(out);
    }

private:
    void addBalance(Sample& sample, const Debtor& debtor, Money balance) {
        const std::chrono::year_month_day date(sample.today);
        const int period = static_cast<int>(date.year()) * 100 +
                           static_cast<int>(static_cast<unsigned>(date.month()));
        const Money current{balance.cents / 2};
        const Money thirty{balance.cents / 3};
        const Money sixty{balance.cents - current.cents - thirty.cents};
        balances_.add(
            {debtor.company, debtor.branch, "D", debtor.account, period, current, thirty, sixty});
    }

    void addContacts(Random& random, const Debtor& debtor, int serial) {
        const int count = random.between(1, 3);
        for (int i = 1; i <= count; ++i) {
            contacts_.add({debtor.company, debtor.branch, "D", debtor.account,
                           random.percent(50) ? "MS" : "MR", cutTo(personName(random), 50),
                           surname(random), phoneNumber(random, serial + i * 2000), "A", i,
                           i == 1 ? "Y" : "N", i == 1 ? "Y" : "N"});
        }
    }

    InsertScript masters_{"DEBMaster",
                          {"CO",          "Branch",      "Account",     "DebtorType",  "Name",
                           "BusAddress1", "BusAddress2", "BusAddress3", "BusPostCode", "Telephone",
                           "Telephone2",  "CellPhone",   "Email",       "IDNo",        "Contact",
                           "AccountType", "Status",      "CreditLimit", "Balance",     "PriceCat",
                           "DefBranch",   "DTODate",     "DTOTime",     "DTOUser",     "DTOMacID"}};
    InsertScript balances_{
        "DEBBalance", {"CO", "Branch", "DebtorType", "Account", "AP", "DCurr", "D030", "D060"}};
    InsertScript contacts_{"DEBContacts",
                           {"CO", "Branch", "DebtorType", "Account", "Title", "Name", "Surname",
                            "CellPhone", "Status", "PrtySeq", "SMSTxans", "SMSOTP"}};
};

} // namespace

void writeDebtors(Sample& sample, std::ostream& out) {
    for (const auto& plan : plans) {
        for (int i = 1; i <= plan.count; ++i) {
            const int serial = static_cast<int>(sample.debtors.size()) + 1;
            sample.debtors.push_back(makeDebtor(sample.random, plan, serial));
        }
    }
    setKnownNames(sample.debtors);
    DebtorScripts scripts;
    int serial = 0;
    for (auto& debtor : sample.debtors) {
        debtor.name = cutTo(debtor.name, 50);
        debtor.contact = cutTo(debtor.contact, 30);
        scripts.add(sample, debtor, ++serial);
    }
    scripts.writeTo(out);
}

} // namespace velcro::demo
