#include "messaging/SysJSONParser.h"

#include "support/FailureOf.h"

#include <gtest/gtest.h>

TEST(SysJSONParserTest, theFirstMemberOfTheTopLevelAnswers) {
    const struct
    {
        const char* json;
        const char* value;
    } answers[] = {
        {R"({"status":"1"})", "1"},
        {R"({"status":1})", "1"},
        {R"( { "a" : 2 , "status" : true } )", "True"},
        {R"({"status":false})", "False"},
        {R"({"status":null})", "null"},
        {R"({"status":-1.50e2})", "-1.50e2"},
        {R"({"status":123456789012345678901234567890})", "123456789012345678901234567890"},
        {R"({"status":"one","status":"two"})", "one"},
        {R"({"Status":"1","STATUS":"1"})", "unchanged"},
        {R"({"deep":{"status":"1"},"list":["status",{"status":1}]})", "unchanged"},
        {R"({"deep":{"status":"1"},"status":"2"})", "2"},
        {R"({"status":{"code": [1, "a]}"]},"x":1})", R"({"code": [1, "a]}"]})"},
        {R"({"status":[ ],"status":1})", "[ ]"},
        {R"({"status":"line\nbreak \"q\" \u0041"})", "line\nbreak \"q\" A"},
        {R"({"status":""})", ""},
        {"{}", "unchanged"},
        {"{\"status\":\"caf\xC3\xA9 \xF0\x9F\x98\x80\"}", "caf? ??"},
        {"{\"st\xC3\xA4tus\":1,\"st?tus\":2,\"status\":3}", "3"},
    };
    for (const auto& [json, value] : answers) {
        EXPECT_EQ(sj_Parse_Tag(QString::fromUtf8(json), "status", "unchanged").toStdString(), value)
            << json;
    }
}

TEST(SysJSONParserTest, whatIsNoObjectIsAFault) {
    const QString deep(300'000, u'[');
    for (const QString& text :
         {QString(), QString("ok"), QString("[{\"status\":1}]"), QString("\"status\""),
          QString("1"), QString("{\"status\":1"), QString("{\"status\":1}x"),
          QString("{'status':1}"), QString("<html></html>"), deep, "{\"status\":" + deep}) {
        EXPECT_EQ(failureOf([&] { sj_Parse_Tag(text, "status"); }), "Invalid class typecast")
            << text.left(50).toStdString();
    }
    EXPECT_EQ(sj_Parse_Tag("{\"a\":" + deep + QString(deep).replace('[', ']') + ",\"status\":1}",
                           "status"),
              "1");
}
