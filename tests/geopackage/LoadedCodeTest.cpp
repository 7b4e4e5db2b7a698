#include <gmock/gmock.h>
#include <sqlite3.h>

#include <memory>

namespace korvande::testing {

namespace {

struct Closer {
    void operator()(sqlite3* opened) const noexcept { sqlite3_close(opened); }
    void operator()(char* message) const noexcept { sqlite3_free(message); }
};

// Not the system's library either, as a program finds it.
TEST(LoadedCode, IsRefusedWhenAStatementAsksForIt) {
    sqlite3* opened = nullptr;
    ASSERT_EQ(sqlite3_open(":memory:", &opened), SQLITE_OK);
    const std::unique_ptr<sqlite3, Closer> database{opened};
    char* said = nullptr;
    EXPECT_EQ(sqlite3_exec(opened, "SELECT load_extension('x')", nullptr, nullptr, &said), SQLITE_ERROR);
    const std::unique_ptr<char, Closer> message{said};
    EXPECT_THAT(message.get(), ::testing::AnyOf(::testing::StrEq("not authorized"),
                                                ::testing::StrEq("no such function: load_extension")));
}

}  // namespace

}  // namespace korvande::testing
