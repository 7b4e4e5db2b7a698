#pragma once

#include <gtest/gtest.h>

#include "host/modFileHandling.h"
#include "host/modRegistry.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A registry of a test's own, in a file of its folder; keys stand below the current user's hive.
class TestRegistry {
 public:
    explicit TestRegistry(const TestFolder& folder) : file("KORVANDE_REGISTRY", folder.Path() + "/registry.reg") {}

    static void AddKey(TextView name) {
        RegKey key = 0;
        ASSERT_TRUE(RegCreateSubKey(hives::currentUser, name, key));
        RegCloseKeyHandle(key);
    }

    static void Set(TextView key, TextView valueName, TextView text) {
        AddKey(key);
        ASSERT_TRUE(WriteRegistryValue(hives::currentUser, key, valueName, text));
    }

    // In UTF-8; "(none)" when it cannot be read.
    static std::string Value(TextView key, TextView valueName) {
        Text value;
        return ReadRegistryValue(hives::currentUser, key, valueName, value) ? ToUtf8(value) : "(none)";
    }

 private:
    EnvironmentValue file;
};

}  // namespace korvande::testing
