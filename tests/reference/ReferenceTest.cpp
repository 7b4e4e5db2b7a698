#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <span>
#include <vector>

#include "tests/reference/Comparison.h"
#include "tests/run/Damage.h"
#include "tests/run/FileRun.h"

// The program and the reference, which know nothing of each other, make the same of every drawing.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class Comparing : public FileRunTest {
 protected:
    Comparing() {
        // Any two accents in a row may look like UTF-8.
        options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
        screen.onMessage = [this] { screen.answers = {answer}; };
    }

    // In what the two differ; empty when in nothing.
    std::string Difference(Mode mode, const std::string& bytes) {
        Translation& translation = BeginInMemory(mode, bytes);
        const reference::Settings settings = reference::SettingsOf(project, translation, answer);
        DeleteFileAt(logName);
        EXPECT_TRUE(TranslateFiles(translation));
        return reference::DifferenceFrom(translation, FileBytes(logName), settings);
    }

    // The options that a translation in a direction heeds, chosen by the digits of a number.
    void Choose(Direction direction, unsigned choice) {
        const auto take = [&choice] {
            const bool taken = choice % 2 == 1;
            choice /= 2;
            return taken;
        };
        if (direction == Direction::ToIdex) {
            options.chkImportUnknowns = take();
            options.chkImportSymRotation = take();
            options.chkSelectXY = take();
            answer = take() ? Answer::Yes : Answer::No;
            if (take() && take()) answer = Answer::Cancel;
        } else {
            options.chkExportUnknowns = take();
            options.chkExportPointnoAsField = take();
            options.chkExport3D = take();
            options.chkExportPointnoAsText = options.chkExportHeightAsText = take();
            options.txtPnoTxtLKI = u"Z30";
            options.txtEleTxtLKI = u"Z31LANG";
            options.chkExportSymRotation = take();
            options.lstSource = take() ? 3 : 0;
        }
    }

    void ExpectTheSame(Mode mode, const std::string& bytes, const std::string& what) {
        const std::string difference = Difference(mode, bytes);
        EXPECT_TRUE(difference.empty()) << what << "\n" << difference;
    }

    // With some options and with others; a large file takes its time.
    void ExpectTheSameInAnyWay(std::span<const Mode> modes, const std::string& name, const std::string& bytes) {
        const bool isLarge = bytes.size() > 20000;
        const std::vector<unsigned> choices = isLarge ? std::vector{27U} : std::vector{0U, 9U, 22U, 37U, 58U, 63U};
        for (const unsigned choice : choices) {
            Choose(modes.front().direction, choice);
            for (const Mode mode : modes) ExpectTheSame(mode, bytes, name + " with choice " + std::to_string(choice));
        }
    }

    Answer answer = Answer::Yes;
};

// The contents of the golden files and samples of a kind, by their names; what several hold is there once.
std::map<std::string, std::string> GoldenAndSamples(const std::set<std::string>& extensions) {
    std::map<std::string, std::string> files;
    std::set<std::string> contents;
    for (const char* const folder : {"samples", "tests/golden"}) {
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(KORVANDE_SOURCE_DIR) / folder)) {
            if (extensions.count(entry.path().extension().string()) == 0) continue;
            const std::string bytes = FileBytes(FromUtf8(entry.path().string()));
            if (contents.insert(bytes).second) files[entry.path().string()] = bytes;
        }
    }
    return files;
}

constexpr Mode allImports[] = {nenToIdex, sufToIdex};
constexpr Mode allExports[] = {idexToNen, idexToSuf};

