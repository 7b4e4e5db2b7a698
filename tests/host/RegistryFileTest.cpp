#include "host/RegistryFile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

namespace {

constexpr std::string_view heading = "Windows Registry Editor Version 5.00\n";

class TextRegistry : public ::testing::Test {
 protected:
    RegistryFile Registry(std::string_view linesWithLf) {
        return RegistryFile(folder.Write("registry.reg", WithCrLf(linesWithLf)));
    }

    // The file as saved, with line feeds only.
    std::string Saved(const RegistryFile& registry) {
        registry.Save();
        std::string bytes = FileBytes(name);
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), std::count(bytes.begin(), bytes.end(), '\n'));
        std::erase(bytes, '\r');
        return bytes;
    }

    static Text TextOf(const RegistryFile& registry, TextView key, TextView value) {
        const std::optional<RegValue> found = registry.FindValue(key, value);
        return found && found->type == RegValueType::String ? found->text : Text(u"(none)");
    }

    TestFolder folder;
    Text name = folder / "registry.reg";
};

TEST_F(TextRegistry, WithoutAFileItIsEmpty) {
    const RegistryFile registry(name);
    EXPECT_FALSE(registry.HasKey(u"HKEY_CURRENT_USER\\Software"));
    EXPECT_FALSE(registry.FindValue(u"HKEY_CURRENT_USER\\Software", u"Naam"));
    EXPECT_EQ(folder.Listing(), "");
}

TEST_F(TextRegistry, KeysAndValuesAreWrittenInTheFormOfTheSystem) {
    RegistryFile registry(name);
    registry.AddKey(u"HKEY_CURRENT_USER\\Software\\Een");
    registry.SetText(u"HKEY_CURRENT_USER\\Software\\Een", u"Map", u"C:\\Data\\\"x\"");
    registry.SetText(u"HKEY_CURRENT_USER\\Software\\Een", u"", u"standaard");
    registry.AddKey(u"HKEY_CURRENT_USER\\Software\\Twee");
    registry.SetText(u"HKEY_CURRENT_USER\\Software\\Twee", u"Café \"€\"", u"");
    EXPECT_EQ(Saved(registry), std::string(heading) +
                                   "\n"
                                   "[HKEY_CURRENT_USER\\Software\\Een]\n"
                                   "\"Map\"=\"C:\\\\Data\\\\\\\"x\\\"\"\n"
                                   "@=\"standaard\"\n"
                                   "\n"
                                   "[HKEY_CURRENT_USER\\Software\\Twee]\n"
                                   "\"Café \\\"€\\\"\"=\"\"\n");
    EXPECT_EQ(folder.Listing(), "registry.reg");
}

TEST_F(TextRegistry, WhatWasWrittenIsReadAgain) {
    const Text texts[] = {u"",    u" ",      u"\\",      u"\"", u"a\\\"b\\\\", u"é€Ž",
                          u"字𝄞", u"[HKEY]", u"x=\"y\"", u";",  u"a\tb\\"};
    for (const Text& text : texts) {
        RegistryFile registry(name);
        registry.AddKey(u"HKEY_USERS\\A");
        registry.SetText(u"HKEY_USERS\\A", text, text);
        registry.Save();
        EXPECT_EQ(TextOf(RegistryFile(name), u"HKEY_USERS\\A", text), text) << ToUtf8(text);
    }
}

TEST_F(TextRegistry, NamesOfKeysAndValuesIgnoreCase) {
    RegistryFile registry = Registry(std::string(heading) + "\n[HKEY_CURRENT_USER\\Software\\Één]\n\"Naam\"=\"x\"\n");
    EXPECT_TRUE(registry.HasKey(u"hkey_current_user\\SOFTWARE\\ÉÉN"));
    EXPECT_EQ(TextOf(registry, u"HKEY_CURRENT_USER\\software\\één", u"NAAM"), u"x");
    registry.SetText(u"HKEY_CURRENT_USER\\software\\één", u"naam", u"y");
    EXPECT_EQ(Saved(registry), std::string(heading) + "\n[HKEY_CURRENT_USER\\Software\\Één]\n\"naam\"=\"y\"\n");
}

