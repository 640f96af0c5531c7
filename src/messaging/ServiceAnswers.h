// The answers of the text message service, read from their JSON.
#pragma once

#include <QString>

#include <string>

/// A string member of an answer that is an object. False, and the default, when the answer is no
/// object, or the member is absent, null or no string.
bool TryGetValue(const std::string& xObj, const QString& xPath, const QString& xDefault,
                 QString& value);
/// The same for a boolean.
bool TryGetValue(const std::string& xObj, const QString& xPath, bool xDefault, bool& value);

/// Whether an answer is a JSON object.
bool isObject(const std::string& answer);

/// The member "balance": a number, or text that is one; 0 for anything else. False when the object
/// has none.
bool readBalance(const std::string& answer, double& balance);
