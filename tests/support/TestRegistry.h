#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "host/modFileHandling.h"
#include "host/modRegistry.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A registry of a test's own: a file of its folder, and on Windows a key of the real one that stands for the current
// user's hive as long as this object lives. Keys stand below that hive; it begins empty.
class TestRegistry {
 public:
    explicit TestRegistry(const TestFolder& folder);
    TestRegistry(const TestRegistry&) = delete;
    TestRegistry& operator=(const TestRegistry&) = delete;
    ~TestRegistry();

    static void AddKey(TextView name) {
        RegKey key = 0;
        ASSERT_TRUE(RegCreateSubKey(hives::currentUser, name, key));
        RegCloseKeyHandle(key);
    }

    static void Set(TextView key, TextView valueName, TextView text) {
        AddKey(key);
        ASSERT_TRUE(WriteRegistryValue(hives::currentUser, key, valueName, text));
    }

    // Values that the program itself never writes: a number, some bytes, and a text with NUL characters in it.
    void SetDoubleWord(TextView key, TextView valueName, std::uint32_t number);
    void SetBytes(TextView key, TextView valueName);
    void SetRawText(TextView key, TextView valueName, TextView text);

    // All keys and values in some readable form, the same for the same ones; "" as long as nothing was made.
    std::string Contents() const;

    // In UTF-8; "(none)" when it cannot be read.
    static std::string Value(TextView key, TextView valueName) {
        Text value;
        return ReadRegistryValue(hives::currentUser, key, valueName, value) ? ToUtf8(value) : "(none)";
    }

 private:
    struct Place;
    std::unique_ptr<Place> place;
};

}  // namespace korvande::testing
