#include "reports/FunctionTable.h"

#include "reports/PrintFormat.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

void registerFunctions(const QString& category, std::span<const FunctionRow> rows) {
    for (const auto& [name, className, signature, execute, hasParams] : rows) {
        velcro::reporting::raRegisterFunction(QLatin1StringView(name),
                                              {QLatin1StringView(className), category,
                                               QLatin1StringView(signature), execute, hasParams});
    }
}

std::function<void(Parameters&)> answerOf(std::function<QVariant()> routine) {
    return [routine = std::move(routine)](Parameters& parameters) {
        parameters.SetParamValue(0, routine());
    };
}

std::function<void(Parameters&)> answer(const QString& value) {
    return answer(value, value);
}

std::function<void(Parameters&)> answer(const QString& value, const QString& printed) {
    return answerOf([&value, &printed] { return isPrintFormatOwn() ? printed : value; });
}

QString joinedLines(std::initializer_list<QString> lines) {
    return QStringList(lines).join("\r\n"_L1);
}

bool isPrintFormatOwn() {
    return gPrtFmt == "W"_L1;
}
