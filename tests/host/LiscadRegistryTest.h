#pragma once

#include "host/LiscadRegistry.h"
#include "tests/support/RecordingScreen.h"
#include "tests/support/TestRegistry.h"

namespace korvande::testing {

inline constexpr TextView liscadKey = u"SOFTWARE\\LISTECH\\LISCAD";

inline Text VersionKey(TextView version) { return Concat(liscadKey, u"\\", version); }
inline Text SeeKey(TextView version) { return Concat(VersionKey(version), u"\\SEE"); }
inline Text ImportKey(TextView version) { return Concat(SeeKey(version), u"\\Data Conversions\\Import"); }
inline Text ExportKey(TextView version) { return Concat(SeeKey(version), u"\\Data Conversions\\Export"); }

// The entry that an item must get, as the test itself sees its program.
inline std::string Entry(const std::string& labelAndPattern) {
    const std::string program = ToUtf8(TestProgram());
    const std::size_t separator = program.find_last_of("\\/");
    const std::string name = program.substr(separator + 1);
    return "2|" + labelAndPattern + "|" + program.substr(0, separator) + "\\" + name.substr(0, name.find('.')) + ".exe";
}

// LISCAD's part of the registry; no version of it is installed yet.
class LiscadRegistry : public ::testing::Test {
 protected:
    static void AddVersions(const std::vector<Text>& versions) {
        for (const Text& version : versions) TestRegistry::AddKey(SeeKey(version));
    }

    // The listed versions, separated by blanks, the preferred one in front.
    static std::string Listed() {
        std::vector<Text> versions;
        ListLiscadVersions(versions);
        std::string text;
        for (const Text& version : versions) text += "[" + ToUtf8(version) + "]";
        return text;
    }

    // The announcement lists the versions when it first needs them.
    void Announce() { AnnounceToLiscad(screen, announced); }

    TestFolder folder;
    TestRegistry registry{folder};
    RecordingScreen screen;
    std::vector<Text> announced;
};

}  // namespace korvande::testing
