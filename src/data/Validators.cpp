#include "data/Validators.h"

#include "data/Errors.h"

#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <memory>

namespace {

struct FreeCode
{
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
};
struct FreeMatch
{
    void operator()(pcre2_match_data* match) const { pcre2_match_data_free(match); }
};

PCRE2_SPTR units(const QString& text) {
    return reinterpret_cast<PCRE2_SPTR>(text.utf16());
}

} // namespace

bool matchesPattern(const QString& pattern, const QString& text) {
    int error = 0;
    PCRE2_SIZE place = 0;
    const std::unique_ptr<pcre2_code, FreeCode> code(pcre2_compile(
        units(pattern), PCRE2_SIZE(pattern.size()), PCRE2_UTF, &error, &place, nullptr));
    if (!code) {
        throw VelmaraError(QStringLiteral("Pattern is wrong at %1: %2").arg(place).arg(pattern));
    }
    const std::unique_ptr<pcre2_match_data, FreeMatch> match(
        pcre2_match_data_create_from_pattern(code.get(), nullptr));
    // Text that is no UTF-16 (half a surrogate pair) matches nothing, which is a negative result too.
    return pcre2_match(code.get(), units(text), PCRE2_SIZE(text.size()), 0, PCRE2_NOTEMPTY,
                       match.get(), nullptr) > 0;
}

bool sfg_Validate_ValidateEmailAddy(const QString& xEmailAddress) {
    return matchesPattern(
        QStringLiteral(R"(^[a-zA-Z0-9_.+-]+@[a-zA-Z0-9-]+\.[a-zA-Z0-9-.]*[a-zA-Z0-9]+$)"),
        xEmailAddress);
}

bool sfg_Validate_PhoneNo(const QString& xPhoneNumber) {
    return matchesPattern(
        QStringLiteral(u"^\\(?([0]{1})\\)?([1-9]{2})\\)?[-.●]?([0-9]{3})[-.●]?([0-9]{4})$"),
        xPhoneNumber);
}
