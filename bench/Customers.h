// Fills a desk's tables to the size of a large shop.
#pragma once

namespace bench {

/// Debtors and orders of company 01, branch 100, until there are as many as told in the tables.
void addCustomers(int count);
void addOrders(int count);

} // namespace bench
