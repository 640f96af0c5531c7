#include "messaging/ServiceAnswers.h"

#include "data/Errors.h"

#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::json;

/// Discarded when the text is no JSON.
Json parse(const std::string& text) {
    return Json::parse(text, nullptr, false);
}

/// Null when there is none.
const Json* memberOf(const Json& object, const std::string& name) {
    if (!object.is_object()) {
        return nullptr;
    }
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

double numberOrZero(const std::string& text) {
    try {
        return StrToFloat(QString::fromStdString(text));
    } catch (const ConversionError&) {
        return 0;
    }
}

} // namespace

bool isObject(const std::string& answer) {
    return parse(answer).is_object();
}

bool TryGetValue(const std::string& xObj, const QString& xPath, const QString& xDefault,
                 QString& value) {
    const Json object = parse(xObj);
    const Json* member = memberOf(object, xPath.toStdString());
    const bool found = member != nullptr && member->is_string();
    value = found ? QString::fromStdString(member->get_ref<const std::string&>()) : xDefault;
    return found;
}

bool TryGetValue(const std::string& xObj, const QString& xPath, bool xDefault, bool& value) {
    const Json object = parse(xObj);
    const Json* member = memberOf(object, xPath.toStdString());
    const bool found = member != nullptr && member->is_boolean();
    value = found ? member->get<bool>() : xDefault;
    return found;
}

bool readBalance(const std::string& answer, double& balance) {
    const Json object = parse(answer);
    const Json* member = memberOf(object, "balance");
    balance = 0;
    if (member != nullptr && member->is_number()) {
        balance = member->get<double>();
    } else if (member != nullptr && member->is_string()) {
        balance = numberOrZero(member->get_ref<const std::string&>());
    }
    return member != nullptr;
}
