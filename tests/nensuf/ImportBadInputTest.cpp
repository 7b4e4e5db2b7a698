#include <array>
#include <random>
#include <set>

#include "tests/core/Allocations.h"
#include "tests/nensuf/ImportTest.h"

namespace korvande::testing {

namespace {

class ImportBadInput : public ImportTest {
 protected:
    std::string Drawn() { return Points() + Lines() + Edges() + Texts(); }

    // The lines that the log book holds, each once.
    std::set<std::string> LogLines() {
        std::set<std::string> lines;
        const std::string text = LogText();
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find('\n', at);
            lines.insert(text.substr(at, end - at));
            at = end + 1;
        }
        return lines;
    }
};

// An object of every kind, each with all its groups.
std::vector<std::string> SampleObjects() {
    return {Point("P10", N("1") + At(1000, 1000) + At(2000, 2000)),
            Line("B10", N("1") + At(1, 1) + N("2") + At(2, 2) + N("3") + At(3, 3) + N("4") + At(4, 4)),
            Arc("B20", At(0, 10000, 1) + At(10000, 0, 1) + At(0, -10000, 1) + At(9000, -20000, 1) + At(0, -30000, 1)),
            Symbol("P20", N("9") + At(5000, 5000) + At(5000, 6000)),
            Symbol("P20", "") + Geometry(At(7000, 7000)),
            TextGroups("Z10", At(3000, 3000) + At(4000, 3000), "Caf\xE9straat"),
            Placement("311", "Z01", "") + Geometry(At(8000, 8000)) + Record("06A20T1234567Molveren"),
            Point("ONB", At(6000, 6000))};
}

TEST_F(ImportBadInput, AFileCutAtAnyByteBringsWhatStandsBeforeTheCut) {
    // What is drawn behind each object, and where in the file that is.
    std::string bytes = NenHeader() + Record("07NVOSAIZO", "00") + Record("07WMOLVEREN");
    const std::size_t header = NenHeader().size();
    std::vector<std::size_t> ends = {bytes.size()};
    std::vector<std::array<std::string, 4>> drawn(1);
    for (const std::string& object : SampleObjects()) {
        bytes += object;
        ImportBytes(bytes);
        ends.push_back(bytes.size());
        drawn.push_back({Points(), Lines(), Edges(), Texts()});
    }
    ASSERT_TRUE(screen.boxes.empty());
    ASSERT_EQ(translation.drawing.Texts.UpperBound(), 2);
    ASSERT_EQ(translation.drawing.Edges.UpperBound(), 8);
    bytes += Record("99");

    for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
        ImportBytes(std::string_view(bytes).substr(0, cut));
        std::size_t whole = 0;
        while (whole + 1 < ends.size() && ends[whole + 1] <= cut) ++whole;
        EXPECT_TRUE(Points().starts_with(drawn[whole][0])) << cut;
        EXPECT_TRUE(Lines().starts_with(drawn[whole][1])) << cut;
        EXPECT_TRUE(Edges().starts_with(drawn[whole][2])) << cut;
        EXPECT_TRUE(Texts().starts_with(drawn[whole][3])) << cut;
        // A line needs no line end to be a header, and one behind the last record cuts nothing.
        EXPECT_EQ(translation.outcome.wrongFormat, cut < header - 66 + 2) << cut;
        translation.outcome = {};
    }
    EXPECT_EQ(LogLines(), (std::set<std::string>{"FOUT:  NEN1878 bestand bevat geen '01' (KOP) record.",
                                                 "FOUT:  NEN1878 bestand bevat geen '02' (KOP) record.",
                                                 "FOUT:  Punt, 04 record ontbreekt", "FOUT:  Lijn, 04 record ontbreekt",
                                                 "FOUT:  Boog; 04 record ontbreekt", "FOUT:  Ongeldige boog",
                                                 "FOUT:  Tekst, 06 record ontbreekt"}));
}

TEST_F(ImportBadInput, AFileCutAtARecordEndsInTheObjectThatItCuts) {
    const std::string whole =
        NenHeader() + Point("P10", At(1000, 1000)) + Arc("B10", At(0, 10000) + At(10000, 0) + At(0, -10000) + At(1, 1));
    ImportBytes(whole.substr(0, whole.size() - 66));  // the record with the arc's last point
    EXPECT_EQ(translation.drawing.Points.UpperBound(), 4);
    EXPECT_EQ(Edges(), "1: 2-3 ARC_CENT\n1: 3-4 ARC_CENT\n");
    EXPECT_EQ(LogText(), "");
}

