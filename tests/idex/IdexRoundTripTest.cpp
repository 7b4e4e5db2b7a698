#include <cmath>
#include <random>

#include "tests/idex/IdexWriterTest.h"

namespace korvande::testing {

namespace {

// Values for drawings, the same from the same seed.
class Generator {
 public:
    explicit Generator(unsigned seed) : random(seed) {}

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool OneIn(int count) { return Below(count) == 0; }
    double Number(double limit) { return limit * (static_cast<double>(random()) / 2147483648.0 - 1); }
    double Direction() { return std::fabs(Number(400)); }

    // A text of up to `longest` of these characters, blanks and structure of the format among them.
    Text Value(std::size_t longest) {
        constexpr TextView characters = u"ABCxyz0189 ,;\"'()/.-#\tÀéÿßŒ€µ";
        Text value(static_cast<std::size_t>(Below(static_cast<int>(longest) + 1)), u' ');
        for (char16_t& character : value) {
            character = characters[static_cast<std::size_t>(Below(static_cast<int>(characters.size())))];
        }
        return value;
    }

 private:
    std::mt19937 random;
};

void Fill(Drawing& drawing, Generator& generator, int size) {
    constexpr TextView lineTypes[] = {u"STRAIGHT", u"CURVE", u"ARC_CENT", u"TWELVE_CHARS"};
    const int points = generator.Between(1, size);
    for (int i = 0; i < points; ++i) {
        const double height = generator.OneIn(3) ? 0 : generator.Number(500);
        AddPoint(drawing, {generator.Value(9), generator.Number(999'999), generator.Number(9'999'999), height,
                           generator.Value(7), generator.Value(80), generator.Direction()});
    }
    const int lines = generator.Below(size);
    for (int i = 0; i < lines; ++i) {
        if (generator.OneIn(5)) drawing.Lines.Append();
        AddLine(drawing, generator.Value(7), generator.Below(65'536), generator.Below(65'536));
    }
    // Edges stand inside the lines table, so that without lines there is no place for them.
    const int edges = lines == 0 ? 0 : generator.Below(2 * size);
    for (int i = 0; i < edges; ++i) {
        AddEdge(drawing, generator.Between(-1, lines + 1), generator.Between(1, points), generator.Between(1, points),
                lineTypes[generator.Below(4)]);
    }
    const int texts = generator.Below(size);
    for (int i = 0; i < texts; ++i) {
        AddText(drawing, generator.Between(1, points), generator.Value(47),
                static_cast<std::int16_t>(generator.Between(1, 9)), static_cast<float>(generator.Direction()));
    }
}

// What a value comes back as: between quotes a quote and a terminator cannot stand.
Text Returned(TextView value) {
    Text returned(value);
    for (char16_t& character : returned) character = character == u'"' ? u'\'' : character == u';' ? u',' : character;
    return returned;
}
Text ReturnedInCapitals(TextView value) { return ToCapitals(Returned(value)); }

void ExpectPoints(const Drawing& before, const Drawing& after) {
    constexpr double half = 0.0000501;
    ASSERT_EQ(after.Points.UpperBound(), before.Points.UpperBound());
    for (std::int32_t index = 1; index <= before.Points.UpperBound(); ++index) {
        const PointRec& was = before.Points[index];
        const PointRec& is = after.Points[index];
        EXPECT_EQ(is.PointNo, index);
        EXPECT_EQ(Text(is.PointID().TrimmedRight()), ReturnedInCapitals(was.PointID().Trimmed()));
        EXPECT_NEAR(is.East, was.East, half);
        EXPECT_NEAR(is.North, was.North, half);
        EXPECT_NEAR(is.Elevation, was.Elevation, half);
        EXPECT_NEAR(is.SymDir, was.SymDir, half);
        EXPECT_EQ(Text(after.Code(is).TrimmedRight()), ReturnedInCapitals(before.Code(was).TrimmedRight()));
        EXPECT_EQ(Text(after.Description(is).TrimmedRight()),
                  ReturnedInCapitals(before.Description(was).TrimmedRight()));
    }
}

void ExpectLines(const Drawing& before, const Drawing& after) {
    ASSERT_EQ(after.Lines.UpperBound(), before.Lines.UpperBound());
    for (std::int32_t lineNo = 1; lineNo <= before.Lines.UpperBound(); ++lineNo) {
        const LineRec& was = before.Lines[lineNo];
        const LineRec& is = after.Lines[lineNo];
        const auto& code = before.Code(was);
        EXPECT_EQ(Text(after.Code(is).TrimmedRight()),
                  code.NeverFilled() ? Text() : ReturnedInCapitals(code.Trimmed()));
        EXPECT_TRUE(after.Description(is).IsBlank());
        EXPECT_EQ(is.Flags1, was.Flags1);
        EXPECT_EQ(is.Flags2, was.Flags2);
    }
}

void ExpectEdges(const Drawing& before, const Drawing& after) {
    ASSERT_EQ(after.Edges.UpperBound(), before.Edges.UpperBound());
    for (std::int32_t index = 1; index <= before.Edges.UpperBound(); ++index) {
        const EdgeRec& was = before.Edges[index];
        const EdgeRec& is = after.Edges[index];
        EXPECT_EQ(is.LineNo, was.LineNo);
        EXPECT_EQ(is.StartPt, was.StartPt);
        EXPECT_EQ(is.EndPt, was.EndPt);
        EXPECT_EQ(after.LineType(is), before.LineType(was));
    }
}

void ExpectTexts(const Drawing& before, const Drawing& after) {
    ASSERT_EQ(after.Texts.UpperBound(), before.Texts.UpperBound());
    for (std::int32_t index = 1; index <= before.Texts.UpperBound(); ++index) {
        const TextRec& was = before.Texts[index];
        const TextRec& is = after.Texts[index];
        EXPECT_EQ(is.AnchorPointNo, was.AnchorPointNo);
        EXPECT_EQ(is.AnchorPosition, was.AnchorPosition);
        EXPECT_NEAR(is.HzDirection, was.HzDirection, 0.0006);
        EXPECT_EQ(Text(after.Code(is).TrimmedRight()), u"STNDRD");
        EXPECT_EQ(Text(is.Characters().TrimmedRight()), Returned(was.Characters().Trimmed()));
    }
}

void ExpectObjects(const Drawing& before, const Drawing& after) {
    ExpectPoints(before, after);
    ExpectLines(before, after);
    ExpectEdges(before, after);
    ExpectTexts(before, after);
}

// Every byte of an array's records, element 0 among them.
template <class Record>
std::string BytesOf(const PagedArray<Record>& records) {
    std::string bytes;
    for (std::int32_t index = 0; index <= records.UpperBound(); ++index) {
        bytes.append(reinterpret_cast<const char*>(&records[index]), sizeof(Record));
    }
    return bytes;
}

class IdexRoundTrip : public IdexWriterTest {
 protected:
    // Writes a drawing and reads it with another translation.
    void ExpectDrawingBack(unsigned seed, int size) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ResetDrawing(drawing);
        Generator generator(seed);
        Fill(drawing, generator, size);
        Translation back(screen);
        // Any bytes may stand in the texts, such as those of UTF-8.
        back.options.cboCharacterSet = characterSetNames[1];
        ASSERT_EQ(ReadInto(back, Write()), "");
        ExpectObjects(drawing, back.drawing);
        for (const Text& line : back.problems.Lines(ProblemList::Loss)) ADD_FAILURE() << ToUtf8(line);
        // What a file has brought comes back as it is.
        const std::string again = WriteOf(back);
        ASSERT_EQ(ReadInto(back, again), "");
        EXPECT_EQ(WriteOf(back), again);
    }
};

TEST_F(IdexRoundTrip, AnySmallDrawingComesBack) {
    for (unsigned seed = 1; seed <= 100 && !HasFailure(); ++seed) ExpectDrawingBack(seed, 12);
}

TEST_F(IdexRoundTrip, ALargeDrawingComesBack) { ExpectDrawingBack(1878, 20'000); }

TEST_F(IdexRoundTrip, AnEmptyDrawingComesBack) {
    ASSERT_EQ(Read(Write()), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    ASSERT_EQ(drawing.LayerNames.size(), 1U);
    EXPECT_EQ(ToUtf8(drawing.LayerNames[0]), "STNDRD");
}

TEST_F(IdexRoundTrip, WritingChangesNoByteOfTheDrawing) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        ResetDrawing(drawing);
        Generator generator(seed);
        Fill(drawing, generator, 50);
        // Names are written without the blanks around them.
        AddPoint(drawing, {u"  7 "});
        AddPoint(drawing, {u"        9"});
        AddLine(drawing, u"  L1 ");
        AddEdge(drawing, 1, drawing.Points.UpperBound() - 1, drawing.Points.UpperBound());
        AddText(drawing, 1, u"  Zuid  ");
        drawing.Points[0].SetPointID(TextView(u" nul"));
        AddEdge(drawing, 1, 0, 0);
        drawing.DrawingName = u" \"KAART\" ";
        drawing.DrawingDate = u"15-05-2024";
        const std::string points = BytesOf(drawing.Points);
        const std::string lines = BytesOf(drawing.Lines);
        const std::string edges = BytesOf(drawing.Edges);
        const std::string texts = BytesOf(drawing.Texts);
        const std::string written = Write();
        EXPECT_NE(written.find(", \"7\","), std::string::npos);
        EXPECT_NE(written.find(",0, \"nul\",0, \"nul\","), std::string::npos);
        EXPECT_EQ(BytesOf(drawing.Points), points) << seed;
        EXPECT_EQ(BytesOf(drawing.Lines), lines) << seed;
        EXPECT_EQ(BytesOf(drawing.Edges), edges) << seed;
        EXPECT_EQ(BytesOf(drawing.Texts), texts) << seed;
        EXPECT_EQ(drawing.PointIndex.UpperBound(), 0) << seed;
        EXPECT_EQ(drawing.DrawingName, u" \"KAART\" ") << seed;
        EXPECT_EQ(drawing.DrawingDate, u"15-05-2024") << seed;
        EXPECT_EQ(Write(), written) << seed;
    }
}

TEST_F(IdexRoundTrip, TheNameOfTheProjectComesBackBetweenItsQuotes) {
    translation.ProjectName = u"Blad \"3\"; Oost";
    ASSERT_EQ(Read(Write()), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "\"BLAD '3', OOST\"");
}

}  // namespace

}  // namespace korvande::testing
