// The variables of one batch or of one call of a procedure.
#pragma once

#include "tsql/values/Values.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace velcro::sql::tsql {

struct FrameVariable
{
    Type type;
    Value value;
};

/// Names are with their @; case does not count.
class Frame
{
public:
    /// 134 when it is declared already. The value is NULL.
    FrameVariable& declare(std::string_view name, const Type& type, int line);
    /// Null when it is not declared.
    const FrameVariable* find(std::string_view name) const;
    /// 137 when it is not declared.
    FrameVariable& require(std::string_view name, int line);
    /// Converts to the variable's type; text that is too long is cut, as the server does it.
    void assign(std::string_view name, Value value, const Type& from, int line);

    /// Of the procedure that runs; blank in a batch.
    std::string procedure;
    /// What RETURN gave.
    std::int64_t returned = 0;

private:
    std::unordered_map<std::string, FrameVariable> variables_;
};

} // namespace velcro::sql::tsql
