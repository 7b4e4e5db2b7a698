#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportSources : public ImportTest {
 protected:
    // Of a line of the input: date, name, kind and status, with "-" for what is not told.
    std::string SourceAt(std::int32_t line) const {
        const ObjectSources& sources = translation.drawing.Sources;
        const ObjectSource& source = sources[sources.At(line)];
        return TextOf(source.date) + " " + TextOf(source.name) + " " + TextOf(source.kind) + " " +
               TextOf(source.status);
    }

 private:
    template <std::size_t N>
    static std::string TextOf(const FixedBytes<N>& text) {
        return text.NeverFilled() ? "-" : std::string(text.Trimmed());
    }
};

TEST_F(ImportSources, APointHasWhatItsFieldsTell) {
    Import(Group("03", Field('M', "P10") + Field('G', "010131   ") + Field('D', " 20240514") + Field('B', "VOSAI 0")) +
           Geometry(At(1000, 2000)));
    EXPECT_EQ(SourceAt(translation.drawing.Points[1].InputLine), "20240514 VOSAI 3 1");
}

TEST_F(ImportSources, AGroupThatTellsNothingHasNothingOfTheOneBefore) {
    Import(Group("03", Field('M', "P10") + Field('D', " 20240514")) + Point("P10", At(1000, 2000)) +
           Group("03", Field('M', "P10") + Field('G', "01")) + Geometry(At(3000, 4000)));
    EXPECT_EQ(SourceAt(translation.drawing.Points[2].InputLine).substr(0, 3), "- -");
}

TEST_F(ImportSources, TheHeadOfATextTellsItsSourceAndItsPlacementTheStatus) {
    Import(Group("03", Field('M', "Z10") + Field(' ', "    41") + Field('D', " 20240514")) +
           Placement("521", "Z10", At(1000, 2000)) + TextRecord("Naam"));
    ASSERT_EQ(translation.drawing.Texts.UpperBound(), 1);
    EXPECT_EQ(SourceAt(translation.drawing.Texts[1].InputLine), "20240514 - 4 2");
}

TEST_F(ImportSources, TheOwnerIsTheNameOf35CharactersInThe07Record) {
    const std::string name = "GEMEENTE DE KOPEL, GEO & VASTGOED X";
    Import(Record("07N" + name + "Y             KKORT    ", "00") + Record("07WDE KOPEL"));
    EXPECT_EQ(ToUtf8(translation.OwnerName), name);
    Import("");
    EXPECT_EQ(translation.OwnerName, u"");
}

}  // namespace

}  // namespace korvande::testing
