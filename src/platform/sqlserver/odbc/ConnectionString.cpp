#include "platform/sqlserver/odbc/ConnectionString.h"

namespace velcro::sql::odbc {

namespace {

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    const auto last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? "" : text.substr(first, last - first + 1);
}

/// The value in braces where it needs them. FreeTDS takes what stands before "};" as it is, others
/// want each closing brace twice.
std::string quoted(std::string_view value, DriverKind kind) {
    const bool plain = value.find_first_of("[]{}(),;?*=!@'\" ") == std::string_view::npos;
    if (plain) {
        return std::string(value);
    }
    std::string result = "{";
    for (const char c : value) {
        result.append(c == '}' && kind != DriverKind::FreeTds ? 2 : 1, c);
    }
    return result + "}";
}

class Attributes
{
public:
    Attributes(std::string text, DriverKind kind)
        : text_(std::move(text))
        , kind_(kind) {}

    Attributes& add(std::string_view key, std::string_view value) {
        if (!text_.empty() && !text_.ends_with(';')) {
            text_ += ';';
        }
        text_.append(key).append("=").append(quoted(value, kind_)).append(";");
        return *this;
    }
    Attributes& addIfAny(std::string_view key, std::string_view value) {
        return value.empty() ? *this : add(key, value);
    }
    std::string take() { return std::move(text_); }

private:
    std::string text_;
    DriverKind kind_;
};

void addServer(Attributes& attributes, std::string_view server, DriverKind kind) {
    const ServerName name = parseServer(server);
    const std::string host = name.instance.empty() ? name.host : name.host + "\\" + name.instance;
    if (kind == DriverKind::FreeTds) {
        attributes.add("Server", host);
        // With an instance and no port the server's browser service is asked for it.
        attributes.addIfAny("Port",
                            name.instance.empty() && name.port.empty() ? "1433" : name.port);
    } else {
        attributes.add("Server", name.port.empty() ? host : host + "," + name.port);
    }
}

} // namespace

ServerName parseServer(std::string_view server) {
    server = trimmed(server);
    if (server.starts_with("tcp:")) {
        server.remove_prefix(4);
    }
    ServerName result;
    if (const auto comma = server.find(','); comma != std::string_view::npos) {
        result.port = trimmed(server.substr(comma + 1));
        server = server.substr(0, comma);
    }
    if (const auto slash = server.find('\\'); slash != std::string_view::npos) {
        result.instance = trimmed(server.substr(slash + 1));
        server = server.substr(0, slash);
    }
    result.host = trimmed(server);
    if (result.host == "." || result.host == "(local)") {
        result.host = "localhost";
    }
    return result;
}

std::string connectionString(const ConnectionSettings& settings, const Driver& driver) {
    const bool isExplicit = settings.server.starts_with(explicitPrefix);
    Attributes attributes(isExplicit ? settings.server.substr(explicitPrefix.size()) : "",
                          driver.kind);
    if (!isExplicit) {
        attributes.add("Driver", driver.name);
        addServer(attributes, settings.server, driver.kind);
    }
    attributes.addIfAny("Database", settings.database);
    attributes.addIfAny("UID", settings.user);
    attributes.addIfAny("PWD", settings.password);
    if (isExplicit) {
        return attributes.take();
    }
    attributes.add("APP", "velCRO");
    if (driver.kind == DriverKind::FreeTds) {
        attributes.add("TDS_Version", "7.4").add("ClientCharset", "UTF-8");
    } else {
        attributes.add("Encrypt", "no");
        if (settings.user.empty()) {
            attributes.add("Trusted_Connection", "yes");
        }
    }
    if (settings.readOnlyIntent) {
        attributes.add("ApplicationIntent", "ReadOnly");
    }
    return attributes.take();
}

} // namespace velcro::sql::odbc
