// The stored procedures that a till's database owns.
#include "schema/StoredProcs.h"

#include "schema/SysDBGen.h"

namespace {

// Lines end with a carriage return and a line feed, and the first begins with a blank.
constexpr const char* getStockData = R"(
 CREATE PROCEDURE dbo.stkproc_STK_GetStockData
     @CO NVARCHAR(10),
     @Branch NVARCHAR(10),
     @PriceCode NVARCHAR(10),
     @CostMethod NVARCHAR(1),
     @Start NVARCHAR(100) = NULL,
     @StockCode NVARCHAR(50) = NULL,
     @PropCode NVARCHAR(50) = NULL,
     @EmptiesTill BIT = 0,
     @ReturnsVoucher BIT = 0,
     @RetnRows INT = 1000,
     @SearchField NVARCHAR(50) = NULL,
     @SearchText NVARCHAR(100) = NULL
 AS
 BEGIN
        SET NOCOUNT ON;

    DECLARE @PageSize INT = CASE
       WHEN @SearchField IS NULL AND @SearchText IS NULL AND @Start IS NULL
       THEN @RetnRows
       ELSE 2147483647
        END;

     SELECT T0.RecID, T0.StockCode, T0.LinkCode, T0.StockType, T0.Description1, T0.Barcode, T0.PackSize,
            T0.CostDecimal, T0.SellDecimal,
            CASE WHEN @CostMethod = 'L' THEN T0.LastCostExcl ELSE T0.AvgCostExcl END AS [CostExcl],
            CASE WHEN @CostMethod = 'L' THEN T0.LastCostIncl ELSE T0.AvgCostIncl END AS [CostIncl],
            T1.Excl, T1.Incl
       FROM STKMaster T0 WITH (NOLOCK)
      INNER JOIN STKPrice T1 WITH (NOLOCK)
         ON T1.CO = T0.CO
        AND T1.Branch = T0.Branch
        AND T1.StockCode = T0.StockCode
        AND T1.LinkCode = T0.LinkCode
        AND T1.PriceCode = @PriceCode
      WHERE T0.CO = @CO
        AND T0.Branch = @Branch
        AND T0.StockType <> 'P'
        AND T0.Status <> 'X'
        AND T1.PriceCode = @PriceCode
        AND (@Start IS NULL OR T0.Description1 LIKE '%' + @Start + '%')
        AND (@SearchField IS NULL OR @SearchText IS NULL OR
            (@SearchField = 'StockCode' AND T0.StockCode LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'Description1' AND T0.Description1 LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'Barcode' AND T0.Barcode LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'SuppCode' AND T0.SuppCode LIKE '%' + @SearchText + '%'))
        AND (@StockCode IS NULL OR (T0.StockCode LIKE '%' + @StockCode + '%' OR T0.Description1 LIKE '%' + @StockCode + '%'))
        AND (@EmptiesTill = 0 OR T0.StockType IN ('E', 'K'))
        AND (@ReturnsVoucher = 0 OR @PropCode IS NULL OR T0.Property10 = @PropCode)
      ORDER BY T0.Description1
     OFFSET 0 ROWS
      FETCH NEXT @PageSize ROWS ONLY
     OPTION (OPTIMIZE FOR UNKNOWN, RECOMPILE);
 END
)";

} // namespace

void stkproc_STK_GetStockData() {
    if (!sdb_Drop_StoredProc(QStringLiteral("[dbo].[stkproc_STK_GetStockData]"))) {
        return;
    }
    QString text = QString::fromLatin1(getStockData).trimmed();
    text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    velcro::schema::send(QLatin1Char(' ') + text);
}

void stkproc_Stored_Procs() {
    stkproc_STK_GetStockData();
}
