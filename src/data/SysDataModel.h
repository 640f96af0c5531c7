// The items of the session's shared lists: VAT rates, parameters, rights, open forms, report and
// selection criteria. Each list owns its items, so that pointers to them stay good while it grows.
#pragma once

#include <QString>

#include <memory>
#include <vector>

struct TVatRate
{
    QString VATCode, Description;
    double VATRate = 0;
    QString FromDate, ToDate;
};

struct TParameter
{
    QString ParamCode; // group
    int ParamNo = 0;
    QString ParamName, ParamValue;
};

struct TAccessRule
{
    QString ModCode;
    int AccessNo = 0;
    QString AccessValue, AccessName;
};

struct TRepAccessRule
{
    int AccessLevel = 0;
    QString Description;
    bool Allowed = false;
};

struct TOpenForm
{
    QString FormName;
};

struct TReportCriterion
{
    QString Criterion, Value;
};

struct TSelectionList
{
    QString Code, Description;
    bool Selected = false;
};

template <class Item>
using SharedList = std::vector<std::unique_ptr<Item>>;

inline SharedList<TVatRate> gVatRates;             // from SysTax, in SeqNo order
inline SharedList<TParameter> gParameters;         // with the overrides applied
inline SharedList<TAccessRule> gAccessRules;       // of the signed-in user
inline SharedList<TRepAccessRule> gRepAccessRules; // of the signed-in user
inline SharedList<TOpenForm> gOpenForms;
inline SharedList<TReportCriterion> gReportCriteria, gSelectCriteria;
inline SharedList<TSelectionList> gSelectionList;

/// Empties all lists, in the order the program has always freed them.
void freeSharedLists();