TEST_F(TextRegistry, AKeyIsThereWhenAKeyBelowItIs) {
    const RegistryFile registry =
        Registry(std::string(heading) + "[HKEY_CURRENT_USER\\Software\\LISTECH\\LISCAD\\5.1]\n");
    EXPECT_TRUE(registry.HasKey(u"HKEY_CURRENT_USER\\Software"));
    EXPECT_TRUE(registry.HasKey(u"HKEY_CURRENT_USER\\Software\\LISTECH\\LISCAD\\5.1"));
    EXPECT_FALSE(registry.HasKey(u"HKEY_CURRENT_USER\\Soft"));
    EXPECT_FALSE(registry.HasKey(u"HKEY_CURRENT_USER\\Software\\LISTECH\\LISCAD\\5.1\\SEE"));
    EXPECT_FALSE(registry.HasKey(u"HKEY_LOCAL_MACHINE\\Software"));
}

TEST_F(TextRegistry, AKeyThatIsThereIsNotAddedAgain) {
    RegistryFile registry = Registry(std::string(heading) + "\n[HKEY_USERS\\A\\B]\n");
    registry.AddKey(u"HKEY_USERS\\a\\b");
    registry.AddKey(u"HKEY_USERS\\A");
    EXPECT_EQ(Saved(registry), std::string(heading) + "\n[HKEY_USERS\\A\\B]\n");
}

TEST_F(TextRegistry, SubkeysComeInOrderOfFirstOccurrence) {
    const RegistryFile registry = Registry(std::string(heading) +
                                           "[HKEY_USERS\\A\\4.0\\SEE]\n"
                                           "[HKEY_USERS\\A\\RELEASE]\n"
                                           "[HKEY_USERS\\A]\n"
                                           "[HKEY_USERS\\a\\Release\\SEE]\n"
                                           "[HKEY_USERS\\AB\\9.9]\n"
                                           "[HKEY_USERS\\A\\5.1]\n");
    EXPECT_EQ(registry.SubKeys(u"HKEY_USERS\\A"), (std::vector<Text>{u"4.0", u"RELEASE", u"5.1"}));
    EXPECT_EQ(registry.SubKeys(u"HKEY_USERS"), (std::vector<Text>{u"A", u"AB"}));
    EXPECT_TRUE(registry.SubKeys(u"HKEY_USERS\\A\\5.1").empty());
}

TEST_F(TextRegistry, TextsAndDoubleWordsAreUnderstood) {
    const RegistryFile registry = Registry(std::string(heading) +
                                           "[HKEY_USERS\\A]\n"
                                           "\"tekst\"=\"waarde\"\n"
                                           "  \"ruim\"  =  \"waarde \"  \n"
                                           "@=\"standaard\"\n"
                                           "\"getal\"=dword:0000001f\n"
                                           "\"groot\"=dword:FFFFFFFF\n");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\A", u"tekst"), u"waarde");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\A", u"ruim"), u"waarde ");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\A", u""), u"standaard");
    EXPECT_EQ(registry.FindValue(u"HKEY_USERS\\A", u"getal")->type, RegValueType::DoubleWord);
    EXPECT_EQ(registry.FindValue(u"HKEY_USERS\\A", u"getal")->doubleWord, 31U);
    EXPECT_EQ(registry.FindValue(u"HKEY_USERS\\A", u"groot")->doubleWord, 0xFFFFFFFFU);
}

TEST_F(TextRegistry, OtherValuesAreThereButNotUnderstood) {
    const RegistryFile registry = Registry(std::string(heading) +
                                           "[HKEY_USERS\\A]\n"
                                           "\"bytes\"=hex:01,02,\\\n"
                                           "  03,04\n"
                                           "\"uit\"=hex(2):41,00,00,00\n"
                                           "\"fout\"=dword:xyz\n"
                                           "\"lang\"=dword:123456789\n"
                                           "\"open\"=\"zonder einde\n"
                                           "\"meer\"=\"tekst\" en meer\n");
    for (const char16_t* value : {u"bytes", u"uit", u"fout", u"lang", u"open", u"meer"}) {
        ASSERT_TRUE(registry.FindValue(u"HKEY_USERS\\A", value)) << ToUtf8(value);
        EXPECT_EQ(registry.FindValue(u"HKEY_USERS\\A", value)->type, RegValueType::Other) << ToUtf8(value);
    }
}

TEST_F(TextRegistry, WhatIsNotUnderstoodStaysInTheFile) {
    const std::string lines = std::string(heading) +
                              "; een opmerking\n"
                              "\"zonder sleutel\"=\"x\"\n"
                              "\n"
                              "[HKEY_USERS\\A]\n"
                              "onzin\n"
                              "\"bytes\"=hex:01,02,\\\n"
                              "  03,04\n"
                              "\n"
                              "[-HKEY_USERS\\B]\n"
                              "\"x\"=\"y\"\n";
    RegistryFile registry = Registry(lines);
    EXPECT_EQ(Saved(registry), lines);
    registry.SetText(u"HKEY_USERS\\A", u"nieuw", u"z");
    std::string expected = lines;
    expected.insert(expected.find("\n[-HKEY"), "\"nieuw\"=\"z\"\n");
    EXPECT_EQ(Saved(registry), expected);
    EXPECT_FALSE(registry.HasKey(u"HKEY_USERS\\B"));
}

