// Goes through the stored templates of a table while the screen stays alive.
#pragma once

#include "data/Statement.h"

#include <functional>

enum class TemplateSearch { Found, NotFound, GivenUp };

/// Calls isLast for each row, with its template, until that says so, or the user gives up.
TemplateSearch searchTemplates(Statement& rows,
                               const std::function<bool(const QByteArray& stored)>& isLast);
