#include <new>
#include <stdexcept>
#include <string>

#include "tests/library/LibraryTest.h"

namespace korvande::testing {

namespace {

using LibraryExceptionsTest = LibraryTest;

// No function of the interface can throw.
static_assert(noexcept(korvande_version()) && noexcept(korvande_interface()));
static_assert(noexcept(korvande_open(nullptr, nullptr)) && noexcept(korvande_close(nullptr)));
static_assert(noexcept(korvande_translate(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)));
static_assert(noexcept(korvande_check(nullptr, nullptr, nullptr, nullptr)));
static_assert(noexcept(korvande_last_error(nullptr)) && noexcept(korvande_result(nullptr)));

// What a callback throws, although it may not.
enum class Thrown { Number, Error, Memory };

int Throw(void* context) {
    switch (*static_cast<Thrown*>(context)) {
        case Thrown::Number:
            throw 5;
        case Thrown::Error:
            throw std::logic_error("from a callback");
        case Thrown::Memory:
            throw std::bad_alloc();
    }
    return 0;
}

TEST_F(LibraryExceptionsTest, WhatACallbackThrowsEndsTheCallAndGoesNoFurther) {
    for (Thrown thrown : {Thrown::Number, Thrown::Error, Thrown::Memory}) {
        const OpenTable table;
        ASSERT_EQ(table.Status(), KORVANDE_DONE);
        korvande_callbacks callbacks = KORVANDE_CALLBACKS_NONE;
        callbacks.context = &thrown;
        callbacks.should_cancel = Throw;
        EXPECT_EQ(Translate(table, sampleCases[0], "uit.sfn", &callbacks), KORVANDE_FAILED);
        EXPECT_STRNE(korvande_last_error(table.Handle()), "");
        EXPECT_EQ(folder.Listing(), "uit.LOG");
        // The handle is as good as before.
        EXPECT_EQ(Translate(table, sampleCases[0], "uit.sfn"), KORVANDE_DONE);
        EXPECT_TRUE(Bytes("uit.sfn") == GoldenResult(sampleCases[0]).output);
        EXPECT_TRUE(folder.Listing() == "uit.LOG uit.sfn") << folder.Listing();
        std::remove(NameOf("uit.sfn").c_str());
        std::remove(NameOf("uit.LOG").c_str());
    }
}

}  // namespace

}  // namespace korvande::testing
