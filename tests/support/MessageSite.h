// How a site sends its messages: the parameters of both channels.
#pragma once

#include "support/Desk.h"

#include <string>
#include <vector>

namespace velcro::test {

struct SiteParameter
{
    int number; // of the group "SYS"
    std::string value;
};

/// Kept by branch 100 of company 01, from the next log-in or par_LoadParameters on.
inline void setSiteParameters(const std::vector<SiteParameter>& parameters) {
    for (const auto& [number, value] : parameters) {
        Desk::onSuite(QStringLiteral("DELETE FROM SYSParameter WHERE CO = '01' AND Branch = '100' "
                                     "AND ModCode = 'SYS' AND ParamNo = %1")
                          .arg(number));
        Desk::onSuite(QStringLiteral("INSERT INTO SYSParameter ([CO], [Branch], [ModCode], "
                                     "[UserCode], [ParamNo], [ParamName], [ParamValue], "
                                     "[ParamType]) VALUES ('01', '100', 'SYS', '', %1, 'x', "
                                     "'%2', 'M')")
                          .arg(number)
                          .arg(QString::fromStdString(value).replace('\'', "''")));
    }
}

/// The gateway at an address, or MyMobileAPI at another, whichever is not blank.
inline void pointMessagesAt(const std::string& gateway, const std::string& service) {
    setSiteParameters({{99, "Brindavel"},
                       {104, gateway.empty() ? "" : gateway + "send?"},
                       {105, "gate"},
                       {106, "pw"},
                       {238, service.empty() ? "" : "C"},
                       {239, service},
                       {240, "mobile"},
                       {241, "secret"}});
}

} // namespace velcro::test
