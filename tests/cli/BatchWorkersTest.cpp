#include "tests/cli/BatchTest.h"

namespace korvande::testing {

namespace {

namespace fs = std::filesystem;

class BatchWorkers : public BatchTest {
 protected:
    // The first takes longest, so that others are ready before it is their turn.
    BatchWorkers() {
        Write("t.nst", smallTable);
        Write("in/0.idx", IdexPoints(20000));
        for (int i = 1; i < 8; ++i) Write("in/" + std::to_string(i) + ".idx", IdexWithCode("C" + std::to_string(i)));
        Write("in/8.idx", BrokenIdex());
        Write("in/9.idx", smallIdex);
        Write("zonder.idx", "geen tekening");
    }
};

TEST_F(BatchWorkers, HoweverManyTheyLeaveAndTellTheSameInTheSameOrder) {
    const auto translate = [&](const char* workers) {
        fs::remove_all(Path("uit"));
        return TranslateAll(
            {"--project", "t.nst", "--verslag", "v.json", "--taken", workers, "in/", "weg.idx", "zonder.idx"});
    };
    const ProgramResult one = translate("1");
    const auto leftByOne = Tree("uit");
    const std::string report = Bytes("v.json");
    EXPECT_EQ(one.status, 1);
    EXPECT_EQ(leftByOne.size(), 22U) << NamesIn("uit");  // a log book each, and ten outputs
    EXPECT_TRUE(Has(one.error, "Alles samen: 12 bestanden, waarvan 10 vertaald, 2 niet vertaald\n")) << one.error;
    for (const char* const workers : {"2", "4", "64"}) {
        const ProgramResult many = translate(workers);
        EXPECT_EQ(many.status, one.status);
        EXPECT_EQ(many.output, one.output) << workers;
        EXPECT_EQ(many.error, one.error) << workers;
        EXPECT_EQ(Bytes("v.json"), report) << workers;
        EXPECT_TRUE(Tree("uit") == leftByOne) << workers;
    }
}

TEST_F(BatchWorkers, QuestionsThatNobodyIsThereToAnswerAreToldInOrder) {
    for (int i = 0; i < 6; ++i) Write("suf/" + std::to_string(i) + ".sfn", smallSuf2);
    const auto translate = [&](const char* workers) {
        return Translate("nen1878-idex", {"--stil", "--taken", workers, "--uitvoermap", "uit/", "suf/0.sfn",
                                          "suf/1.sfn", "suf/2.sfn", "suf/3.sfn", "suf/4.sfn", "suf/5.sfn"});
    };
    fs::create_directory(Path("uit"));
    const ProgramResult one = translate("1");
    EXPECT_EQ(one.status, 0);
    EXPECT_TRUE(Has(one.error, "Als SUF2 verder verwerken ? ja\n")) << one.error;
    EXPECT_EQ(translate("4").error, one.error);
}

TEST_F(BatchWorkers, TheirNumberIsOneToSixtyFour) {
    for (const char* const number : {"0", "65", "twee", "2x", "-1"}) {
        ExpectRefused({"vertaal", "--modus", "idex-nen1878", "--uitvoermap", "uit/", "--taken", number, "in/"},
                      std::string("Ongeldige waarde bij --taken: ") + number + " (1 tot 64)");
    }
}

}  // namespace

}  // namespace korvande::testing
