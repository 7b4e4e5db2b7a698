#include <gtest/gtest.h>

#include <clocale>

// Every test runs under the locale of its environment, so that the suite also shows what a decimal comma does.
int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
