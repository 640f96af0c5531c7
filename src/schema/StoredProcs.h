// Keeps the stored procedures of a till's database as this version needs them.
#pragma once

/// All procedures. There is one.
void stkproc_Stored_Procs();

/// Replaces the procedure that lists stock with cost and price. Where the old one cannot be dropped
/// nothing is done; where the new one cannot be made the database is left without it.
void stkproc_STK_GetStockData();
