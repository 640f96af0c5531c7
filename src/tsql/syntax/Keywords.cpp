#include "tsql/syntax/Keywords.h"

#include <algorithm>
#include <array>

namespace velcro::sql::tsql {

namespace {

struct Entry
{
    std::string_view word;
    Keyword keyword;
};

// clang-format off
constexpr Entry entries[] = {
    {"ADD", Keyword::Add}, {"ALL", Keyword::All}, {"ALTER", Keyword::Alter},
    {"AND", Keyword::And}, {"ANY", Keyword::Any}, {"AS", Keyword::As}, {"ASC", Keyword::Asc},
    {"AUTHORIZATION", Keyword::Reserved}, {"BACKUP", Keyword::Reserved},
    {"BEGIN", Keyword::Begin}, {"BETWEEN", Keyword::Between}, {"BREAK", Keyword::Break},
    {"BROWSE", Keyword::Reserved}, {"BULK", Keyword::Reserved}, {"BY", Keyword::By},
    {"CASCADE", Keyword::Reserved}, {"CASE", Keyword::Case}, {"CHECK", Keyword::Check},
    {"CHECKPOINT", Keyword::Reserved}, {"CLOSE", Keyword::Reserved},
    {"CLUSTERED", Keyword::Clustered}, {"COALESCE", Keyword::Coalesce},
    {"COLLATE", Keyword::Collate}, {"COLUMN", Keyword::Column}, {"COMMIT", Keyword::Commit},
    {"COMPUTE", Keyword::Reserved}, {"CONSTRAINT", Keyword::Constraint},
    {"CONTAINS", Keyword::Reserved}, {"CONTAINSTABLE", Keyword::Reserved},
    {"CONTINUE", Keyword::Continue}, {"CONVERT", Keyword::Convert}, {"CREATE", Keyword::Create},
    {"CROSS", Keyword::Cross}, {"CURRENT", Keyword::Current},
    {"CURRENT_DATE", Keyword::Reserved}, {"CURRENT_TIME", Keyword::Reserved},
    {"CURRENT_TIMESTAMP", Keyword::CurrentTimestamp}, {"CURRENT_USER", Keyword::CurrentUser},
    {"CURSOR", Keyword::Reserved}, {"DATABASE", Keyword::Database}, {"DBCC", Keyword::Reserved},
    {"DEALLOCATE", Keyword::Reserved}, {"DECLARE", Keyword::Declare},
    {"DEFAULT", Keyword::Default}, {"DELETE", Keyword::Delete}, {"DENY", Keyword::Reserved},
    {"DESC", Keyword::Desc}, {"DISK", Keyword::Reserved}, {"DISTINCT", Keyword::Distinct},
    {"DISTRIBUTED", Keyword::Reserved}, {"DOUBLE", Keyword::Double}, {"DROP", Keyword::Drop},
    {"DUMP", Keyword::Reserved}, {"ELSE", Keyword::Else}, {"END", Keyword::End},
    {"ERRLVL", Keyword::Reserved}, {"ESCAPE", Keyword::Escape}, {"EXCEPT", Keyword::Except},
    {"EXEC", Keyword::Exec}, {"EXECUTE", Keyword::Execute}, {"EXISTS", Keyword::Exists},
    {"EXIT", Keyword::Reserved}, {"EXTERNAL", Keyword::Reserved}, {"FETCH", Keyword::Fetch},
    {"FILE", Keyword::Reserved}, {"FILLFACTOR", Keyword::Reserved}, {"FOR", Keyword::For},
    {"FOREIGN", Keyword::Foreign}, {"FREETEXT", Keyword::Reserved},
    {"FREETEXTTABLE", Keyword::Reserved}, {"FROM", Keyword::From}, {"FULL", Keyword::Full},
    {"FUNCTION", Keyword::Function}, {"GOTO", Keyword::Reserved}, {"GRANT", Keyword::Reserved},
    {"GROUP", Keyword::Group}, {"HAVING", Keyword::Having}, {"HOLDLOCK", Keyword::Holdlock},
    {"IDENTITY", Keyword::Identity}, {"IDENTITYCOL", Keyword::Reserved},
    {"IDENTITY_INSERT", Keyword::IdentityInsert}, {"IF", Keyword::If}, {"IN", Keyword::In},
    {"INDEX", Keyword::Index}, {"INNER", Keyword::Inner}, {"INSERT", Keyword::Insert},
    {"INTERSECT", Keyword::Intersect}, {"INTO", Keyword::Into}, {"IS", Keyword::Is},
    {"JOIN", Keyword::Join}, {"KEY", Keyword::Key}, {"KILL", Keyword::Reserved},
    {"LEFT", Keyword::Left}, {"LIKE", Keyword::Like}, {"LINENO", Keyword::Reserved},
    {"LOAD", Keyword::Reserved}, {"MERGE", Keyword::Merge}, {"NATIONAL", Keyword::National},
    {"NOCHECK", Keyword::Nocheck}, {"NONCLUSTERED", Keyword::Nonclustered},
    {"NOT", Keyword::Not}, {"NULL", Keyword::Null}, {"NULLIF", Keyword::Nullif},
    {"OF", Keyword::Reserved}, {"OFF", Keyword::Off}, {"OFFSETS", Keyword::Reserved},
    {"ON", Keyword::On}, {"OPEN", Keyword::Reserved}, {"OPENDATASOURCE", Keyword::Reserved},
    {"OPENQUERY", Keyword::Reserved}, {"OPENROWSET", Keyword::Reserved},
    {"OPENXML", Keyword::Reserved}, {"OPTION", Keyword::Option}, {"OR", Keyword::Or},
    {"ORDER", Keyword::Order}, {"OUTER", Keyword::Outer}, {"OVER", Keyword::Over},
    {"PERCENT", Keyword::Percent}, {"PIVOT", Keyword::Reserved}, {"PLAN", Keyword::Reserved},
    {"PRECISION", Keyword::Precision}, {"PRIMARY", Keyword::Primary}, {"PRINT", Keyword::Print},
    {"PROC", Keyword::Proc}, {"PROCEDURE", Keyword::Procedure}, {"PUBLIC", Keyword::Reserved},
    {"RAISERROR", Keyword::Raiserror}, {"READ", Keyword::Reserved},
    {"READTEXT", Keyword::Reserved}, {"RECONFIGURE", Keyword::Reserved},
    {"REFERENCES", Keyword::References}, {"REPLICATION", Keyword::Replication},
    {"RESTORE", Keyword::Reserved}, {"RESTRICT", Keyword::Reserved}, {"RETURN", Keyword::Return},
    {"REVERT", Keyword::Reserved}, {"REVOKE", Keyword::Reserved}, {"RIGHT", Keyword::Right},
    {"ROLLBACK", Keyword::Rollback}, {"ROWCOUNT", Keyword::Rowcount},
    {"ROWGUIDCOL", Keyword::Rowguidcol}, {"RULE", Keyword::Reserved}, {"SAVE", Keyword::Save},
    {"SCHEMA", Keyword::Schema}, {"SECURITYAUDIT", Keyword::Reserved},
    {"SELECT", Keyword::Select}, {"SEMANTICKEYPHRASETABLE", Keyword::Reserved},
    {"SEMANTICSIMILARITYDETAILSTABLE", Keyword::Reserved},
    {"SEMANTICSIMILARITYTABLE", Keyword::Reserved}, {"SESSION_USER", Keyword::SessionUser},
    {"SET", Keyword::Set}, {"SETUSER", Keyword::Reserved}, {"SHUTDOWN", Keyword::Reserved},
    {"SOME", Keyword::Some}, {"STATISTICS", Keyword::Statistics},
    {"SYSTEM_USER", Keyword::SystemUser}, {"TABLE", Keyword::Table},
    {"TABLESAMPLE", Keyword::Reserved}, {"TEXTSIZE", Keyword::Textsize}, {"THEN", Keyword::Then},
    {"TO", Keyword::To}, {"TOP", Keyword::Top}, {"TRAN", Keyword::Tran},
    {"TRANSACTION", Keyword::Transaction}, {"TRIGGER", Keyword::Trigger},
    {"TRUNCATE", Keyword::Truncate}, {"TRY_CONVERT", Keyword::TryConvert},
    {"TSEQUAL", Keyword::Reserved}, {"UNION", Keyword::Union}, {"UNIQUE", Keyword::Unique},
    {"UNPIVOT", Keyword::Reserved}, {"UPDATE", Keyword::Update},
    {"UPDATETEXT", Keyword::Reserved}, {"USE", Keyword::Use}, {"USER", Keyword::User},
    {"VALUES", Keyword::Values}, {"VARYING", Keyword::Reserved}, {"VIEW", Keyword::View},
    {"WAITFOR", Keyword::Reserved}, {"WHEN", Keyword::When}, {"WHERE", Keyword::Where},
    {"WHILE", Keyword::While}, {"WITH", Keyword::With}, {"WITHIN", Keyword::Reserved},
    {"WRITETEXT", Keyword::Reserved},
};
// clang-format on

constexpr std::size_t longestWord = 32;

constexpr char capital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

Keyword keywordOf(const Token& token) {
    if (token.kind != TokenKind::Identifier || token.text.size() > longestWord) {
        return Keyword::None;
    }
    std::array<char, longestWord> buffer;
    std::transform(token.text.begin(), token.text.end(), buffer.begin(), capital);
    const std::string_view word(buffer.data(), token.text.size());
    const auto found = std::lower_bound(
        std::begin(entries), std::end(entries), word,
        [](const Entry& entry, std::string_view wanted) { return entry.word < wanted; });
    return found != std::end(entries) && found->word == word ? found->keyword : Keyword::None;
}

bool isWord(const Token& token, std::string_view word) {
    return token.kind == TokenKind::Identifier && token.text.size() == word.size() &&
           std::equal(word.begin(), word.end(), token.text.begin(),
                      [](char wanted, char c) { return wanted == capital(c); });
}

std::string upper(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), capital);
    return result;
}

} // namespace velcro::sql::tsql
