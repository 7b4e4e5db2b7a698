#include "cli/Patterns.h"

#include <utility>

#include "cli/Arguments.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

// The names that an argument stands for: its own when it is no pattern.
std::vector<std::string> NamesFor(const std::string& file) {
    const Text name = FromUtf8(file);
    const Text pattern = FileNameOf(name);
    if (pattern.find_first_of(u"*?") == Text::npos) return {file};
    const Text folder = FolderOf(name);
    std::vector<std::string> names;
    for (const Text& found : ListFiles(folder, pattern)) names.push_back(ToUtf8(Concat(folder, found)));
    if (names.empty()) throw UsageError{Concat(u"Geen bestand voldoet aan: ", name)};
    return names;
}

}  // namespace

std::vector<std::string> WithPatternsExpanded(const std::vector<std::string>& files) {
    std::vector<std::string> expanded;
    for (const std::string& file : files) {
        for (std::string& name : NamesFor(file)) expanded.push_back(std::move(name));
    }
    return expanded;
}

std::vector<std::string> WithPatternsOfOneExpanded(const std::vector<std::string>& files) {
    std::vector<std::string> expanded;
    for (const std::string& file : files) {
        const std::vector<std::string> names = NamesFor(file);
        if (names.size() > 1) {
            throw UsageError{Concat(u"Meer dan een bestand voldoet aan: ", FromUtf8(file),
                                    u"; gebruik --uitvoermap om er meer te vertalen.")};
        }
        expanded.push_back(names.front());
    }
    return expanded;
}

}  // namespace korvande
