#include <functional>

#include "tests/nensuf/ImportTest.h"
#include "tests/nensuf/ProblemLists.h"

namespace korvande::testing {

namespace {

// A file of all kinds of objects is damaged in one place. Either the drawing is the same as without the damage, or the
// log book or the lists tell of it.
class ImportDamage : public ImportTest {
 protected:
    struct Outcome {
        std::string drawing;
        bool isTold = false;
        bool isDamage = false;
    };

    Outcome Read(const std::string& bytes) {
        translation.problems = {};
        translation.account = {};
        translation.outcome = {};
        ImportBytes(bytes);
        return {.drawing = Points() + Lines() + Edges() + Texts(),
                .isTold = translation.problems.errors > 0 || translation.problems.HasLoss(),
                .isDamage = translation.problems.HasFaults()};
    }

    // The lines of the file, from the first of the header to the closing record.
    static std::vector<std::string> GoodLines(Variant variant) {
        const bool isNen = variant == Variant::Nen1878;
        const std::string inside = isNen ? "00" : "01";
        const std::string coordinates = N("7") + At(1000, 2000, 500);
        std::string bytes = isNen ? NenHeader() + Record("07NNaam", "00") + Record("07WPlaats") : Suf2Header();
        bytes += Record("03MP10      G010111", inside) +
                 Record("04I1        " + coordinates + Field('Q', "  1  1  1"), inside) +
                 Record("05F112      " + coordinates, inside) + Record("05F012A01   " + coordinates, inside) +
                 Record("06A20TLoofboom");
        bytes += Record("03MB10      G120111", inside) +
                 Geometry(N("1") + At(1, 1) + N("2") + At(2000, 2000) + At(3000, 1000) + At(4000, 4000) + At(5000, 1));
        bytes += Record("03MB20      G130111", inside) +
                 Geometry(At(0, 10000) + At(10000, 0) + At(0, -10000) + At(9000, -20000) + At(0, -30000));
        bytes += Symbol("P20", N("9") + At(5000, 5000, 1) + At(5000, 6000, 2)) + Symbol("P10", At(9, 9));
        bytes += Record("03MZ10", inside) +
                 Group("05", Field('F', "111") + At(3000, 3000) + At(4000, 3000) + Field('K', "Z10")) +
                 Record("06A10TDorpsplein");
        bytes += Record("03MP20      G010111", inside) + Record("04I1        " + At(7, 7)) + Record("99", "  ");
        std::vector<std::string> lines;
        for (std::string_view rest = bytes; !rest.empty(); rest.remove_prefix(66))
            lines.emplace_back(rest.substr(0, 64));
        return lines;
    }

    static std::string Joined(const std::vector<std::string>& lines) {
        std::string bytes;
        for (const std::string& line : lines) bytes += line + "\r\n";
        return bytes;
    }

    // Does this to every line but the closing record, one after the other. The result is how often the drawing was
    // another one.
    int Damage(const std::function<std::string(const std::string& line)>& damage, std::size_t firstLine = 0) {
        int changed = 0;
        for (const Variant variant : {Variant::Nen1878, Variant::Suf2}) {
            translation.mode.variant = variant;
            const std::vector<std::string> good = GoodLines(variant);
            const Outcome whole = Read(Joined(good));
            EXPECT_FALSE(whole.isTold) << LossOf(translation);
            for (std::size_t i = firstLine; i + 1 < good.size(); ++i) {
                std::vector<std::string> lines = good;
                lines[i] = damage(lines[i]);
                if (lines[i] == good[i]) continue;
                const Outcome outcome = Read(Joined(lines));
                if (outcome.drawing == whole.drawing) continue;
                ++changed;
                EXPECT_TRUE(outcome.isDamage) << "line " << i + 1 << " was " << good[i] << "\nand is   " << lines[i];
            }
        }
        return changed;
    }
};

TEST_F(ImportDamage, AFileCutBeforeItsClosingRecordIsAlwaysTold) {
    const std::string bytes = Joined(GoodLines(Variant::Nen1878));
    const std::size_t closing = bytes.rfind("99 ");
    for (std::size_t cut = 0; cut <= closing; ++cut) {
        EXPECT_TRUE(Read(bytes.substr(0, cut)).isDamage) << cut;
    }
}

TEST_F(ImportDamage, AShortenedLineIsTold) {
    for (const std::size_t length : {63, 62, 61, 50, 40, 30, 20, 12, 5, 1}) {
        EXPECT_GT(Damage([length](const std::string& line) { return line.substr(0, length); }), 0) << length;
        // Only the first digit may be missing.
        const int changed = Damage([length](const std::string& line) { return line.substr(64 - length); });
        EXPECT_EQ(changed > 0, length < 63) << length;
    }
}

TEST_F(ImportDamage, ALengthenedLineIsTold) {
    for (const std::string more : {"X", "0", "00000012", "  1", "01", "\t"}) {
        EXPECT_GT(Damage([more](const std::string& line) { return line + more; }), 0) << more;
        EXPECT_EQ(Damage([more](const std::string& line) { return more + line; }, 2), 0) << more;
    }
    for (const std::size_t place : {2, 12, 13, 30, 45, 60}) {
        for (const std::string more : {" ", "7"}) {
            const auto damage = [&](const std::string& line) { return std::string(line).insert(place, more); };
            EXPECT_GT(Damage(damage), 0) << place << more;
        }
    }
}

TEST_F(ImportDamage, AnotherEndCodeIsTold) {
    for (const std::string code : {"00", "01", "  ", "02", "1 ", "10", "X1"}) {
        Damage([code](const std::string& line) { return line.substr(0, 62) + code; }, 2);
    }
    EXPECT_GT(Damage([](const std::string& line) { return line.substr(0, 62) + "  "; }, 2), 0);
}

TEST_F(ImportDamage, ACoordinateThatIsNoNumberIsTold) {
    for (const char letter : {'X', 'Y', 'Z'}) {
        for (const std::string bad : {"12l000   ", "         ", "1,5      ", "      1 2"}) {
            const auto damage = [&](const std::string& line) {
                const std::size_t at = line.find(letter, 12);
                if (!line.starts_with("04") || at == std::string::npos || at > 52) return line;
                return std::string(line).replace(at + 1, 9, bad);
            };
            EXPECT_GT(Damage(damage, 2), 0) << letter << bad;
        }
    }
}

TEST_F(ImportDamage, ALineOfNothingButItsTypeIsTold) {
    for (const std::string type : {"08", "00", "XX"}) {
        EXPECT_GT(Damage([type](const std::string& line) { return type + line.substr(2); }, 2), 0) << type;
    }
}

}  // namespace

}  // namespace korvande::testing
