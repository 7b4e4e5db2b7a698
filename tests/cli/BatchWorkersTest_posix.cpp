#include "tests/cli/BatchTest.h"

// A terminal as this system has it.
namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class PosixWorkers : public BatchTest {};

TEST_F(PosixWorkers, AskOneQuestionAtATimeAndNameItsDrawing) {
    fs::create_directory(Path("uit"));
    for (const char* const name : {"a", "b", "c"}) Write(std::string(name) + ".suf", smallSuf2);
    const ProgramResult result =
        Translate("nen1878-idex", {"--uitvoermap", "uit/", "--taken", "3", "a.suf", "b.suf", "c.suf"},
                  {.input = "n\nn\nj\n", .terminal = Terminal::InputAndError});
    EXPECT_EQ(result.status, 0);
    const std::string question =
        ".suf:\nDe NEN1878 file lijkt een oud formaat SUF2 bestand te zijn.\nAls SUF2 verder verwerken ?"
        " [j]a / [n]ee / [a]nnuleren\n";
    int asSuf2 = 0;
    for (const char* const name : {"a", "b", "c"}) {
        EXPECT_TRUE(Has(result.error, name + question)) << result.error;
        const std::string log = Log("uit/" + std::string(name) + ".LOG");
        asSuf2 += Has(log, "==>  Verwerking vervolgd als SUF2 bestand\n") ? 1 : 0;
    }
    EXPECT_EQ(asSuf2, 1);
}

}  // namespace

}  // namespace korvande::testing