std::string Noise(std::mt19937& random, std::size_t length) {
    std::string bytes(length, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

TEST_F(ImportBadInput, NoiseIsNoFileOfTheFormat) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        ImportBytes(Noise(random, 20'000));
        EXPECT_TRUE(translation.outcome.wrongFormat);
        EXPECT_EQ(Drawn(), "");
    }
    EXPECT_EQ(LogLines(), std::set<std::string>{"FOUT:  NEN1878 bestand bevat geen '01' (KOP) record."});
}

TEST_F(ImportBadInput, NoiseBehindObjectsLeavesThemInPlace) {
    Import(SampleObjects()[0] + SampleObjects()[1]);
    const std::string before = Points();
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::mt19937 random(seed);
        ImportBytes(NenHeader() + SampleObjects()[0] + SampleObjects()[1] + Noise(random, 50'000));
        EXPECT_TRUE(Points().starts_with(before)) << seed;
    }
}

TEST_F(ImportBadInput, NoiseInsideRecordsIsReadWithoutHarm) {
    const std::vector<std::string> heads = {Head("P10", "01"), Head("B10", "12"), Head("B10", "13"),
                                            Placement("112", "P20"), Placement("111", "Z10")};
    for (unsigned seed = 1; seed <= 10; ++seed) {
        std::mt19937 random(seed);
        std::string groups;
        for (int i = 0; i < 200; ++i) {
            groups += heads[random() % heads.size()];
            std::string noise = Noise(random, 62);
            for (char& byte : noise) {
                if (byte == '\r' || byte == '\n') byte = 'X';
            }
            groups += (random() % 4 == 0 ? "06" : "04") + noise + "\r\n";
        }
        Import(groups);
    }
    for (const std::string& message : screen.messages) {
        EXPECT_TRUE(message == "04 record ontbreekt" || message == "06 record ontbreekt") << message;
    }
}

// Builds files of groups with everything that can be wrong with them.
class RandomFile {
 public:
    explicit RandomFile(unsigned seed) : random(seed) {}

    std::size_t Below(std::size_t limit) { return random() % limit; }
    bool OneIn(std::size_t chances) { return Below(chances) == 0; }

    std::string Make() {
        std::string file = OneIn(40) ? "" : FirstLine();
        if (!OneIn(40)) file += SecondLine("0102" + std::to_string(Below(4)) + std::to_string(Below(4)));
        for (std::size_t objects = Below(60); objects > 0; --objects) file += Lines(Object());
        return OneIn(3) ? file : file + Record("99", "  ");
    }

 private:
    template <std::size_t count>
    std::string OneOf(const std::array<const char*, count>& texts) {
        return texts[Below(count)];
    }

    std::string Code() {
        return OneOf(std::array{"P10", "P20", "B10", "B20", "Z10", "Z01", "S01", "S02", "S03", "ONB", ""});
    }

    std::string Coordinate(char key) {
        if (OneIn(60)) return Field(key, OneOf(std::array{"abc", "", "1,5", "1.5", "-", "1E2", "12AB"}));
        if (OneIn(3000)) return Field(key, "9E999");
        return Field(key, static_cast<std::int64_t>(Below(40)) * 1000 - 20000);
    }

    std::string Fields() {
        std::string fields;
        for (std::size_t points = Below(8); points > 0; --points) {
            if (OneIn(3)) fields += N(std::to_string(Below(20)));
            if (OneIn(10)) fields += Field('I', OneOf(std::array{"1", "2", "4", "X"}));
            if (!OneIn(20)) fields += Coordinate('X');
            if (!OneIn(20)) fields += Coordinate('Y');
            if (OneIn(4)) fields += Coordinate('Z');
            if (OneIn(20)) fields += Field(static_cast<char>('A' + Below(26)), "");
        }
        return fields;
    }

    std::string GeometryObject() {
        std::string head = OneIn(20) ? "" : Field('M', Code());
        do {
            head += Field('G', OneOf(std::array{"01", "12", "13", " 1", " 3", " 4", "5", "2", "6", ""}));
        } while (OneIn(8));
        std::string object = Group("03", head);
        while (!OneIn(8)) {
            object += Geometry(Fields());
            if (!OneIn(8)) break;
        }
        return object + (OneIn(3) ? Group("05", Field('F', "112") + Fields()) : "");
    }

    std::string PlacementObject() {
        std::string head;
        do {
            head += Field('F', OneOf(std::array{"111", "112", "511", "012A01", "113", "", "X12   Y"}));
        } while (OneIn(8));
        if (!OneIn(10)) head += Field(OneIn(2) ? 'K' : 'Q', Code());
        std::string object = (OneIn(3) ? Group("03", Field('M', Code())) : "") + Group("05", head + Fields());
        if (OneIn(3)) object += Geometry(Fields());
        if (!OneIn(4)) object += Record("06A10T1234567" + std::string(Below(49), 'x'), OneIn(5) ? "00" : "01");
        return object;
    }

    std::string Object() {
        if (OneIn(40)) return Record("07NVOSAIZO", "00") + Record("07WMOLVEREN");
        if (OneIn(40)) return Record(std::to_string(10 + Below(90)) + Fields().substr(0, 60));
        return OneIn(2) ? GeometryObject() : PlacementObject();
    }

    // The lines of groups, some of them lost, cut, lengthened, or with another end code.
    std::string Lines(const std::string& groups) {
        std::string lines;
        for (std::string_view rest = groups; !rest.empty(); rest.remove_prefix(66)) {
            std::string line(rest.substr(0, 64));
            if (OneIn(50)) continue;
            if (OneIn(50)) line.resize(Below(64));
            if (OneIn(50)) line.insert(0, Below(20), '0');
            if (OneIn(50)) line[line.size() / 2] = static_cast<char>(Below(256));
            if (OneIn(20) && line.size() == 64) line.replace(62, 2, "00");
            if (OneIn(20) && !line.empty()) line[0] = ' ';
            lines += line + (OneIn(20) ? "\n" : "\r\n");
        }
        return lines;
    }

    std::mt19937 random;
};

TEST_F(ImportBadInput, RandomFilesBalanceAndSayOnlyWhatIsDescribed) {
    for (const TextView type : {u"S01 A01", u"S01", u"S03"}) AddRow(translation.codes.points, type, type, type);
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        RandomFile file(seed);
        Options& options = translation.options;
        options.chkImportUnknowns = file.OneIn(2);
        options.chkExportUnknowns = file.OneIn(2);
        options.chkImportSymRotation = file.OneIn(2);
        options.chkSelectXY = file.OneIn(3);
        options.txtMinX = options.txtMinY = u"-10";
        options.txtMaxX = options.txtMaxY = u"10";
        translation.mode.variant = file.OneIn(2) ? Variant::Nen1878 : Variant::Suf2;
        screen.answers.clear();
        for (int i = 0; i < 3; ++i) {
            screen.answers.push_back(std::array{Answer::Yes, Answer::No, Answer::Yes, Answer::Cancel}[file.Below(4)]);
        }
        ImportBytes(file.Make());
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
    for (ObjectKind kind : {ObjectKind::Point, ObjectKind::LineString, ObjectKind::Arc, ObjectKind::TextObject}) {
        EXPECT_GT(translation.account[kind].kept, 500);
        EXPECT_GT(translation.account[kind].LeftOutTotal(), 500);
    }

    std::set<std::string> logged;
    for (const std::string& line : LogLines()) {
        logged.insert(line.starts_with("FOUT:  Overloop (regel ") ? "FOUT:  Overloop" : line);
    }
    EXPECT_EQ(logged, (std::set<std::string>{
                          "FOUT:  NEN1878 bestand bevat geen '01' (KOP) record.",
                          "FOUT:  NEN1878 bestand bevat geen '02' (KOP) record.", "FOUT:  Punt, 04 record ontbreekt",
                          "FOUT:  Lijn, 04 record ontbreekt", "FOUT:  Boog; 04 record ontbreekt",
                          "FOUT:  Tekst, 06 record ontbreekt", "FOUT:  Ongeldige boog",
                          "FOUT:  Boog in lijnstring wordt niet ondersteund", "FOUT:  Overloop",
                          "De NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.", "Als SUF2 verder verwerken ?",
                          "De SUF2 file lijkt een NEN1878 bestand te zijn.", "Als NEN1878 verder verwerken ?",
                          "De SUF2 file leek wel eerst een SUF2, maar bevat toch NEN1878 07-headers.",
                          "Toch als SUF2 verder verwerken ?", "==>  Verwerking vervolgd als NEN1878 bestand",
                          "==>  Verwerking vervolgd als SUF2 bestand", "==>  NEN1878 import afgebroken door gebruiker.",
                          "==>  SUF2 import afgebroken door gebruiker."}));
}

TEST_F(ImportBadInput, AnImportAllocatesNothingPerRecord) {
    const auto blocksOf = [this](int times) {
        std::string bytes = NenHeader();
        for (int i = 0; i < times; ++i) {
            for (const std::string& object : SampleObjects()) bytes += object;
        }
        translation.inputBytes = bytes;
        return AllocationsOf([this] { ImportNenSuf(translation); }).blocks;
    };
    const std::size_t few = blocksOf(1000);
    const std::size_t many = blocksOf(2000);  // 40,000 records, 33,000 points and texts
    EXPECT_LT(many, few + 150);
}

}  // namespace

}  // namespace korvande::testing
