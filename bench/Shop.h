// Fills a desk's tables to the size of a large shop.
#pragma once

#include <QString>

namespace bench {

/// Debtors and orders of company 01, branch 100, until there are as many as told in the tables.
void addCustomers(int count);
void addOrders(int count);

/// Products of the same branch, each with a price under the codes 1 and 2 and two balances. Row n has
/// the barcode and the stock code below.
void addProducts(int count);
QString barcodeOf(int row);
QString stockCodeOf(int row);

} // namespace bench
