#include "screens/DetailFacts.h"

#include "data/Validators.h"

#include <algorithm>

QString DetailField::column() const {
    if (options.column != nullptr) {
        return QString::fromLatin1(options.column);
    }
    const QString control = QString::fromLatin1(name);
    const auto prefix =
        std::find_if(control.begin(), control.end(), [](QChar letter) { return letter.isUpper(); });
    return control.mid(prefix - control.begin());
}

namespace field {

using Kind = DetailField::Kind;

DetailField page(const char* name, const QString& caption) {
    return {Kind::Page, name, caption};
}

DetailField note(const QString& text) {
    return {Kind::Note, nullptr, text};
}

DetailField group(const QString& title) {
    return {Kind::Group, nullptr, title};
}

DetailField groupBeside(const QString& title) {
    return {Kind::GroupBeside, nullptr, title};
}

DetailField text(const char* name, const QString& label, FieldOptions options) {
    return {Kind::Text, name, label, std::move(options)};
}

DetailField date(const char* name, const QString& label, FieldOptions options) {
    return {Kind::Date, name, label, std::move(options)};
}

DetailField amount(const char* name, const QString& label, FieldOptions options) {
    return {Kind::Amount, name, label, std::move(options)};
}

DetailField memo(const char* name, const QString& label, FieldOptions options) {
    return {Kind::Memo, name, label, std::move(options)};
}

DetailField combo(const char* name, const QString& label, const QStringList& entries,
                  FieldOptions options) {
    return {Kind::Combo, name, label, std::move(options), entries};
}

DetailField codes(const char* name, const QString& label, const QString& xTable,
                  const QString& xALL, FieldOptions options) {
    return {Kind::Codes, name, label, std::move(options), {xTable, xALL}};
}

DetailField toggle(const char* name, const QString& label, const QString& onCaption,
                   const QString& offCaption, FieldOptions options) {
    return {Kind::Toggle, name, label, std::move(options), {onCaption, offCaption}};
}

DetailField other(const char* name, const QString& accessibleName, std::function<QWidget*()> make) {
    return {Kind::Other, name, accessibleName, {}, {}, std::move(make)};
}

} // namespace field

bool isFilled(const QString& value) {
    return !value.isEmpty();
}

bool isNotBlank(const QString& value) {
    return !value.trimmed().isEmpty();
}

bool isNotZero(const QString& value) {
    return value != u'0';
}

bool isPhone(const QString& value) {
    return sfg_Validate_PhoneNo(value);
}

bool isPhoneOrEmpty(const QString& value) {
    return value.isEmpty() || isPhone(value);
}

bool isEMailOrEmpty(const QString& value) {
    return value.isEmpty() || sfg_Validate_ValidateEmailAddy(value);
}

std::function<QString()> always(const QString& value) {
    return [value] { return value; };
}
