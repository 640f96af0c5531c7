// Addresses and header lines as they go over the wire, and a status line as it comes.
#pragma once

#include "platform/http/Client.h"

#include <string>
#include <string_view>
#include <vector>

namespace velcro::http {

/// With %XX for what no request line can hold. Throws HttpError when it is no http(s) address.
std::string addressOnTheWire(std::string_view address);

/// "Name: value" each, behind lines that keep libcurl from adding headers of its own. Throws
/// HttpError for one that would break its line.
std::vector<std::string> headerLines(const std::vector<Header>& headers);

/// What stands behind the number of a status line.
std::string reasonOf(std::string_view statusLine);

} // namespace velcro::http
