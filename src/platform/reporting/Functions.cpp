#include "platform/reporting/Functions.h"

#include <QHash>

namespace velcro::reporting {

namespace {

struct Registry
{
    QStringList names;
    QHash<QString, Function> functions; // by the name in lower case
};

Registry& registry() {
    static Registry registry;
    return registry;
}

} // namespace

void Parameters::SetParamValue(int index, const QVariant& value) {
    while (values_.size() <= index) {
        values_.append(QVariant());
    }
    values_[index] = value;
}

int Function::argumentCount() const {
    const auto open = signature.indexOf(u'(');
    const auto close = signature.indexOf(u')', open);
    return open < 0 ? 0 : int(QStringView(signature).mid(open, close - open).count(u':'));
}

QVariant Function::call(const QVariantList& arguments) const {
    Parameters parameters(arguments);
    execute(parameters);
    return parameters.GetParamValue(argumentCount());
}

void raRegisterFunction(const QString& name, const Function& function) {
    auto& [names, functions] = registry();
    if (!functions.contains(name.toLower())) {
        names.append(name);
    }
    functions[name.toLower()] = function;
}

const Function* registeredFunction(const QString& name) {
    const auto& functions = registry().functions;
    const auto found = functions.constFind(name.toLower());
    return found == functions.constEnd() ? nullptr : &*found;
}

QStringList registeredFunctions() {
    return registry().names;
}

} // namespace velcro::reporting
