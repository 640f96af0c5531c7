// A sample seat: a folder with its three databases and the machine configuration file that names them.
#pragma once

#include "Dates.h"

#include <QString>

#include <ostream>

namespace velcro::sample {

struct Request
{
    QString seat;      // the folder
    QString data;      // hand-written files: demo/data
    QString structure; // the scripts that a site with a server runs: deploy/sqlserver
    demo::Day today;   // periods, birthdays and orders are set around it
    bool fresh = false;
};

/// Makes the seat; one that has its databases is left as it is, since somebody may have worked in
/// them, unless it is to be made fresh. All is built in a folder inside and moved to its place when
/// it is whole, so a failure leaves the seat as it was. Only its owner can look into what is made.
/// Throws std::runtime_error or filesystem_error.
void makeSeat(const Request& request, std::ostream& progress);

} // namespace velcro::sample
