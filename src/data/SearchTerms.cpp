#include "data/SearchTerms.h"

#include "platform/sqlserver/SqlConnection.h"

namespace {

constexpr int unclosedQuotation = 105;
constexpr int syntaxLevel = 15;

[[noreturn]] void refuseText(const QString& text) {
    throw velcro::sql::SqlError(velcro::sql::SqlErrorKind::Statement, "42000",
                                {.number = unclosedQuotation,
                                 .level = syntaxLevel,
                                 .text = "Unclosed quotation mark after the character string '" +
                                         text.toStdString() + "'."},
                                {});
}

} // namespace

bool staysInsideLiteral(const QString& text) {
    bool inside = true;
    for (const QChar letter : text) {
        if (letter == QLatin1Char('\'')) {
            inside = !inside;
        } else if (!inside) {
            return false;
        }
    }
    return inside;
}

QString searchTerms(const QStringList& terms, const QString& text) {
    if (!staysInsideLiteral(text)) {
        refuseText(text);
    }
    QString sql;
    for (const auto& term : terms) {
        sql += term + text + QStringLiteral("%'");
    }
    return sql;
}
