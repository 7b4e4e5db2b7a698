#include "tests/reliability/FaultTest.h"

// What a program does so that its files survive a power cut, and outputs for which there was no memory.
namespace korvande::testing {

namespace {

class Durability : public FaultTest {
 protected:
    // What the program does to files, one line each.
    std::string CallsOf(const std::vector<std::string>& arguments) {
        Start start;
        start.environment["LD_PRELOAD"] = KORVANDE_LOGGED_CALLS;
        start.environment["KORVANDE_TEST_CALLS"] = folder.Path() + "/aanroepen";
        // The sanitizer would rather come first.
        start.environment["ASAN_OPTIONS"] = "verify_asan_link_order=0:detect_leaks=0";
        const ProgramResult result = Run(arguments, start);
        EXPECT_EQ(result.status, 0) << result.error;
        std::string calls = FileIsThere(folder / "aanroepen") ? Bytes("aanroepen") : "";
        fs::remove(Path("aanroepen"));
        return calls;
    }

    static std::string InOrder(const std::string& name) {
        return "new ~korvande\nflush ~korvande\nrename ~korvande to " + name + "\nflush the folder\n";
    }
};

TEST_F(Durability, AnOutputIsOnTheDiskBeforeItTakesItsPlace) {
    for (const auto& [mode, input] :
         {std::pair("idex-nen1878", "a.idx"), std::pair("idex-suf2", "a.idx"), std::pair("nen1878-idex", "a.nen")}) {
        for (int run = 0; run < 2; ++run) {  // the second over an earlier output
            EXPECT_EQ(CallsOf({"vertaal", "--modus", mode, "--project", "t.nst", input, "uit.xyz"}), InOrder("uit.xyz"))
                << mode;
        }
    }
}

TEST_F(Durability, AControlTableIsOnTheDiskBeforeItTakesItsPlace) {
    EXPECT_EQ(CallsOf({"project", "maak", "nieuw.nst"}), InOrder("nieuw.nst"));
}

// The sanitizers have memory of their own.
#ifndef __SANITIZE_ADDRESS__

TEST_F(Durability, NoMemoryForABufferMakesNoEmptyOutput) {
    for (const auto& [mode, input] : {std::pair("idex-nen1878", "a.idx"), std::pair("nen1878-idex", "a.nen")}) {
        ASSERT_EQ(Translate(mode, {"--project", "t.nst", input, "uit"}).status, 0);
        const std::string complete = Bytes("uit");
        int failed = 0;
        for (int block = 1; block <= 8; ++block) {
            folder.Write("uit", "van gisteren");
            Start start;
            start.environment["LD_PRELOAD"] = KORVANDE_FAILING_BLOCKS;
            start.environment["KORVANDE_TEST_BLOCK"] = std::to_string(block);
            const ProgramResult result = Translate(mode, {"--project", "t.nst", input, "uit"}, start);
            failed += result.status == 3 ? 1 : 0;
            EXPECT_EQ(Bytes("uit"), result.status == 3 ? "van gisteren" : complete) << mode << block;
            EXPECT_EQ(folder.Listing().find('~'), std::string::npos) << mode << block;
        }
        // The control table, the log book, the input and the output have one each.
        EXPECT_GE(failed, 2) << mode;
    }
    ExpectInputsIntact();
}

#endif

}  // namespace

}  // namespace korvande::testing
