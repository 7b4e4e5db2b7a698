#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <span>

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

    // With any options; a large file takes its time, so only with some.
    void ExpectTheSameInAnyWay(std::span<const Mode> modes, const std::string& name, const std::string& bytes) {
        for (unsigned choice = 0; choice<64; choice += bytes.size()> 20000 ? 13 : 1) {
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
