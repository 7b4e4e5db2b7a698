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

void Fill(Generator& generator, int size) {
    constexpr TextView lineTypes[] = {u"STRAIGHT", u"CURVE", u"ARC_CENT", u"TWELVE_CHARS"};
    const int points = generator.Between(1, size);
    for (int i = 0; i < points; ++i) {
        const double height = generator.OneIn(3) ? 0 : generator.Number(500);
        AddPoint({generator.Value(9), generator.Number(999'999), generator.Number(9'999'999), height,
                  generator.Value(7), generator.Value(80), generator.Direction()});
    }
    const int lines = generator.Below(size);
    for (int i = 0; i < lines; ++i) {
        if (generator.OneIn(5)) TheDrawing().Lines.Append();
        AddLine(generator.Value(7), generator.Below(65'536), generator.Below(65'536));
    }
    // Edges stand inside the lines table, so that without lines there is no place for them.
    const int edges = lines == 0 ? 0 : generator.Below(2 * size);
    for (int i = 0; i < edges; ++i) {
        AddEdge(generator.Between(-1, lines + 1), generator.Between(1, points), generator.Between(1, points),
                lineTypes[generator.Below(4)]);
    }
    const int texts = generator.Below(size);
    for (int i = 0; i < texts; ++i) {
        AddText(generator.Between(1, points), generator.Value(47), static_cast<std::int16_t>(generator.Between(1, 9)),
                static_cast<float>(generator.Direction()));
    }
}

// The objects of the drawing, to be compared with it after it has been filled anew.
struct Objects {
    std::vector<PointRec> points;
    std::vector<LineRec> lines;
    std::vector<EdgeRec> edges;
    std::vector<TextRec> texts;
};

template <class Record>
std::vector<Record> Copied(const PagedArray<Record>& records) {
    std::vector<Record> copies;
    for (std::int32_t index = 1; index <= records.UpperBound(); ++index) copies.push_back(records[index]);
    return copies;
}

Objects CopyOfDrawing() {
    const Drawing& drawing = TheDrawing();
    return {Copied(drawing.Points), Copied(drawing.Lines), Copied(drawing.Edges), Copied(drawing.Texts)};
}

// What a value comes back as: between quotes a quote and a terminator cannot stand.
Text Returned(TextView value) {
    Text returned(value);
    for (char16_t& character : returned) character = character == u'"' ? u'\'' : character == u';' ? u',' : character;
    return returned;
}
Text ReturnedInCapitals(TextView value) { return ToCapitals(Returned(value)); }

void ExpectPoint(const PointRec& before, const PointRec& after, std::int32_t index) {
    constexpr double half = 0.0000501;
    EXPECT_EQ(after.PointNo, index);
    EXPECT_EQ(Text(after.PointID.TrimmedRight()), ReturnedInCapitals(before.PointID.Trimmed()));
    EXPECT_NEAR(after.East, before.East, half);
    EXPECT_NEAR(after.North, before.North, half);
    EXPECT_NEAR(after.Elevation, before.Elevation, half);
    EXPECT_NEAR(after.SymDir, before.SymDir, half);
    EXPECT_EQ(Text(after.Code.TrimmedRight()), ReturnedInCapitals(before.Code.TrimmedRight()));
    EXPECT_EQ(Text(after.Description.TrimmedRight()), ReturnedInCapitals(before.Description.TrimmedRight()));
}

void ExpectLine(const LineRec& before, const LineRec& after) {
    const TextView code = before.Code.NeverFilled() ? TextView() : before.Code.Trimmed();
    EXPECT_EQ(Text(after.Code.TrimmedRight()), ReturnedInCapitals(code));
    EXPECT_TRUE(after.Description.IsBlank());
    EXPECT_EQ(after.Flags1, before.Flags1);
    EXPECT_EQ(after.Flags2, before.Flags2);
}

void ExpectText(const TextRec& before, const TextRec& after) {
    EXPECT_EQ(after.AnchorPointNo, before.AnchorPointNo);
    EXPECT_EQ(after.AnchorPosition, before.AnchorPosition);
    EXPECT_NEAR(after.HzDirection, before.HzDirection, 0.0006);
    EXPECT_EQ(Text(after.Code.TrimmedRight()), u"STNDRD");
    EXPECT_EQ(Text(after.Text.TrimmedRight()), Returned(before.Text.Trimmed()));
}

void ExpectObjects(const Objects& before, const Objects& after) {
    ASSERT_EQ(after.points.size(), before.points.size());
    for (std::size_t i = 0; i < before.points.size(); ++i) {
        ExpectPoint(before.points[i], after.points[i], static_cast<std::int32_t>(i) + 1);
    }
    ASSERT_EQ(after.lines.size(), before.lines.size());
    for (std::size_t i = 0; i < before.lines.size(); ++i) ExpectLine(before.lines[i], after.lines[i]);
    ASSERT_EQ(after.edges.size(), before.edges.size());
    for (std::size_t i = 0; i < before.edges.size(); ++i) {
        EXPECT_EQ(after.edges[i].LineNo, before.edges[i].LineNo);
        EXPECT_EQ(after.edges[i].StartPt, before.edges[i].StartPt);
        EXPECT_EQ(after.edges[i].EndPt, before.edges[i].EndPt);
        EXPECT_EQ(after.edges[i].LineType, before.edges[i].LineType);
    }
    ASSERT_EQ(after.texts.size(), before.texts.size());
    for (std::size_t i = 0; i < before.texts.size(); ++i) ExpectText(before.texts[i], after.texts[i]);
}

class IdexRoundTrip : public IdexWriterTest {
 protected:
    void ExpectDrawingBack(unsigned seed, int size) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        ResetDrawing();
        Generator generator(seed);
        Fill(generator, size);
        const Objects before = CopyOfDrawing();
        ASSERT_EQ(Read(Write()), "");
        ExpectObjects(before, CopyOfDrawing());
        // What a file has brought comes back as it is.
        const std::string again = Write();
        ASSERT_EQ(Read(again), "");
        EXPECT_EQ(Write(), again);
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

TEST_F(IdexRoundTrip, TheNameOfTheProjectComesBackBetweenItsQuotes) {
    TheRun().ProjectName = u"Blad \"3\"; Oost";
    ASSERT_EQ(Read(Write()), "");
    EXPECT_EQ(ToUtf8(drawing.DrawingName), "\"BLAD '3', OOST\"");
}

}  // namespace

}  // namespace korvande::testing