TEST_F(TextRegistry, ATextTakesThePlaceOfAValueOverSeveralLines) {
    RegistryFile registry = Registry(std::string(heading) +
                                     "[HKEY_USERS\\A]\n"
                                     "\"bytes\"=hex:01,02,\\\n"
                                     "  03,04,\\\n"
                                     "  05\n"
                                     "\"pad\"=\"C:\\\\\"\n"
                                     "\"na\"=\"x\"\n");
    registry.SetText(u"HKEY_USERS\\A", u"bytes", u"tekst");
    registry.SetText(u"HKEY_USERS\\A", u"pad", u"D:\\");
    EXPECT_EQ(Saved(registry), std::string(heading) +
                                   "[HKEY_USERS\\A]\n"
                                   "\"bytes\"=\"tekst\"\n"
                                   "\"pad\"=\"D:\\\\\"\n"
                                   "\"na\"=\"x\"\n");
}

TEST_F(TextRegistry, OfAValueThatOccursTwiceTheLastHolds) {
    RegistryFile registry = Registry(std::string(heading) +
                                     "[HKEY_USERS\\A]\n\"v\"=\"1\"\n\"v\"=\"2\"\n"
                                     "[HKEY_USERS\\B]\n\"v\"=\"9\"\n"
                                     "[HKEY_USERS\\A]\n\"v\"=\"3\"\n");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\A", u"v"), u"3");
    registry.SetText(u"HKEY_USERS\\A", u"v", u"4");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\A", u"v"), u"4");
    EXPECT_EQ(TextOf(registry, u"HKEY_USERS\\B", u"v"), u"9");
}

TEST_F(TextRegistry, AValueOfAKeyThatNoLineNamesGetsOne) {
    RegistryFile registry = Registry(std::string(heading) + "[HKEY_USERS\\A\\B]\n");
    registry.SetText(u"HKEY_USERS\\A", u"v", u"1");
    EXPECT_EQ(Saved(registry), std::string(heading) + "[HKEY_USERS\\A\\B]\n\n[HKEY_USERS\\A]\n\"v\"=\"1\"\n");
}

TEST_F(TextRegistry, AFileInTheSystemsOwnEncodingIsRead) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t c : Text(u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_USERS\\A]\r\n\"v\"=\"é€\"\r\n")) {
        bytes.push_back(static_cast<char>(c & 0xFF));
        bytes.push_back(static_cast<char>(c >> 8));
    }
    EXPECT_EQ(TextOf(RegistryFile(folder.Write("registry.reg", bytes)), u"HKEY_USERS\\A", u"v"), u"é€");
}

TEST_F(TextRegistry, AByteOrderMarkAndBareLineFeedsAreRead) {
    const Text file =
        folder.Write("registry.reg", "\xEF\xBB\xBF" + std::string(heading) + "[HKEY_USERS\\A]\n\"v\"=\"é\"");
    EXPECT_EQ(TextOf(RegistryFile(file), u"HKEY_USERS\\A", u"v"), u"é");
}

TEST_F(TextRegistry, AFileWithoutAnyTextIsAnEmptyRegistry) {
    RegistryFile registry = Registry("\n \n");
    registry.AddKey(u"HKEY_USERS\\A");
    EXPECT_EQ(Saved(registry), std::string(heading) + "\n[HKEY_USERS\\A]\n");
}

TEST_F(TextRegistry, AnotherFileIsNoRegistry) {
    EXPECT_THROW(Registry("[NEN1878]\nSUFNENFile = KAART.SFN\n"), RuntimeError);
    EXPECT_THROW(Registry("REGEDIT4\n"), RuntimeError);
    EXPECT_THROW(RegistryFile(folder / ""), RuntimeError);
    EXPECT_THROW(RegistryFile{NullDevice()}, RuntimeError);
}

TEST_F(TextRegistry, ASaveThatFailsLeavesNothingBehind) {
    EXPECT_THROW(RegistryFile(folder / "geen map/registry.reg").Save(), RuntimeError);
    const RegistryFile registry(name);
    std::filesystem::create_directory(folder.Path() + "/registry.reg");
    EXPECT_THROW(registry.Save(), RuntimeError);
    EXPECT_EQ(folder.Listing(), "registry.reg");
}

}  // namespace

}  // namespace korvande::testing
