#include "translation/Mode.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace korvande::testing {
namespace {

Text Wide(std::string_view text) { return Text(text.begin(), text.end()); }

TEST(Mode, TheListNamesTheFourTranslations) {
    const struct {
        Mode mode;
        TextView text;
        std::string_view shortName;
        TextView commandLineText;
        TextView extension;
        TextView derivedExtension;
    } expected[] = {
        {{Direction::FromIdex, Variant::Nen1878},
         u"IDEX >> NEN1878",
         "idex-nen1878",
         u"Export NEN1878",
         u"sfn",
         u"SFN"},
        {{Direction::FromIdex, Variant::Suf2}, u"IDEX >> SUF2", "idex-suf2", u"Export SUF2", u"sf2", u"SFN"},
        {{Direction::ToIdex, Variant::Nen1878}, u"NEN1878 >> IDEX", "nen1878-idex", u"Import NEN1878", u"idx", u"IDX"},
        {{Direction::ToIdex, Variant::Suf2}, u"SUF2 >> IDEX", "suf2-idex", u"Import SUF2", u"idx", u"IDX"}};
    ASSERT_EQ(modes.size(), std::size(expected));
    for (std::size_t i = 0; i < modes.size(); ++i) {
        EXPECT_EQ(modes[i].mode, expected[i].mode);
        EXPECT_EQ(modes[i].text, expected[i].text);
        EXPECT_EQ(modes[i].shortName, expected[i].shortName);
        EXPECT_EQ(modes[i].commandLineText, expected[i].commandLineText);
        EXPECT_EQ(modes[i].extension, expected[i].extension);
        EXPECT_EQ(modes[i].derivedExtension, expected[i].derivedExtension);
    }
}

TEST(Mode, NoModeAndNoNameOccursTwice) {
    std::set<Text> names;
    for (const ModeNames& entry : modes) {
        EXPECT_TRUE(names.insert(Text(entry.text)).second);
        EXPECT_TRUE(names.insert(Wide(entry.shortName)).second);
        EXPECT_TRUE(names.insert(Text(entry.commandLineText)).second);
        for (const ModeNames& other : modes) EXPECT_EQ(entry.mode == other.mode, &entry == &other);
    }
}

TEST(Mode, TheDirectionsHaveTheNumbersOfACommandLine) {
    EXPECT_EQ(static_cast<int>(Direction::ToIdex), 1);
    EXPECT_EQ(static_cast<int>(Direction::FromIdex), 2);
    EXPECT_EQ(Mode().direction, Direction::None);
}

TEST(Mode, EachIsFoundByItsTextItsShortNameAndItsCommandLineText) {
    for (const ModeNames& entry : modes) {
        EXPECT_EQ(FindMode(entry.text), entry.mode);
        EXPECT_EQ(FindMode(Wide(entry.shortName)), entry.mode);
        EXPECT_EQ(FindMode(entry.commandLineText), entry.mode);
    }
}

TEST(Mode, NothingElseIsFound) {
    for (const TextView name : {u"",
                                u" ",
                                u"IDEX",
                                u"NEN1878",
                                u"SUF2",
                                u"idex >> nen1878",
                                u"IDEX >> NEN1878 ",
                                u" IDEX >> SUF2",
                                u"IDEX>>SUF2",
                                u"IDEX-SUF2",
                                u"idex-suf",
                                u"idex-suf22",
                                u"export nen1878",
                                u"Export",
                                u"Import SUF",
                                u"sfn",
                                u"IDEX >> IDEX",
                                u"NEN1878 >> SUF2",
                                u"\u0169dex-suf2",
                                u"idex\u022Dsuf2"}) {
        EXPECT_FALSE(FindMode(name).has_value()) << ToUtf8(name);
    }
    for (const ModeNames& entry : modes) {
        EXPECT_FALSE(FindMode(Text(entry.text.substr(1))).has_value());
        EXPECT_FALSE(FindMode(Wide(entry.shortName) + u'\0').has_value());
    }
}

TEST(Mode, NamesAreThoseOfItsEntry) {
    for (const ModeNames& entry : modes) EXPECT_EQ(&NamesOf(entry.mode), &entry);
}

TEST(Mode, ItReadsIdexOrTheFormatOfItsVariant) {
    EXPECT_EQ(InputFormat({Direction::FromIdex, Variant::Nen1878}), Format::Idex);
    EXPECT_EQ(InputFormat({Direction::FromIdex, Variant::Suf2}), Format::Idex);
    EXPECT_EQ(InputFormat({Direction::ToIdex, Variant::Nen1878}), Format::Nen1878);
    EXPECT_EQ(InputFormat({Direction::ToIdex, Variant::Suf2}), Format::Suf2);
}

TEST(Mode, AFormatIsReadByAModeOfTheList) {
    EXPECT_EQ(ModeReading(Format::Idex), (Mode{Direction::FromIdex, Variant::Nen1878}));
    EXPECT_EQ(ModeReading(Format::Nen1878), (Mode{Direction::ToIdex, Variant::Nen1878}));
    EXPECT_EQ(ModeReading(Format::Suf2), (Mode{Direction::ToIdex, Variant::Suf2}));
    for (const Format format : {Format::Idex, Format::Nen1878, Format::Suf2}) {
        EXPECT_EQ(InputFormat(ModeReading(format)), format);
    }
}

TEST(Mode, FormatsHaveTheNamesThatTheModesAreMadeOf) {
    EXPECT_EQ(NameOf(Format::Idex), u"IDEX");
    EXPECT_EQ(NameOf(Format::Nen1878), u"NEN1878");
    EXPECT_EQ(NameOf(Format::Suf2), u"SUF2");
    for (const ModeNames& entry : modes) {
        EXPECT_TRUE(entry.text.starts_with(Concat(NameOf(InputFormat(entry.mode)), u" >> "))) << ToUtf8(entry.text);
    }
}

}  // namespace
}  // namespace korvande::testing
