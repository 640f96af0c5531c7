// The table of code lists that combo boxes can be filled from: which table, which columns, whose
// rows, in which order.
#pragma once

#include <QString>

#include <span>

/// What a caller may give besides the key.
struct LoaderArguments
{
    QString param1, param2, param3;
    QString company, branch;
};

struct ComboLoader
{
    enum class Match { AnyCase, Exact };
    enum class Scope {
        Everywhere,     // the rows are the whole installation's
        Company,        // of the loader's company
        Branch,         // of the loader's company and branch
        SessionCompany, // of the signed-in company
    };

    const char* key; // also the name of the table
    const char* columns;
    Scope scope = Scope::Company;
    const char* order = nullptr; // blank is the first column
    Match match = Match::AnyCase;
    /// Further conditions, after the scope.
    QString (*conditions)(const LoaderArguments&) = nullptr;
    /// The whole text behind the select list's FROM, in place of scope, conditions and order.
    QString (*rest)(const LoaderArguments&) = nullptr;
    /// The whole statement, in place of all others.
    QString (*statement)(const LoaderArguments&) = nullptr;
};

/// All loaders, in the order in which they have always been tested.
std::span<const ComboLoader> comboLoaders();

/// nullptr for a key that is none.
const ComboLoader* findComboLoader(const QString& key);
