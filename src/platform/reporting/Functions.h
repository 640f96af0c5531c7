// The functions of the program that the script of a report template can call by their names, as the
// report designer lists them.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

#include <functional>
#include <optional>

namespace velcro::reporting {

/// The values of one call by their index: the arguments in their order, the result after the last.
class Parameters
{
public:
    explicit Parameters(QVariantList arguments)
        : values_(std::move(arguments)) {}

    /// An invalid value where there is none.
    QVariant GetParamValue(int index) const { return values_.value(index); }
    void SetParamValue(int index, const QVariant& value);

private:
    QVariantList values_;
};

struct Function
{
    QString className; // of the class that the designer knows it by
    QString category;  // under which the designer lists it
    QString signature; // what the designer shows
    std::function<void(Parameters& parameters)> execute;
    std::optional<bool> overridesHasParams = {};

    /// Whether the designer asks for arguments; it does where the function does not say.
    bool hasParams() const { return overridesHasParams.value_or(true); }
    /// As the signature declares them; the index of the result.
    int argumentCount() const;
    /// The answer; invalid where the function sets none. Throws what execute throws.
    QVariant call(const QVariantList& arguments) const;
};

/// A name holds one function: a second one replaces the first, and keeps its place.
void raRegisterFunction(const QString& name, const Function& function);

/// Null when the name is not registered. As in the scripts, case does not count.
const Function* registeredFunction(const QString& name);

/// In the order of their first registration.
QStringList registeredFunctions();

} // namespace velcro::reporting