TEST_F(Comparing, EveryGoldenFileAndSampleOfTheExchangeFormatsBecomesTheSame) {
    for (const std::string table : {"tests/golden/klein.nst", "samples/voorbeeld.nst"}) {
        LoadTable(FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/" + table)));
        for (const auto& [name, bytes] : GoldenAndSamples({".sfn", ".sf2"}))
            ExpectTheSameInAnyWay(allImports, name, bytes);
    }
}

TEST_F(Comparing, EveryGoldenFileAndSampleOfIdexBecomesTheSame) {
    for (const std::string table : {"tests/golden/klein.nst", "samples/voorbeeld.nst"}) {
        LoadTable(FileBytes(FromUtf8(KORVANDE_SOURCE_DIR "/" + table)));
        for (const auto& [name, bytes] : GoldenAndSamples({".idx"})) ExpectTheSameInAnyWay(allExports, name, bytes);
    }
}

// Tables in a file that has all else.
std::string IdexOf(const std::string& tables) {
    return WithCrLf(
        "HEADER\nFIELD_DATE 1-2-24\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"NAAM\";\n3,\"A\";\nEND\nDATABASE\n" +
        tables);
}

TEST_F(Comparing, OddRowsOfIdexBecomeTheSame) {
    LoadTable(RandomTable());
    const std::string points = "POINTS (PointNo,East,North,PointID,Code)\n5,1,1,\"A\",X;\n6,2,2,B,X;\nEND\n";
    const std::string boxes = "TEXT\nBOX_ON_POINT (TextBoxNo,AnchorPointNo,LayerNo)\n";
    const std::string edges = "LINES (LineNo)\n1;\nEDGES (LineNo,StartPt,EndPt,LineType)\n";
    const std::string tables[] = {
        points + "POINTS (PointNo,East)\n7,3;\nEND\n" + edges + "1,5,6,STRAIGHT;\n1,7,6,STRAIGHT;\nEND\nEND\n",
        points + edges + "1,5.0,6E0,STRAIGHT;\n1,+5,.6D1,STRAIGHT;\n1,5.,6,STRAIGHT;\nEND\n",
        points + edges + "1,5 ,6,STRAIGHT;\n1,\"5\",6,STRAIGHT;\n",
        points + edges + "1,,6,STRAIGHT;\n",
        points + edges + "1,-1,6,STRAIGHT;\n",
        points + edges + "1,9999999999,6,STRAIGHT;\n",
        points + edges + "EDGES (A)\n1;\nEND LINES\n1,5,6,STRAIGHT;\nEND\n2;\nEND\n",
        points + edges + "EXTRAINFO\n1;\nEND LINES\n1,5,6,STRAIGHT;\nEND\nEXTRAINFO (LineNo)\n7;\nEND\n8;\nEND\n",
        edges + "1,0,0,STRAIGHT;\n",
        points + boxes +
            "1,5,0;\nEND\nITEMS (TextBoxNo,LineNo,TextItem)\n1,1,\" x\";\n9,2,\"y \";\n1,01.0,z\nEND\nEND\n" + boxes +
            "2,6,0;\nEND\nITEMS (TextBoxNo,LineNo,TextItem)\n1,1,q;\nEND\n",
        points + boxes + "1,5,1;\n2,5,2;\n3,5,4;\n",
        points + boxes + "x,5,0;\n-1,5,0;\n",
        boxes + "1000001,5,0;\n",
        "LINES (LineNo,Flags1,Flags2)\n1,1 1\t1x1,11111111111111111111111111111111111;\n1000001;\n",
        "LINES (LineNo,Code)\n0,NUL;\n2.5,TWEE;\n3.5,VIER;\n2147483648;\n",
        "POINTS (PointNo,PointNo,East)\n1,2,3;\n,5,6;\n-1;\n",
        "POINTS (PointNo,East)\n1,2\nEXTRAINFO (PointNo,East)\n1,3;\nEND\n",
        "POINTS (PointNo,East)\n1,2;\nEXTRAINFO (PointNo,East)\n1,3;\n7,4;\nEND\nEND\n",
        "POINTS (PointNo)\n1\nTHEM (A B,C)\n2;\nEND X\nEND THEM\n3;\nLINES (A)\n4;\nEND EDGES\n5;\nEND\n",
        "POINTS [PointNo,East)\n7,1;\nEND\n",
        "POINTS\n7,1;\nEND)\n8;\nEND\n",
        "POINTSX (PointNo)\n7;\nEND\nPOINTS(PointNo)\n8;\nEND\nEOFX\nEOF X\nPOINTS (PointNo)\n9;\nEND\n",
        "POINTS (PointNo,East,PointID)\n1,\"2\",\"a\"\"b\",x;\n2,3,\"open,x;\n3,4,\"a\"b,c;\n4,5,a\"b,c\"d;\nEND\n",
        "POINTS (PointNo,Description,PointID)\n1,\"a \\\"b\\\"\",\"c\\\"\";\n2,\\\"a,b\\@\\;\nEND\n",
        "POINTS (PointNo,East)\n1,1E400;\n",
        "POINTS (PointNo,East,North)\n1,1e3,2d2\n,9;\n3,.,-;\n4,1.5.5,1E+;\n5,\t7 8,+9;\nEND\n",
    };
    for (const std::string& some : tables) {
        for (const unsigned choice : {0U, 63U}) {
            Choose(Direction::FromIdex, choice);
            ExpectTheSame(idexToNen, IdexOf(some), some);
        }
    }
}

TEST_F(Comparing, LettersBetweenFieldsAndBehindRowsBecomeTheSame) {
    const std::string tables =
        "LAYERS (LayerNoxName)\n3xae1\nEND\nDATABASE\nPOINTS (PointNoxEastXNorth)\n5x1X2e9\n6X1\n2e\n7x1x2\nEND\n"
        "LINES (LineNoxCode)\n1xA\n2xBE\nEDGES (LineNoxStartPtxEndPtxLineType)\n1X5x6xSTRAIGHTE\nEND\nEND\n"
        "TEXT\nBOX_ON_POINT (TextBoxNoxAnchorPointNoxLayerNo)\n1X5X3E\n2x5X3e\nEND\n"
        "ITEMS (TextBoxNoXLineNoXTextItem)\n1X1XxeE\nEND\nEND\n";
    for (const std::string end : {"e", "E", "x", " ", "'", "\""}) {
        for (const std::string separator : {"x", "X", " ", "\t", "\""}) {
            Choose(Direction::FromIdex, 1);
            const std::string header = "HEADER\nSEPARATOR '" + separator + "'\nTERMINATOR '" + end + "'\nEND HEADER\n";
            ExpectTheSame(idexToNen, WithCrLf(header + tables), header);
        }
    }
}

TEST_F(Comparing, OddRecordsBecomeTheSame) {
    LoadTable(RandomTable());
    const std::string header =
        "010NEN1878    V202405202405       0101Proef                   01\n"
        "020102150201         1         2         1         0         101\n";
    const auto record = [](std::string data, const char* end) {
        data.resize(62, ' ');
        return data + end + "\n";
    };
    const std::string line = record("03MT01      G12", "00");
    const std::string arc = record("03MV01      G13", "00");
    const std::string point = record("03ME01      G01", "00");
    const std::string files[] = {
        line + record("04Y        1Z        2X      1e3Y    \t 2d1X   1.5 6 Y        -", "01"),
        line + record("04N1        Y        1X        1N2        N3        X        2", "01") + line +
            record("04", "01"),
        line + record("04X        1I 4       X        1I4.0", "01") + point + record("04X        1X        2", "01"),
        arc + record("04X        0Y        0X        0Y        0X       10Y       10", "01"),
        arc + record("04X        0Y        0X        0Y        0X        0Y       10", "01"),
        arc + record("04X        0Y     -100X      100Y        0X     -100Y        0", "01"),
        arc + record("04X        0Y     -100X      100Y        0X        0Y      100", "01"),
        arc + record("04X        0Y        0X      100Y        0X      200Y        0", "01"),
        arc + record("04X        0Y        0X      100Y        0", "01") + arc + record("04", "01") + arc + line,
        record("03M   T01   G1 G12        M          ", "00") + record("04X        1", "01"),
        record("03G01       MT01      G12       G13", "00") + record("04X        1", "00") +
            record("05KE01      F112      X        1F111      F6 2", "00") + record("06A01Tx", "01") +
            record("05KZ01      F 1       X        1Y        1X        1Y        2", "00") +
            record("06A01T1234567890", "01"),
        record("05KZ02      F9 1      X        1X        1X        3X        4X        5X        6", "00") +
            record("05N1        N2        X        1Y        2Z        3", "00") + record("06A01T  x  ", "00") +
            record("06A01Tvervolg", "01"),
        point + record("04X        1Y        1X        1Y        2", "01") + point +
            record("04X        1Y        4X        1Y        5", "01") + point +
            record("04X        1Y        6X        1Y        6", "01"),
        point + record("04X    1E400", "01") + point,
        point + record("04X    1E308X        1", "01") + point,
        "99\n\n" + line,
        "99 x\n\n",
        "9\n",
        record("9", "00"),
        record("0", "01").substr(1),
        " " + line,
        line + " \n99",
    };
    for (const std::string& file : files) {
        for (unsigned choice = 0; choice < 8; ++choice) {
            Choose(Direction::ToIdex, choice);
            ExpectTheSame(nenToIdex, WithCrLf(header + file), file);
        }
    }
    const std::string zeroes(62, '0');
    for (const std::string_view some : {"", "\n", "01", "01\n02", " 1\n02", "\t\n01\n\n02", "01\n2", zeroes.c_str()}) {
        ExpectTheSame(nenToIdex, std::string(some), std::string(some));
        ExpectTheSame(sufToIdex, WithCrLf(std::string(some) + "\n" + line), std::string(some));
    }
    for (const std::string month : {"000001", "000101", "202413", "202400", "2024 1", "202401"}) {
        const std::string first = "010           V      " + month;
        ExpectTheSame(sufToIdex,
                      WithCrLf(first + "\n02010201             0         0         1         0         101\n"), month);
    }
}

TEST_F(Comparing, FieldworkDatesBecomeTheSame) {
    for (const std::string date :
         {"",          "1-2-24",       "01/02.1999",       "2024:12:31:5", "2024-2-30",    "1-2-3",    "1-2-103",
          "1-2-12345", "\"20240229\"", "\" 1 - 2 - 24 \"", "-1-2-2024",    "1-2",          "x-2-2024", "0-1-2024",
          "1-13-24",   "29-2-1900",    "1-2-0000",         "1-2-2024 x",   "001-002-2024", "20240132", "1--2024",
          "2024-1-1-"}) {
        const std::string text =
            "HEADER\nFIELD_DATE " + date + "\nEND HEADER\nLAYERS (A)\nEND\nDATABASE\nPOINTS (PointNo)\n1;\nEND\n";
        Choose(Direction::FromIdex, 1);
        ExpectTheSame(idexToNen, WithCrLf(text), date);
    }
}

TEST_F(Comparing, FilesInOtherCharactersBecomeTheSame) {
    LoadTable(RandomTable());
    const std::string exchange = WithCrLf(
        "010NEN1878    V202405202405       0101Proef                   01\n"
        "020102150201         0         0         1         0         101\n"
        "03MZ02           01                                           01\n"
        "05F111      X     1000Y     2000X     2000Y     2000KZ02      01\n");
    for (const std::string mark : {"", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"}) {
        for (const std::string text :
             {"Caf\xE9", "Caf\xC3\xA9", "\xE2\x82\xAC \xF0\x9F\x98\x80", "\xC3", "\xE2\x82", "\x80\x81\xC0\xAF"}) {
            std::string line = "06A10T" + text;
            line.resize(62, ' ');
            for (const unsigned choice : {1U, 9U}) {
                Choose(Direction::ToIdex, choice);
                ExpectTheSame(nenToIdex, mark + exchange + line + "01\r\n99\x1A", mark + text);
            }
            ExpectTheSame(idexToNen, mark + IdexOf("POINTS (PointID)\n\"" + text + "\";\nEND\n"), mark + text);
        }
    }
}

// How many generated drawings are tried, as they are and damaged.
unsigned HowMany() {
    const char* const wanted = std::getenv("KORVANDE_DAMAGES");
    return wanted == nullptr ? 400 : static_cast<unsigned>(std::atoi(wanted));
}

TEST_F(Comparing, GeneratedExchangeFilesAndDamagedOnesBecomeTheSame) {
    LoadTable(RandomTable());
    const unsigned count = HowMany();
    for (unsigned seed = 1; seed <= count && !HasFailure(); ++seed) {
        const Mode made = seed % 2 == 0 ? idexToNen : idexToSuf;
        options = Project().options;
        Choose(Direction::FromIdex, seed / 2 % 64 | 1U);
        TranslateBytes(made, RandomDrawing(seed / 4).AsIdex());
        const std::string good = last->outputBytes;
        const Mode mode = seed % 2 == 0 ? nenToIdex : sufToIdex;
        Chance chance(seed);
        Choose(Direction::ToIdex, seed / 2 % 16);
        ExpectTheSame(mode, good, "generated " + std::to_string(seed));
        const Damaged damaged = DamageExchange(chance, good);
        ExpectTheSame(mode, damaged.bytes, "generated " + std::to_string(seed) + ", " + damaged.what);
    }
}

TEST_F(Comparing, GeneratedIdexFilesAndDamagedOnesBecomeTheSame) {
    LoadTable(RandomTable());
    const unsigned count = HowMany();
    for (unsigned seed = 1; seed <= count && !HasFailure(); ++seed) {
        const Mode mode = seed % 2 == 0 ? idexToNen : idexToSuf;
        Choose(Direction::FromIdex, seed / 2 % 64);
        const std::string good = RandomDrawing(seed / 4).AsIdex();
        Chance chance(seed);
        ExpectTheSame(mode, good, "generated " + std::to_string(seed));
        const Damaged damaged = DamageIdex(chance, good);
        ExpectTheSame(mode, damaged.bytes, "generated " + std::to_string(seed) + ", " + damaged.what);
    }
}

}  // namespace

}  // namespace korvande::testing
