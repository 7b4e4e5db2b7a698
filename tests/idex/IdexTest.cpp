#include "tests/idex/IdexTest.h"

#include "idex/modImportIDEX.h"

namespace korvande::testing {

namespace {

std::string ErrorInLine(int number, std::int64_t line) {
    return "error " + std::to_string(number) + " in line " + std::to_string(line);
}

}  // namespace

std::string FileWith(std::string_view tables) {
    constexpr std::string_view before =
        "HEADER\n"
        "END HEADER\n"
        "LAYERS (LayerNo,Name)\n"
        "0,\"STNDRD\";\n"
        "1,\"TEKSTEN\";\n"
        "END LAYERS\n"
        "DATABASE\n";
    return std::string(before).append(tables).append("END DATABASE\n");
}

std::string ReadInto(Translation& translation, std::string_view bytes) {
    translation.inputBytes = bytes;
    try {
        ReadIdexFile(translation);
    } catch (const RuntimeError& error) {
        return ErrorInLine(error.Number(), translation.inputLine);
    }
    EXPECT_EQ(translation.inputLine, 0);
    return {};
}

std::string IdexTest::ErrorAt(int number, int lineOfTables) {
    return ErrorInLine(number, firstLineOfTables - 1 + lineOfTables);
}

}  // namespace korvande::testing
