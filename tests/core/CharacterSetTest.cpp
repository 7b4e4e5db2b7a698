#include "core/CharacterSet.h"

#include <gtest/gtest.h>

#include "core/Text.h"

namespace korvande::testing {
namespace {

// A line converted, or "-" when it is no UTF-8.
std::string Converted(std::string_view line, Columns columns) {
    std::string converted = "of a line before";
    return Utf8LineToWindows1252(line, columns, converted) ? converted : "-";
}
std::string Kept(std::string_view line) { return Converted(line, Columns::Kept); }
std::string Free(std::string_view line) { return Converted(line, Columns::Free); }

TEST(CharacterSet, AHighByteIsFoundAnywhereInALine) {
    EXPECT_FALSE(HasHighByte(""));
    for (const std::size_t length : {1U, 7U, 64U, 255U, 256U, 257U, 1000U}) {
        std::string text(length, '\x7F');
        EXPECT_FALSE(HasHighByte(text)) << length;
        for (const std::size_t place : {std::size_t{0}, length / 2, length - 1}) {
            text[place] = '\x80';
            EXPECT_TRUE(HasHighByte(text)) << length << " " << place;
            text[place] = ' ';
        }
    }
}

TEST(CharacterSet, ALineOfUtf8BecomesWindows1252) {
    EXPECT_EQ(Free("Caf\xC3\xA9 \xE2\x82\xAC 5"), "Caf\xE9 \x80 5");
    EXPECT_EQ(Free("plain"), "plain");
    EXPECT_EQ(Free(""), "");
}

TEST(CharacterSet, WhatWindows1252LacksBecomesOneQuestionMark) {
    EXPECT_EQ(Free("\xC5\x81\xC3\xB3"
                   "d\xC5\xBA"),
              "?\xF3"
              "d?");
    EXPECT_EQ(Free("\xF0\x9F\x8C\x8D!"), "?!");
}

TEST(CharacterSet, KeptColumnsFillEachCharacterToTheWidthOfItsBytes) {
    EXPECT_EQ(Kept("a\xC3\xA9"
                   "b"),
              "a\xE9 b");
    EXPECT_EQ(Kept("\xE2\x82\xAC|"), "\x80  |");
    EXPECT_EQ(Kept("\xF0\x9F\x8C\x8D|"), "?   |");
    const std::string line = "06A10TCaf\xC3\xA9straat" + std::string(46, ' ') + "01";
    EXPECT_EQ(Kept(line).size(), line.size());
    EXPECT_TRUE(Kept(line).ends_with("01"));
}

TEST(CharacterSet, ALineWithAByteThatIsNoUtf8IsNone) {
    const std::string_view none[] = {"Caf\xE9",
                                     "\xC3",
                                     "\xC3(",
                                     "\xE2\x82",
                                     "\xC0\xAF",
                                     "\xE0\x80\xAF",
                                     "\xED\xA0\x80",
                                     "\xF4\x90\x80\x80",
                                     "\x80",
                                     "\xFF",
                                     "Caf\xC3\xA9 en caf\xE9"};
    for (const std::string_view line : none) EXPECT_EQ(Free(line), "-");
}

TEST(CharacterSet, CodePage850BecomesWindows1252) {
    EXPECT_EQ(Cp850ToWindows1252("CAF\x82STRAAT"), "CAF\xE9STRAAT");
    EXPECT_EQ(Cp850ToWindows1252("\x80\x81\x84\x94\x99\x9A\xE1\xF8"), "\xC7\xFC\xE4\xF6\xD6\xDC\xDF\xB0");
}

TEST(CharacterSet, WhatCodePage850HasAndWindows1252LacksBecomesAQuestionMark) {
    EXPECT_EQ(Cp850ToWindows1252("\xB3\xC4\xDB"), "???");
    EXPECT_EQ(Cp850ToWindows1252("0? ~"), "0? ~");
}

TEST(CharacterSet, EveryByteOfCodePage850StandsForTheCharacterThatItsTableNames) {
    // The upper half of code page 850 in its order.
    const Text upper =
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙý"
        u"Ý¯´"
        u"\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
    ASSERT_EQ(upper.size(), 128U);
    for (std::size_t i = 0; i < upper.size(); ++i) {
        const std::string byte(1, static_cast<char>(0x80 + i));
        EXPECT_EQ(Cp850ToWindows1252(byte), ToWindows1252(upper.substr(i, 1))) << i;
    }
}

}  // namespace
}  // namespace korvande::testing
