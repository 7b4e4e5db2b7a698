#include "project/OwnerBoxes.h"
#include "project/OwnerRecord.h"

#include "tests/project/ProjectTest.h"

namespace korvande::testing {

namespace {

class OwnerRecord : public ProjectTest {};

TEST_F(OwnerRecord, OnlyTheFirstResetFillsIt) {
    EXPECT_EQ(owner.NameLong, MakeFixedText<35>(u"VOSAIZO ZANDERVIK B.V."));
    EXPECT_EQ(owner.NameShort, MakeFixedText<8>(u"VOSAIZO"));
    EXPECT_EQ(owner.Street, MakeFixedText<24>(u"POSTBUS"));
    EXPECT_EQ(owner.Number, MakeFixedText<5>(u"418"));
    EXPECT_EQ(owner.Extra, MakeFixedText<5>(u""));
    EXPECT_EQ(owner.ZipCode, MakeFixedText<6>(u"7391KX"));
    EXPECT_EQ(owner.Town, MakeFixedText<24>(u"MOLVEREN"));
    EXPECT_EQ(owner.Source, MakeFixedText<5>(u""));
    owner.NameLong = u"";
    owner.Town = u"ELDERS";
    ResetProject(project);
    EXPECT_TRUE(owner.NameLong.IsBlank());
    EXPECT_EQ(owner.Town.TrimmedRight(), u"ELDERS");
}

TEST_F(OwnerRecord, TheBoxesShowItWithoutTrailingBlanks) {
    EXPECT_EQ(options.txtNameLong, u"VOSAIZO ZANDERVIK B.V.");
    EXPECT_EQ(options.txtSuffix, u"");
    owner.ZipCode = u" 12";
    ShowOwner(owner, options);
    EXPECT_EQ(options.txtZipcode, u" 12");
}

// Each box with a text of its own, longer than its field.
constexpr Text Options::*boxes[] = {&Options::txtNameLong, &Options::txtNameShort, &Options::txtStreet,
                                    &Options::txtNumber,   &Options::txtSuffix,    &Options::txtZipcode,
                                    &Options::txtCity,     &Options::txtSource};

TEST_F(OwnerRecord, TheBoxesAreTakenIntoTheirFieldsAndCut) {
    char16_t letter = u'a';
    for (Text Options::*const box : boxes) options.*box = Text(40, letter++);
    TakeOwner(options, owner);
    EXPECT_EQ(owner.NameLong.View(), Text(35, u'a'));
    EXPECT_EQ(owner.NameShort.View(), Text(8, u'b'));
    EXPECT_EQ(owner.Street.View(), Text(24, u'c'));
    EXPECT_EQ(owner.Number.View(), Text(5, u'd'));
    EXPECT_EQ(owner.Extra.View(), Text(5, u'e'));
    EXPECT_EQ(owner.ZipCode.View(), Text(6, u'f'));
    EXPECT_EQ(owner.Town.View(), Text(24, u'g'));
    EXPECT_EQ(owner.Source.View(), Text(5, u'h'));
}

TEST_F(OwnerRecord, ABoxesFieldTakesBytesAndNoOtherFieldDoes) {
    for (Text Options::*const box : boxes) {
        BeginAnew();
        const std::vector<std::string> before = State();
        TakeOwnerField(owner, box, "\xC9\xE9n");
        ShowOwner(owner, options);
        EXPECT_EQ(options.*box, u"Één");
        const std::string differences = Differences(before, State());
        EXPECT_EQ(std::count(differences.begin(), differences.end(), ';'), 1) << differences;  // the field and its box
    }
}

TEST_F(OwnerRecord, ASourceIsMadeOfTheShortNameAndElseOfTheLongOneOnlyWhenThereIsNone) {
    owner.Source = u" ab";
    FillSource(owner);
    EXPECT_EQ(owner.Source.View(), u"ab   ");
    owner.Source = u"";
    owner.NameShort = u"één ding";
    FillSource(owner);
    EXPECT_EQ(owner.Source.View(), u"ÉÉN D");
    owner.Source = u"";
    owner.NameShort = u"";
    owner.NameLong = u"landmeters";
    FillSource(owner);
    EXPECT_EQ(owner.Source.View(), u"LANDM");
}

TEST_F(OwnerRecord, TheNameThatASourceIsMadeOfBecomesCapitalsItself) {
    owner.Source = u"";
    owner.NameShort = u"één ding";
    owner.NameLong = u"Landmeters";
    FillSource(owner);
    EXPECT_EQ(owner.NameShort.View(), u"ÉÉN DING");
    EXPECT_EQ(owner.NameLong.TrimmedRight(), u"Landmeters");
    owner.Source = u"";
    owner.NameShort = u"";
    FillSource(owner);
    EXPECT_EQ(owner.NameLong.TrimmedRight(), u"LANDMETERS");
    owner.Source = u"x";
    owner.NameLong = u"Landmeters";
    FillSource(owner);
    EXPECT_EQ(owner.NameLong.TrimmedRight(), u"Landmeters");
}

}  // namespace

}  // namespace korvande::testing
