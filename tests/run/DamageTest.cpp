#include "tests/run/Damage.h"

#include <cstdlib>

#include "tests/run/FileRun.h"
#include "tests/run/SampleRun.h"

// Nobody can damage a drawing so that an object is missing or changed in the output and the log book does not say so.
namespace korvande::testing {

namespace {

// How many damaged drawings are tried; scripts/fuzz tries more.
unsigned HowMany() {
    const char* const wanted = std::getenv("KORVANDE_DAMAGES");
    return wanted == nullptr ? 400 : static_cast<unsigned>(std::atoi(wanted));
}

class Damage : public FileRunTest {
 protected:
    Damage() {
        LoadTable(RandomTable());
        options.chkExportPointnoAsField = options.chkExport3D = true;
        options.chkExportUnknowns = options.chkImportUnknowns = true;
        // Any two accents in a row may look like UTF-8.
        options.cboCharacterSet = characterSetNames[static_cast<std::size_t>(CharacterSet::Windows1252)];
    }

    // A drawing of which all comes across; the arcs that are written are not read back.
    static std::string GoodIdex(unsigned seed, bool withArcs) {
        RandomDrawing drawing(seed);
        for (auto& edge : drawing.edges) {
            const bool isArc = edge.type.ends_with("_CENT");
            if (edge.type == "SPIRAAL" || (isArc && !withArcs)) edge.type = "STRAIGHT";
        }
        for (auto& label : drawing.labels) label.text.resize(std::min<std::size_t>(label.text.size(), 40));
        return drawing.AsIdex();
    }

    bool IsTold() const { return last->outcome.Failed() || last->problems.errors > 0 || last->problems.HasLoss(); }

    // The damaged drawing's output is the undamaged one's, or its log book tells of something.
    void ExpectSameOrTold(Mode mode, const std::string& output, const Damaged& damaged) {
        TranslateBytes(mode, damaged.bytes);
        if (last->outputBytes == output && !last->outcome.Failed()) return;
        EXPECT_TRUE(IsTold()) << damaged.what << "\n" << damaged.bytes;
        const std::string log = LogText();
        const bool isInLogBook = log.find("\nNiet of anders overgekomen:\n  ") != std::string::npos ||
                                 log.find("\nFOUT:  ") != std::string::npos;
        EXPECT_TRUE(isInLogBook || last->outcome.Failed()) << damaged.what << "\n" << log;
    }

    std::string Undamaged(Mode mode, const std::string& drawing) {
        TranslateBytes(mode, drawing);
        EXPECT_FALSE(IsTold()) << LogText();
        return last->outputBytes;
    }
};

TEST_F(Damage, OfAnIdexFileIsToldWhenTheOutputIsAnother) {
    const unsigned count = HowMany();
    for (unsigned seed = 1; seed <= count && !HasFailure(); ++seed) {
        const Mode mode = seed % 2 == 0 ? idexToNen : idexToSuf;
        const std::string good = GoodIdex(seed / 8, true);
        const std::string output = Undamaged(mode, good);
        Chance chance(seed);
        ExpectSameOrTold(mode, output, DamageIdex(chance, good));
    }
}

TEST_F(Damage, OfANen1878OrSuf2FileIsToldWhenTheOutputIsAnother) {
    const unsigned count = HowMany();
    for (unsigned seed = 1; seed <= count && !HasFailure(); ++seed) {
        const bool isNen = seed % 2 == 0;
        TranslateBytes(isNen ? idexToNen : idexToSuf, GoodIdex(seed / 8, false));
        const std::string good = last->outputBytes;
        const Mode mode = isNen ? nenToIdex : sufToIdex;
        const std::string output = Undamaged(mode, good);
        Chance chance(seed);
        ExpectSameOrTold(mode, output, DamageExchange(chance, good));
    }
}

// Every sample cut at 200 places

struct SampleFile {
    const char* name;
    Mode mode;
    const char* end;  // the cuts are before this
};

class CutSample : public FileRunTest, public ::testing::WithParamInterface<SampleFile> {};

TEST_P(CutSample, IsNeverTranslatedAsIfItWereWhole) {
    constexpr std::size_t places = 200;
    const std::string whole = SampleBytes(GetParam().name);
    const std::size_t end = whole.rfind(GetParam().end);
    ASSERT_NE(end, std::string::npos);
    screen.onMessage = [this] { screen.answers = {Answer::Yes}; };
    for (std::size_t i = 0; i <= places; ++i) {
        const std::size_t length = end * i / places;
        TranslateBytes(GetParam().mode, whole.substr(0, length));
        const bool isToldAsDamaged = last->outcome.Failed() || last->problems.HasFaults();
        EXPECT_TRUE(isToldAsDamaged) << GetParam().name << " behind byte " << length;
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, CutSample,
                         ::testing::Values(SampleFile{"straat.idx", idexToNen, "END DATABASE"},
                                           SampleFile{"straat.idx", idexToSuf, "END DATABASE"},
                                           SampleFile{"straat.sfn", nenToIdex, "99"},
                                           SampleFile{"straat.sf2", sufToIdex, "99"},
                                           SampleFile{"kruispunt.sfn", nenToIdex, "99"}),
                         [](const auto& sample) {
                             std::string name = sample.param.name;
                             name[name.find('.')] = '_';
                             return name + (sample.param.mode == idexToSuf ? "_to_suf2" : "");
                         });

}  // namespace

}  // namespace korvande::testing
