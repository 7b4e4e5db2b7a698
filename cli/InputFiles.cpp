#include "cli/InputFiles.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "cli/OptionValues.h"
#include "cli/Print.h"
#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/Folders.h"
#include "host/modFileHandling.h"
#include "run/Recognise.h"

namespace korvande {

namespace {

bool CanBeRead(const Text& name) {
    try {
        const FileHandle file(OpenNativeFile(name, OpenMode::Read));
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

class Search {
 public:
    Search(Screen& itsScreen, const FolderSearch& itsSearch, InputFiles& itsFound)
        : screen(itsScreen),
          search(itsSearch),
          except(itsSearch.except.empty() ? std::string() : FileIdentity(itsSearch.except)),
          found(itsFound) {}

    // The files of a folder come before those of the folders in it.
    void Take(const Text& top) {
        std::vector<Text> toDo{Text()};
        while (!toDo.empty()) {
            const Text below = std::move(toDo.back());
            toDo.pop_back();
            const FolderContents contents = Read(Concat(top, below));
            for (const Text& file : contents.files) TakeFile(Concat(top, below, file), below);
            if (!search.goesDeep) return;
            for (auto folder = contents.folders.rbegin(); folder != contents.folders.rend(); ++folder) {
                Text deeper = Concat(below, *folder);
                if (!except.empty() && FileIdentity(Concat(top, deeper)) == except) continue;
                toDo.push_back(FolderWithSeparator(deeper));
            }
        }
    }

 private:
    FolderContents Read(const Text& folder) {
        screen.PumpEvents();
        try {
            return ContentsOf(folder);
        } catch (const RuntimeError& error) {
            found.unreadFolders.push_back(Concat(u"Kon map: '", folder, u"' niet lezen: ", error.Description()));
            return {};
        }
    }

    void TakeFile(Text name, const Text& below) {
        if (IsWanted(name)) {
            found.files.push_back({std::move(name), below});
        } else {
            ++found.passedOver;
        }
    }

    bool IsWanted(const Text& name) {
        if (ToCapitals(name).ends_with(u".LOG") || !IsRegularFileOrMissing(name)) return false;
        const std::optional<Format> format = FormatOfFile(screen, name);
        return format ? search.isWanted(*format) : !CanBeRead(name);
    }

    Screen& screen;
    const FolderSearch& search;
    std::string except;
    InputFiles& found;
};

}  // namespace

InputFiles FindInputFiles(Screen& screen, const std::vector<std::string>& names, const FolderSearch& search) {
    InputFiles found;
    for (const std::string& given : names) {
        const Text name = FromUtf8(given);
        if (FolderExistsAt(name)) {
            found.hasFolders = true;
            Search(screen, search, found).Take(FolderWithSeparator(name));
        } else {
            found.files.push_back({name, {}});
        }
    }
    return found;
}

InputFiles PlainInputFiles(const std::vector<std::string>& names) {
    InputFiles found;
    for (const std::string& name : names) found.files.push_back({FromUtf8(name), {}});
    return found;
}

std::size_t WorkersFor(const std::string& atATime, const InputFiles& inputs) {
    const std::size_t wanted = WorkersOf(atATime, inputs.files.size());
    const bool areRegular = std::all_of(inputs.files.begin(), inputs.files.end(),
                                        [](const InputFile& file) { return IsRegularFileOrMissing(file.name); });
    return areRegular ? wanted : 1;
}

void TellFolders(const InputFiles& inputs, TextView whenEmpty) {
    for (const Text& folder : inputs.unreadFolders) PrintErrorLine(folder);
    if (inputs.hasFolders && inputs.files.empty()) PrintErrorLine(whenEmpty);
}

}  // namespace korvande
