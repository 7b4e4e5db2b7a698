#include "tests/fuzz/Workplace.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "core/LineReader.h"
#include "project/ControlTable.h"
#include "tests/fuzz/Targets.h"

namespace korvande::fuzz {

namespace fs = std::filesystem;

const std::string_view someTable =
    "[NEN1878]\r\nNameLong = GEMEENTE\r\nNameShort = GEM\r\nSource = ZAND\r\n"
    "[Points]\r\n"
    "Unknown = STANDRD, Q20, PUNT, ONBEKEND PUNTOBJECT, 0, 0, 0\r\n"
    "MV = Q22, PUNT, MAAIVELD, 1, 2, 3\r\n"
    "BOOM = S01 001, SYMBOOL, BOOM, 0, 0, 0\r\n"
    "PAAL = Q24, ROT.PNT, PAAL, 0, 0, 0\r\n"
    "GPS = Q25, GRONDSL, GRONDSLAG, 0, 0, 0\r\n"
    "WEG = Q26, DUMMY, NIET, 0, 0, 0\r\n"
    "[Lines]\r\n"
    "Unknown = STANDRD, Q00, LIJN, ONBEKEND LIJNOBJECT, 0, 0, 0\r\n"
    "MUUR = B05, LIJN, MUUR, 0, 0, 0\r\n"
    "GRENS = B06, GRENS, GRENS, 1, 1, 1\r\n"
    "[Texts]\r\n"
    "Unknown = STANDRD, Z19, ONBEKEND TEKSTOBJECT, 0, 0, 0\r\n"
    "NAAM = Z04, NAAM, 0, 0, 0\r\n"
    "PLAATS = Z01, PLAATS, 0, 0, 0\r\n"
    "[End]\r\n";

namespace {

void SetVariable(const char* name, const char* value) {
#ifdef _WIN32
    _putenv_s(name, value);
#else
    setenv(name, value, 1);
#endif
}

// A folder that goes with the program.
class Folder {
 public:
    Folder() {
        std::random_device chance;
        do {
            path = fs::temp_directory_path() / ("korvande-fuzz-" + std::to_string(chance()));
        } while (!fs::create_directory(path));
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    std::string File(std::string_view name) const { return (path / name).string(); }
    void Empty() const {
        for (const auto& entry : fs::directory_iterator(path)) fs::remove_all(entry.path());
    }

 private:
    fs::path path;
};

const Folder& TheFolder() {
    static const Folder folder;
    return folder;
}

}  // namespace

Answer AnsweringScreen::ShowMessage(const MessageBox& box) {
    if (box.buttons == Buttons::Ok) return Answer::Ok;
    // Whoever retries for ever never ends.
    if (box.buttons == Buttons::RetryCancel) return Answer::Cancel;
    ++questions;
    return answer;
}

Project ProjectOf(Screen& screen, std::string_view table) {
    static const bool isFixed = [] {
        SetVariable("SOURCE_DATE_EPOCH", "1795230000");  // 21-11-2026 03:00:00 UTC
        return true;
    }();
    static_cast<void>(isFixed);
    Project project;
    LoadProjectBytes(screen, project, table);
    return project;
}

Text NameOf(std::string_view name) { return FromUtf8(TheFolder().File(name)); }

std::string FileBytes(std::string_view name) {
    const FileHandle file(std::fopen(TheFolder().File(name).c_str(), "rb"));
    std::string bytes;
    if (file == nullptr) return bytes;
    char block[4096];
    for (std::size_t count = 0; (count = std::fread(block, 1, sizeof block, file.get())) > 0;) {
        bytes.append(block, count);
    }
    return bytes;
}

void WriteFile(std::string_view name, std::string_view bytes) {
    const FileHandle file(std::fopen(TheFolder().File(name).c_str(), "wb"));
    Require(file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size(),
            "a file of the fuzzer's own cannot be written");
}

void EmptyFolder() { TheFolder().Empty(); }

}  // namespace korvande::fuzz
