#include "tests/faults/Scenarios.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>

#include "tests/cli/CliTest.h"
#include "tests/faults/WindowScenarios.h"

int ConsoleProgram(int count, char** words);

namespace korvande::testing {

namespace {

const std::string goldenMark = "golden_";

// Runs of the console program on the small drawing, each over an earlier output.
const std::map<std::string, std::vector<std::string>>& Commands() {
    static const std::map<std::string, std::vector<std::string>> commands = {
        {"idex_to_nen1878", {"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "a.idx", "uit.sfn"}},
        {"idex_to_suf2", {"vertaal", "--modus", "idex-suf2", "--project", "t.nst", "a.idx", "uit.sf2"}},
        {"nen1878_to_idex", {"vertaal", "--modus", "nen1878-idex", "--project", "t.nst", "a.nen", "uit.idx"}},
        {"suf2_to_idex", {"vertaal", "--modus", "suf2-idex", "--project", "t.nst", "a.sf2", "uit.idx"}},
        {"check", {"controleer", "--project", "t.nst", "a.idx"}},
        {"compare", {"vergelijk", "--project", "t.nst", "a.idx", "a.nen"}},
        {"draw_svg", {"teken", "--project", "t.nst", "a.idx", "uit.svg"}},
        {"draw_png", {"teken", "--project", "t.nst", "a.idx", "uit.png"}},
        {"geopackage", {"geopackage", "--lokaal", "--overschrijf", "--project", "t.nst", "a.idx", "uit.gpkg"}},
        {"batch",
         {"vertaal", "--modus", "idex-nen1878", "--project", "t.nst", "--uitvoermap", "uit", "--taken", "1",
          "--verslag", "verslag.csv", "a.idx", "b.idx"}},
        {"new_project", {"project", "maak", "nieuw.nst"}},
        {"show_project", {"project", "toon", "t.nst"}},
    };
    return commands;
}

Scenario CommandScenario(const std::string& name) {
    const std::vector<std::string>& words = Commands().at(name);
    Scenario scenario{name,
                      {{"a.idx", smallIdex}, {"a.nen", smallNen1878}, {"a.sf2", smallSuf2}, {"t.nst", smallTable}},
                      ConsoleRun(words)};
    if (words.back().starts_with("uit")) scenario.before[words.back()] = "van gisteren";
    // The libraries that draw and find fonts end a program that has no memory for them.
    scenario.triesMemory = name != "draw_png";
    if (name == "batch") {
        scenario.before["b.idx"] = smallIdex;
        scenario.before["uit/a.sfn"] = "van gisteren";
    }
    return scenario;
}

Scenario GoldenScenario(const std::string& name) {
    const TestFolder folder;
    LayOutInputs(name, folder.Path());
    return {goldenMark + name, FilesBelow(folder.Path()), ConsoleRun(GoldenWords(name))};
}

}  // namespace

std::vector<std::string> ScenarioNames() {
    std::vector<std::string> names;
    for (const auto& command : Commands()) names.push_back(command.first);
    for (const std::string& name : WindowScenarioNames()) names.push_back(name);
    for (const std::string& name : GoldenNames()) names.push_back(goldenMark + name);
    return names;
}

Scenario ScenarioNamed(const std::string& name) {
    const std::vector<std::string> windows = WindowScenarioNames();
    if (std::find(windows.begin(), windows.end(), name) != windows.end()) return WindowScenario(name);
    return name.starts_with(goldenMark) ? GoldenScenario(name.substr(goldenMark.size())) : CommandScenario(name);
}

std::function<int()> ConsoleRun(const std::vector<std::string>& words) {
    auto all = std::make_shared<std::vector<std::string>>(words);
    all->insert(all->begin(), "korvande-cli");
    auto pointers = std::make_shared<std::vector<char*>>();
    for (std::string& word : *all) pointers->push_back(word.data());
    pointers->push_back(nullptr);
    return [all, pointers] { return ConsoleProgram(static_cast<int>(all->size()), pointers->data()); };
}

}  // namespace korvande::testing
