#include "data/ComboLoaders.h"

#include "data/StatementText.h"

namespace {

using Arguments = LoaderArguments;
using enum ComboLoader::Scope;

bool isBlank(const QString& text) {
    return text.trimmed().isEmpty();
}

QString andEquals(const char* column, const QString& value) {
    return QLatin1String("   AND [") + QLatin1String(column) + QLatin1String("] = ") +
           QuotedStr(value);
}

QString branchRows(const Arguments& given) {
    if (given.company == QLatin1String("*ALL*")) {
        return " WHERE [TradingBranch] = " + QuotedStr("Y") + " ORDER BY [DisplaySeq], [Branch]";
    }
    QString text = " WHERE [CO] = " + QuotedStr(given.company);
    if (!isBlank(given.param1)) {
        text += andEquals("TradingBranch", given.param1);
    }
    if (given.param2 == QLatin1String("X")) {
        text += " AND [BranchCategory] <> " + QuotedStr("H");
    } else if (!isBlank(given.param2)) {
        text += andEquals("BranchCategory", given.param2);
    }
    return text + " ORDER BY [DisplaySeq], [Branch]";
}

QString ofWarehouse(const Arguments& given) {
    return andEquals("Branch", isBlank(given.param2) ? given.branch : given.param2) +
           (isBlank(given.param3) ? QString() : andEquals("WHStatus", given.param3));
}

QString transactionTypes(const Arguments& given) {
    QStringList conditions;
    if (!isBlank(given.param1)) {
        conditions.append("[ModCode] = " + QuotedStr(given.param1));
    }
    const QString kind = given.param2 == "0"   ? QStringLiteral("[TxTpType] = 'N'")
                         : given.param2 == "1" ? QStringLiteral("[TxTpType] = 'S'")
                         : given.param2 == "2" ? QStringLiteral("[TxTpType] = 'X'")
                         : given.param2 == "3" ? QStringLiteral("[AllowGL] = 'Y'")
                                               : QString();
    if (!kind.isEmpty()) {
        conditions.append(kind);
    }
    return (conditions.isEmpty() ? QString() : " WHERE " + conditions.join("   AND ")) +
           " ORDER BY [TxTp]";
}

QString taxCodes(const Arguments& given) {
    const QString usage = given.param1 == "I"   ? QStringLiteral(" WHERE [Usage] IN ('B','I')")
                          : given.param1 == "O" ? QStringLiteral(" WHERE [Usage] IN ('B','O')")
                          : given.param1 == "B" ? QStringLiteral(" WHERE [Usage] = 'B'")
                                                : QString();
    return usage + " ORDER BY [SeqNo]";
}

QString codesOfType(const Arguments& given) {
    return " WHERE [CO] = " + QuotedStr(given.company) + andEquals("CodeType", given.param1) +
           (given.param2 == "N" ? "  AND [UserFld3] <> " + QuotedStr("N") : QString()) +
           (isBlank(given.param3) ? QStringLiteral(" ORDER BY Code") : given.param3);
}

template <const char* const& Column>
QString whenGiven(const Arguments& given) {
    return isBlank(given.param1) ? QString() : andEquals(Column, given.param1);
}
constexpr const char* codeType = "CodeType";
constexpr const char* modCode = "ModCode";

QString ofProperty(const Arguments& given) {
    return isBlank(given.param1) ? QString() : andEquals("PropNo", given.param1);
}

// The path of each category from the root of its tree, by its names.
QString categoryPaths(const Arguments& given) {
    const QString app = QuotedStr(given.param1);
    return "WITH nopC AS ("
           " SELECT [CategoryId], CAST([Name] AS nvarchar(max)) AS [path]"
           "   FROM WooCategories WITH (NOLOCK)"
           "  WHERE [AppID] = " +
           app +
           "    AND [Parent] = 0"
           " UNION ALL"
           " SELECT T1.[CategoryId], CAST(nopC.[path] + ' -> ' + T1.[Name] AS nvarchar(max))"
           "   FROM WooCategories T1 WITH (NOLOCK)"
           "   JOIN nopC ON T1.[Parent] = nopC.[CategoryId]"
           "  WHERE T1.[AppID] = " +
           app +
           " )"
           " SELECT [CategoryId], [path] FROM nopC" +
           (isBlank(given.param2) ? QString()
                                  : " WHERE [CategoryId] = " + QuotedStr(given.param2)) +
           " ORDER BY [path]";
}

constexpr auto exact = ComboLoader::Match::Exact;
constexpr const char* plain = "[Code], [Description]";

// clang-format off
const ComboLoader loaders[] = {
    {"SYSCOMPANY", "[CO], [COName]", Everywhere},
    {.key = "SYSBRANCH", .columns = "[Branch], [ShortName]", .rest = branchRows},
    {.key = "SYSWH", .columns = "[WH], [WHName]", .conditions = ofWarehouse},
    {"SYSSALESREPS", "[RepCode], [RepName]", Branch},
    {"SYSBANK", "[BankCode], [BankName]"},
    {"SYSBUYER", "[BuyerCode], [BuyerName]"},
    {"SYSBUDGETPERIODS", "[BudgetCode], [Description]"},
    {"SYSFORMS", "[FormCode], [FormName]", Everywhere},
    {"SYSPRICES", "[PriceCode], [Description]"},
    {"SYSCURRENCYMST", "[CCYCode], [CCYName]", Everywhere},
    {.key = "SYSMESSAGE", .columns = "[MsgCode], [MsgName]", .scope = Branch,
     .conditions = whenGiven<modCode>},
    {"SYSTENDER", "[TenderType], [TenderDesc]"},
    {"SYSUSER", "[UserCode], [UserName]", Everywhere},
    {"SYSCSVTEMPLATEHDR", "[TemplateCode], [Description]"},
    {.key = "SYSTXTP", .columns = "[TxTp], [TxTpDesc]", .rest = transactionTypes},
    {"SYSUSERGROUP", "[UserGroup], [GroupDesc]"},
    {.key = "SYSTAX", .columns = "[TaxCode], [TaxDesc], [TaxRate], [FromDate], [ToDate], [Usage]",
     .rest = taxCodes},
    {.key = "SYSCODEMASTER", .columns = plain, .rest = codesOfType},
    {"SYSREPIMAGES", "[ImageCode], [ImageName]"},
    {"SYSREPACCESSLEVEL", "[AccessLevel], [Description]", Everywhere},
    {"SYSTXANSMS", "[TxTp], [TxtHeader]", Branch},
    {"SysAppSettings", "[AppID], [Description]", Everywhere},
    {"SysCountryMst", "[CountryCode], [CountryName]", Everywhere},
    {"SysLanguageMst", "[LanguageCode], [LanguageName]", Everywhere},
    {"SysPaymentMethods", plain, Everywhere},
    {"STKDEPT", "[DeptCode], [DeptName]"},
    {"STKSUBDEPT", "[SubDept], [Description]"},
    {"PACKSIZES", "[PackSize], [Description]"},
    {"STKMSTGLPOSTGROUP", plain},
    {"STKMSTSPLITCODES", "[SplitCode], [Description1]", Branch},
    {.key = "STKPROPERTY", .columns = "[PropCode], [PropDescription]", .conditions = ofProperty},
    {"STKPRODGROWERS", plain}, {"STKPRODSITES", plain}, {"STKVCATVECHTYPE", plain},
    {"STKBrands", plain}, {"STKUOMUnits", plain}, {"STKUOMConversion", plain},
    {"STKUOMContainer", plain}, {"STKUOMPackage", plain}, {"STKManufacturers", plain},
    {"CRDGROUPS", plain}, {"CRDCLAIMRSN", plain}, {"CRDREBATECODE", plain},
    {"CRDCATEGORY", plain}, {"CRDBUYERS", plain}, {"CRDFILECATS", plain},
    {"DEBPROVINCEMST", plain}, {"DEBMUNICIPALMST", plain},
    {"PURCARDRULE", plain},
    {"GLGBANKMASTER", "[BankCode], [BankName]"},
    {"GLGACCCATEGORY", plain},
    {"GLGCBTXTP", "[TxTp], [Description], [DrCr]"},
    {"GLGCOSTCENTERMASTER", plain},
    {"GLGCALENDAR", "[GLYear], [Period]"},
    {"DEBAREA", plain}, {"DEBCATEGORY1", plain}, {"DEBCATEGORY2", plain}, {"DEBGROUP", plain},
    {"DEBREGION", plain}, {"DEBROUTE", plain}, {"DEBCRMMASTER", plain}, {"DEBCITYMST", plain},
    {"POSTILLMASTER", "[TillNo], [Name]", Branch},
    {"POSCASHIERS", "[EmplNo], [Name]", Branch},
    {"POSVIPCARDTYPES", plain},
    {"POSVIPCATEGORY", "[VIPCatCode], [Description]"},
    {"POSVIPCONTRACTS", plain}, {"POSVIPGRADES", plain}, {"POSVIPPACKAGE", plain},
    {"POSVIPSTORES", plain}, {"POSVIPPROGRESS", plain},
    {"FLTVEHICLES", plain},
    {"POSCOFTILLMST", "[COFTillNo], [Name]", Branch},
    {"SVMTECHMASTER", plain}, {"SVMPROJECTMST", plain}, {"SVMTIMESHEETCATS", plain},
    {"SVMTECHBILLCODES", plain}, {"SVMLINEOFBUSMST", plain},
    {"GSMCRDCATEGORY", plain}, {"GSMCRDCLAIMRSN", plain}, {"GSMCRDGROUPS", plain},
    {"GSMCRDREBATECODE", plain},
    {"GSMVIPCARDTYPES", plain}, {"GSMVIPCATEGORY", plain}, {"GSMVIPCONTRACTS", plain},
    {"GSMVIPGRADES", plain}, {"GSMVIPPACKAGE", plain}, {"GSMMSTSPLITCODES", plain},
    {"GSMVIPPROGRESS", plain}, {"GSMVIPSTORES", plain},
    {"GSMBrands", plain}, {"GSMUOMUnits", plain}, {"GSMUOMConversion", plain},
    {"GSMUOMContainer", plain}, {"GSMUOMPackage", plain},
    {"PUROCFORMULA", plain},
    {"WKSLOCATION", plain}, {"WKSCOURIERMST", plain}, {"WKSNOTESTEMPLATES", plain},
    {"WKSSTATUS", plain}, {"WKSTECHNICIAN", plain},
    {"WKSCHECKLISTHDR", plain},
    {.key = "CROCodeMaster", .columns = plain, .scope = SessionCompany, .order = "[Description]",
     .conditions = whenGiven<codeType>},
    {"CROTechMst", "[TechCode], [TechName]", SessionCompany, "[TechName]"},
    {"CROProcessMst", "[ProcessCode], [Description]", SessionCompany, "[ProcessSeq]"},
    {"SysMstMetaData", plain, Everywhere, nullptr, exact},
    {"WooAttributes", "[AttributeId], [Name]", Everywhere, nullptr, exact},
    {"WooAttributeTerms", "[TermId], [Name]", Everywhere, nullptr, exact},
    {"WooTags", "[TagId], [Name]", Everywhere, nullptr, exact},
    {.key = "WooCategories", .columns = "", .match = exact, .statement = categoryPaths},
    {"WooShippingClasses", "[ClassId], [Name]", Everywhere, nullptr, exact},
};
// clang-format on

} // namespace

std::span<const ComboLoader> comboLoaders() {
    return loaders;
}

const ComboLoader* findComboLoader(const QString& key) {
    for (const ComboLoader& loader : loaders) {
        const auto sensitivity =
            loader.match == ComboLoader::Match::Exact ? Qt::CaseSensitive : Qt::CaseInsensitive;
        if (key.compare(QLatin1String(loader.key), sensitivity) == 0) {
            return &loader;
        }
    }
    return nullptr;
}
