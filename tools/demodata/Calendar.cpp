// Accounting periods, the log of day ends, and employees with birthdays: all that hangs on today.
#include "InsertScript.h"
#include "Names.h"
#include "Sample.h"

namespace velcro::demo {

namespace {

using namespace std::chrono;

enum class PeriodState { Closed, Open, Missing };

/// Months are counted from the running one. Company 01 is in order: closed behind, open now and
/// ahead. Company 02 has forgotten to open this month, which the next log-in does. Company 03 has no
/// period for today at all, so nobody can sign in there.
PeriodState stateOf(const std::string& company, int month) {
    if (company == "03" && month >= 0) {
        return PeriodState::Missing;
    }
    if (company == "02") {
        return PeriodState::Closed;
    }
    if (month == -9) {
        return PeriodState::Missing;
    }
    return month >= -1 ? PeriodState::Open : PeriodState::Closed;
}

void addPeriods(InsertScript& periods, const std::string& company, Day today) {
    const year_month_day date(today);
    const year_month thisMonth = date.year() / date.month();
    for (int offset = -14; offset <= 4; ++offset) {
        const auto state = stateOf(company, offset);
        if (state == PeriodState::Missing) {
            continue;
        }
        const year_month month = thisMonth + months(offset);
        const int years = static_cast<int>(month.year());
        const int number = years * 100 + static_cast<int>(static_cast<unsigned>(month.month()));
        const char* open = state == PeriodState::Open ? "Y" : "N";
        periods.add({company, number, dateText(month / 1), dateText(month / last),
                     month.month() == February ? "Y" : "N", "", open, open,
                     month.month() > February ? years + 1 : years});
    }
}

/// Branch 101 has not asked for yesterday's day end: its first log-in of the day does.
void addDayEnds(InsertScript& log, const BranchPlan& plan, Day today) {
    const bool yesterdayMissing = std::string_view(plan.branch) == "101";
    for (int back = 10; back >= (yesterdayMissing ? 2 : 1); --back) {
        const auto run = dateText(today - days(back));
        const auto ended = dateText(today - days(back - 1));
        const auto firstOfMonth = ended.substr(8) == "01";
        log.add({plan.company, plan.branch, run, firstOfMonth ? "Y" : "N", ended, "05:58:11", ended,
                 "06:04:37", ended, "05:58:09", "MANAGER", "SEAT01", "9", ""});
    }
}

std::string birthDate(Day day, int age) {
    const year_month_day date(day);
    const auto then = (date.year() - years(age)) / date.month() / date.day();
    // Born on a leap day: every other year keeps the text, which is all that is compared.
    return then.ok() ? dateText(then) : dateText(day).replace(0, 4, "1988");
}

/// The first two of each branch have their birthday today, the third tomorrow.
void addEmployees(Sample& sample, InsertScript& employees, const BranchPlan& plan) {
    for (int i = 1; i <= 9; ++i) {
        const int ahead = i <= 2 ? 0 : i == 3 ? 1 : 20 * i;
        const auto born = birthDate(sample.today + days(ahead), 22 + 4 * i);
        const int serial = std::stoi(plan.branch) * 10 + i;
        auto identity = born.substr(2, 2) + born.substr(5, 2) + born.substr(8, 2);
        identity += std::to_string(5000000 + serial);
        employees.add({plan.company, plan.branch, "E" + std::to_string(serial),
                       cutTo(personName(sample.random), 50), born, identity,
                       phoneNumber(sample.random, serial),
                       phoneNumber(sample.random, serial + 5000), "A"});
    }
}

} // namespace

void writeCalendar(Sample& sample, std::ostream& out) {
    InsertScript periods("SYSAP", {"CO", "AP", "FromDate", "ToDate", "YearEnd", "YearEndRun",
                                   "APActive", "APOpen", "GLYear"});
    for (const char* company : {"01", "02", "03"}) {
        addPeriods(periods, company, sample.today);
    }
    InsertScript log("SYSEODLog",
                     {"CO", "Branch", "RunDate", "MonthEnd", "StartDate", "StartTime", "EndDate",
                      "EndTime", "DTODate", "DTOTime", "DTOUser", "DTOMacID", "Status", "LogData"});
    InsertScript employees("EMPMaster", {"CO", "Branch", "EmplNo", "EmplName", "BirthDate", "IDNo",
                                         "Telephone", "CellPhone", "Status"});
    for (const auto& plan : branchPlans()) {
        addDayEnds(log, plan, sample.today);
        addEmployees(sample, employees, plan);
    }
    periods.writeTo(out);
    log.writeTo(out);
    employees.writeTo(out);
}

} // namespace velcro::demo
