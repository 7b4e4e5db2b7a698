#pragma once

#include <gtest/gtest.h>
#include <korvande.h>

#include <string>

#include "tests/run/SampleRun.h"
#include "tests/support/TestFiles.h"

namespace korvande::testing {

// A control table that is open as long as this object lives.
class OpenTable {
 public:
    explicit OpenTable(const std::string& name = KORVANDE_SOURCE_DIR "/samples/voorbeeld.nst")
        : status(korvande_open(name.c_str(), &handle)) {}
    OpenTable(const OpenTable&) = delete;
    OpenTable& operator=(const OpenTable&) = delete;
    ~OpenTable() { korvande_close(handle); }

    korvande_handle* Handle() const noexcept { return handle; }
    int Status() const noexcept { return status; }

 private:
    korvande_handle* handle = nullptr;
    int status;
};

// A folder for outputs, at the moment of the golden files.
class LibraryTest : public ::testing::Test {
 protected:
    std::string NameOf(const std::string& file) const { return folder.Path() + "/" + file; }

    // Translates a sample into a file of the folder; the status.
    int Translate(const OpenTable& table, const SampleCase& sample, const std::string& file,
                  const korvande_callbacks* callbacks = nullptr) const {
        const std::string input = std::string(KORVANDE_SOURCE_DIR "/samples/") + sample.input;
        const std::string mode(korvande::NamesOf(sample.mode).shortName);
        return korvande_translate(table.Handle(), mode.c_str(), input.c_str(), NameOf(file).c_str(), nullptr, nullptr,
                                  callbacks);
    }

    std::string Bytes(const std::string& file) const { return FileBytes(folder / file); }

    TestFolder folder;
    EnvironmentValue moment{"SOURCE_DATE_EPOCH", goldenMoment};
    EnvironmentValue locale{"LC_ALL", "C"};
};

}  // namespace korvande::testing
