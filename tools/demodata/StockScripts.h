// The tables that stock items are spread over.
#pragma once

#include "InsertScript.h"
#include "Sample.h"

namespace velcro::demo {

/// A stock item with what only the stock tables hold of it.
struct StockRow
{
    StockItem item;
    std::string department, model, supplier, supplierCode, barcode;
    std::string status = "A";
    std::string kitFunction = "0";
    int units = 1;
    bool serialTrack = false;
    bool hasPrices = true;
};

class StockScripts
{
public:
    StockScripts();

    /// The master row with its prices, balances, further barcodes and suppliers.
    void add(const StockRow& row, Random& random, Day today);
    void addKitPart(const StockItem& kit, const StockItem& part, int quantity);
    void addSerial(const Serial& serial, const StockItem& item, Sample& sample);
    void writeTo(std::ostream& out) const;

private:
    void addMaster(const StockRow& row, Random& random, Day today);
    void addPrices(const StockItem& item, Random& random, Day today);
    void addBalances(const StockItem& item, Random& random);
    void addAlternatives(const StockRow& row, Random& random);

    InsertScript departments_, masters_, balances_, prices_, barcodes_, suppliers_, kits_, serials_;
};

} // namespace velcro::demo
