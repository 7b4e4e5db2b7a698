#include "tests/cli/BatchTest.h"

#include <algorithm>
#include <utility>

namespace korvande::testing {

namespace fs = std::filesystem;

fs::path BatchTest::Path(const std::string& name) const {
    const std::string path = folder.Path() + "/" + name;
    return {std::u8string(path.begin(), path.end())};
}

void BatchTest::Write(const std::string& name, const std::string& bytes) const {
    fs::create_directories(Path(name).parent_path());
    folder.Write(name, bytes);
}

std::map<std::string, std::string> BatchTest::Tree(const std::string& name) const {
    std::map<std::string, std::string> files;
    if (!fs::exists(Path(name))) return files;
    for (const auto& entry : fs::recursive_directory_iterator(Path(name))) {
        if (entry.is_directory()) continue;
        const std::u8string below = fs::relative(entry.path(), Path(name)).generic_u8string();
        const std::string file(below.begin(), below.end());
        files[file] = Bytes(name + "/" + file);
    }
    return files;
}

std::string BatchTest::NamesIn(const std::string& name) const {
    std::string names;
    for (const auto& file : Tree(name)) names += (names.empty() ? "" : " ") + file.first;
    return names;
}

ProgramResult BatchTest::TranslateAll(std::vector<std::string> arguments, Start start) {
    start.environment["SOURCE_DATE_EPOCH"] = "0";
    arguments.insert(arguments.begin(), {"--uitvoermap", "uit/"});
    return WithSlashes(Translate("idex-nen1878", std::move(arguments), std::move(start)));
}

ProgramResult BatchTest::WithSlashes(ProgramResult result) {
    for (std::string* text : {&result.output, &result.error}) std::replace(text->begin(), text->end(), '\\', '/');
    return result;
}

std::string IdexWithCode(const std::string& code) {
    std::string drawing = smallIdex;
    return drawing.replace(drawing.find("VREEMD"), 6, code);
}

std::string BrokenIdex() { return smallIdex.substr(0, smallIdex.find("    EDGES")); }

std::string IdexPoints(int count) {
    std::string points = smallIdex.substr(0, smallIdex.find("    1,\"A1\""));
    for (int i = 1; i <= count; ++i) points += std::to_string(i) + ",\"\",1,2,3,\"MV\",\"\",0;\r\n";
    return points + "END POINTS\r\nEND DATABASE\r\n";
}

}  // namespace korvande::testing
