#include <algorithm>
#include <cstdio>

#include "tests/library/FailingMemory.h"
#include "tests/library/LibraryTest.h"

// Memory that runs out at any moment of a call ends in its status.
namespace korvande::testing {

namespace {

class LibraryMemoryTest : public LibraryTest {
 protected:
    static constexpr std::int64_t places = 150;  // of a call where memory is short

    // Calls `work` with memory short at places that are spread over all that it asks for, once and from there on.
    template <class Work>
    static void AtEveryPlace(std::int64_t blocks, Work work) {
        ASSERT_GT(blocks, 20);
        const std::int64_t pace = std::max<std::int64_t>(blocks / places, 1);
        for (const bool goesOn : {false, true}) {
            for (std::int64_t number = 1; number <= blocks; number += pace) work(number, goesOn);
        }
    }

    // A drawing with errors, which meets much of what reading and writing do and is small.
    int TranslateErrors(const std::string& output, const korvande_callbacks* callbacks = nullptr) const {
        return korvande_translate(table.Handle(), "idex-nen1878", input.c_str(), output.c_str(), nullptr, nullptr,
                                  callbacks);
    }
    int CheckErrors(const korvande_callbacks* callbacks = nullptr) const {
        return korvande_check(table.Handle(), input.c_str(), nullptr, callbacks);
    }

    // The blocks that a call asks for until its work is done, which is when its last step ends. What follows is made
    // only where there is plenty of memory.
    template <class Call>
    static std::int64_t BlocksOf(Call call) {
        std::int64_t blocks = 0;
        korvande_callbacks callbacks = KORVANDE_CALLBACKS_NONE;
        callbacks.context = &blocks;
        callbacks.progress = [](void* context, const char*, std::int64_t, std::int64_t) {
            *static_cast<std::int64_t*>(context) = FailingMemory::Asked();
        };
        // The first call asks for more: it prepares the tables.
        EXPECT_EQ(call(nullptr), KORVANDE_WITH_ERRORS);
        const FailingMemory none(0, false);
        EXPECT_EQ(call(&callbacks), KORVANDE_WITH_ERRORS);
        return blocks;
    }

    const OpenTable table{KORVANDE_SOURCE_DIR "/tests/golden/klein.nst"};
    const std::string input = KORVANDE_SOURCE_DIR "/tests/golden/fouten.idx";
};

TEST_F(LibraryMemoryTest, OpeningWithoutMemoryFails) {
    const std::string name = KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst";
    std::int64_t blocks = 0;
    int worst = KORVANDE_DONE;
    {
        korvande_handle* handle = nullptr;
        const FailingMemory none(0, false);
        ASSERT_EQ(korvande_open(name.c_str(), &handle), KORVANDE_DONE);
        blocks = FailingMemory::Asked();
        korvande_close(handle);
    }
    AtEveryPlace(blocks, [&](std::int64_t number, bool goesOn) {
        korvande_handle* handle = nullptr;
        int status = -1;
        {
            const FailingMemory failing(number, goesOn);
            status = korvande_open(name.c_str(), &handle);
        }
        worst = std::max(worst, status);
        EXPECT_TRUE(status == KORVANDE_FAILED || status == KORVANDE_DONE) << status << " at " << number;
        EXPECT_EQ(*korvande_last_error(handle) == '\0', status == KORVANDE_DONE) << number;
        korvande_close(handle);
    });
    EXPECT_EQ(worst, KORVANDE_FAILED);
}

TEST_F(LibraryMemoryTest, TranslatingWithoutMemoryIsToldAndTheHandleStaysGood) {
    const std::string whole = NameOf("heel.sfn");
    const std::string output = NameOf("uit.sfn");
    const std::int64_t blocks =
        BlocksOf([&](const korvande_callbacks* callbacks) { return TranslateErrors(whole, callbacks); });
    int failures = 0;
    AtEveryPlace(blocks, [&](std::int64_t number, bool goesOn) {
        int status = -1;
        {
            const FailingMemory failing(number, goesOn);
            status = TranslateErrors(output);
        }
        EXPECT_TRUE(status == KORVANDE_FAILED || status == KORVANDE_WITH_ERRORS) << status << " at " << number;
        EXPECT_STRNE(korvande_last_error(table.Handle()), "") << number;
        failures += status == KORVANDE_FAILED ? 1 : 0;
        std::remove(output.c_str());
        std::remove(NameOf("uit.LOG").c_str());
        // Nothing else is left, such as an output under its temporary name.
        EXPECT_EQ(folder.Listing(), "heel.LOG heel.sfn") << number;
    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(TranslateErrors(output), KORVANDE_WITH_ERRORS);
    EXPECT_TRUE(Bytes("uit.sfn") == Bytes("heel.sfn"));
}

TEST_F(LibraryMemoryTest, CheckingWithoutMemoryIsToldAndTheHandleStaysGood) {
    const std::int64_t blocks =
        BlocksOf([this](const korvande_callbacks* callbacks) { return CheckErrors(callbacks); });
    const std::string whole = korvande_result(table.Handle());
    int failures = 0;
    AtEveryPlace(blocks, [&](std::int64_t number, bool goesOn) {
        int status = -1;
        {
            const FailingMemory failing(number, goesOn);
            status = CheckErrors();
        }
        EXPECT_TRUE(status == KORVANDE_FAILED || status == KORVANDE_WITH_ERRORS) << status << " at " << number;
        EXPECT_STRNE(korvande_last_error(table.Handle()), "") << number;
        failures += status == KORVANDE_FAILED ? 1 : 0;
    });
    EXPECT_GT(failures, 0);
    EXPECT_EQ(CheckErrors(), KORVANDE_WITH_ERRORS);
    EXPECT_EQ(korvande_result(table.Handle()), whole);
}

}  // namespace

}  // namespace korvande::testing
