#include "translation/ObjectAccount.h"

#include <gtest/gtest.h>

#include <map>

namespace korvande::testing {
namespace {

TEST(ObjectAccount, AnEmptyAccountBalancesAndSaysNothing) {
    const ObjectAccount account;
    EXPECT_TRUE(account.Balances());
    EXPECT_EQ(account.Summary(), u"");
}

TEST(ObjectAccount, ItBalancesWhenEveryObjectReadIsWrittenOrLeftOut) {
    ObjectAccount account;
    account[ObjectKind::Point].read = 5;
    account[ObjectKind::Point].written = 2;
    EXPECT_FALSE(account.Balances());
    account.Leave(ObjectKind::Point, LeftOut::Dummy);
    EXPECT_FALSE(account.Balances());
    account.Leave(ObjectKind::Point, LeftOut::UnknownCode, 2);
    EXPECT_TRUE(account.Balances());
    EXPECT_EQ(account[ObjectKind::Point].LeftOutTotal(), 3);
    account.Leave(ObjectKind::TextObject, LeftOut::EmptyText);
    EXPECT_FALSE(account.Balances()) << "one kind does not make up for another";
}

TEST(ObjectAccount, TheSummaryTellsEachKindThatOccurs) {
    ObjectAccount account;
    account[ObjectKind::Point] = {.read = 3, .written = 3};
    account[ObjectKind::LineSegment] = {.read = 4, .written = 2};
    account.Leave(ObjectKind::LineSegment, LeftOut::LineType);
    account.Leave(ObjectKind::LineSegment, LeftOut::NoReference);
    account[ObjectKind::Polygon].read = 2;
    account.Leave(ObjectKind::Polygon, LeftOut::NotTranslated, 2);
    EXPECT_EQ(ToUtf8(account.Summary()),
              "Punten: 3 gelezen, 3 geschreven, 0 weggelaten\n"
              "Lijnsegmenten: 4 gelezen, 2 geschreven, 2 weggelaten (1 ander lijntype, 1 verwijst naar niets)\n"
              "Veelhoeken: 2 gelezen, 0 geschreven, 2 weggelaten (2 wordt niet vertaald)\n");
}

TEST(ObjectAccount, WhatWasKeptIsWrittenOnceToldSo) {
    ObjectAccount account;
    account[ObjectKind::Point] = {.read = 5, .kept = 3, .written = 1};
    account[ObjectKind::Arc] = {.read = 2, .kept = 2};
    account.KeptAreWritten();
    EXPECT_EQ(account[ObjectKind::Point].written, 4);
    EXPECT_EQ(account[ObjectKind::Arc].written, 2);
    EXPECT_EQ(account[ObjectKind::TextObject].written, 0);
}

TEST(ObjectAccount, TheTotalAddsUpAllKindsAndReasons) {
    ObjectAccount account;
    account[ObjectKind::Point] = {.read = 5, .kept = 3, .written = 1};
    account[ObjectKind::Other] = {.read = 20, .kept = 10, .written = 4};
    account.Leave(ObjectKind::Point, LeftOut::Dummy, 2);
    account.Leave(ObjectKind::Other, LeftOut::Dummy, 30);
    account.Leave(ObjectKind::Arc, LeftOut::UnknownCode, 1000);
    account.Leave(ObjectKind::Arc, LeftOut::Unfinished, 100);
    const KindAccount total = account.Total();
    EXPECT_EQ(total.read, 25);
    EXPECT_EQ(total.kept, 13);
    EXPECT_EQ(total.written, 5);
    EXPECT_EQ(total.LeftOutTotal(), 1132);
    EXPECT_EQ(total.leftOut[static_cast<std::size_t>(LeftOut::Dummy)], 32);
}

TEST(ObjectAccount, EveryReasonHasItsWords) {
    const std::map<LeftOut, std::string> words = {{LeftOut::UnknownCode, "onbekende code"},
                                                  {LeftOut::Dummy, "type DUMMY"},
                                                  {LeftOut::OtherType, "ander type"},
                                                  {LeftOut::LineType, "ander lijntype"},
                                                  {LeftOut::EmptyText, "lege tekst"},
                                                  {LeftOut::OutsideRectangle, "buiten de rechthoek"},
                                                  {LeftOut::NoCode, "zonder code"},
                                                  {LeftOut::NoCoordinates, "zonder coördinaten"},
                                                  {LeftOut::NoPlace, "zonder coördinaten, niet gewenst"},
                                                  {LeftOut::InvalidArc, "ongeldige boog"},
                                                  {LeftOut::Unfinished, "niet voltooid"},
                                                  {LeftOut::MissingRecord, "record ontbreekt"},
                                                  {LeftOut::NoReference, "verwijst naar niets"},
                                                  {LeftOut::NotTranslated, "wordt niet vertaald"}};
    ASSERT_EQ(words.size(), leftOutReasons);
    for (const auto& [reason, text] : words) {
        ObjectAccount account;
        account[ObjectKind::TextObject].read = 1;
        account.Leave(ObjectKind::TextObject, reason);
        EXPECT_EQ(ToUtf8(account.Summary()), "Teksten: 1 gelezen, 0 geschreven, 1 weggelaten (1 " + text + ")\n");
    }
}

}  // namespace
}  // namespace korvande::testing
