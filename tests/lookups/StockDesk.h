// A small stock that holds every case of a search: what is inserted here is all there is.
#pragma once

#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "support/Desk.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"

#include <QMap>
#include <gtest/gtest.h>

class StockDesk : public testing::Test
{
protected:
    using Values = QMap<QString, QString>;

    StockDesk() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised.append(message); });
        for (const char* table :
             {"STKMaster", "STKPrice", "STKBalance", "STKAltBarcodes", "STKAltSuppliers"}) {
            velcro::test::Desk::onSuite(QString("DELETE FROM ") + table);
        }
    }
    ~StockDesk() override {
        velcro::ui::setErrorDisplay({});
        gParameters.clear();
    }

    static void insert(const QString& table, Values values) {
        values.insert(
            Values{{"CO", values.value("CO", "01")}, {"Branch", values.value("Branch", "100")}});
        velcro::test::Desk::onSuite("INSERT INTO " + table + " ([" +
                                    QStringList(values.keys()).join("], [") + "]) VALUES (" +
                                    valueList(values.values()) + ")");
    }
    /// An active product of the session's branch, link code as the stock code; values go before.
    static void product(const QString& code, const Values& values = {}) {
        Values row = {{"StockCode", code}, {"LinkCode", code},  {"Description1", "Of " + code},
                      {"StockType", "N"},  {"Status", "A"},     {"KitFunction", "1"},
                      {"Units", "1"},      {"VATCode", "1"},    {"SuppCode", ""},
                      {"Barcode", ""},     {"Supplier", "S101"}};
        row.insert(values);
        insert("STKMaster", row);
    }
    static int recID(const QString& link, const QString& stock = {}) {
        return velcro::test::Desk::suite(
                   "SELECT [RecID] FROM STKMaster WHERE [LinkCode] = " + QuotedStr(link) +
                   " AND [StockCode] = " + QuotedStr(stock.isEmpty() ? link : stock))
            .toInt();
    }
    static void setParameter(const QString& group, int number, const QString& value) {
        gParameters.push_back(std::make_unique<TParameter>(TParameter{group, number, {}, value}));
    }

    velcro::test::Desk desk;
    ScriptedUser user;
    QStringList raised; // what reached the default error display
};
