#include <array>
#include <cstdio>
#include <fstream>

#include "tests/support/TestRegistry.h"

namespace korvande::testing {

struct TestRegistry::Place {
    explicit Place(const std::string& itsName) : name(itsName), file("KORVANDE_REGISTRY", itsName) {}

    std::string name;
    EnvironmentValue file;

    // A value in the form of the file, behind all that it holds.
    void Append(TextView key, TextView valueName, const std::string& data) const {
        AddKey(key);
        std::ofstream(name, std::ios::binary | std::ios::app)
            << "[HKEY_CURRENT_USER\\" << ToUtf8(key) << "]\r\n\"" << ToUtf8(valueName) << "\"=" << data << "\r\n";
    }
};

TestRegistry::TestRegistry(const TestFolder& folder) {
    const std::string name = folder.Path() + "/registry.reg";
    place = std::make_unique<Place>(name);
}

TestRegistry::~TestRegistry() = default;

void TestRegistry::SetDoubleWord(TextView key, TextView valueName, std::uint32_t number) {
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", number);
    place->Append(key, valueName, std::string("dword:") + digits.data());
}

void TestRegistry::SetBytes(TextView key, TextView valueName) { place->Append(key, valueName, "hex:01,02"); }

void TestRegistry::SetRawText(TextView key, TextView valueName, TextView text) {
    place->Append(key, valueName, "\"" + ToUtf8(text) + "\"");
}

std::string TestRegistry::Contents() const {
    const Text name = FromUtf8(place->name);
    return FileIsThere(name) ? FileBytes(name) : "";
}

}  // namespace korvande::testing
