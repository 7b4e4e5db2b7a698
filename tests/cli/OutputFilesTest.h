#pragma once

#include <filesystem>

#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace fs = std::filesystem;

// With a small drawing to translate.
class OutputFiles : public CliTest {
 protected:
    OutputFiles() { folder.Write("a.idx", smallIdex); }

    fs::path Path(const std::string& name) const {
        const std::string path = folder.Path() + "/" + name;
        return {std::u8string(path.begin(), path.end())};
    }

    void ExpectSameFileRefused(const std::vector<std::string>& files, const std::string& which,
                               const std::string& name) {
        std::vector<std::string> arguments = {"vertaal", "--modus", "idex-nen1878"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        ExpectRefused(arguments, which + " zijn hetzelfde bestand:\n" + name);
        EXPECT_EQ(Bytes("a.idx"), smallIdex);
    }
};

}  // namespace korvande::testing
