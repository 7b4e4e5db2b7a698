#include "host/Folders.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "core/RuntimeError.h"
#include "host/SystemPath.h"

namespace korvande {

namespace {

namespace fs = std::filesystem;

fs::path FolderPath(TextView name) { return name.empty() ? fs::path(".") : PathOf(name); }

// The library's failures as errors of the run.
template <class Action>
auto AsRunTimeError(Action action) {
    try {
        return action();
    } catch (const std::system_error& error) {
        throw RuntimeError(ErrorNumberOf(error.code().default_error_condition().value()));
    }
}

// Names with what they are sorted by.
class Names {
 public:
    void Add(Text name) {
        Text capitals = ToCapitals(name);
        names.emplace_back(std::move(capitals), std::move(name));
    }

    std::vector<Text> Sorted() {
        std::sort(names.begin(), names.end());
        std::vector<Text> sorted;
        sorted.reserve(names.size());
        for (auto& [capitals, name] : names) sorted.push_back(std::move(name));
        return sorted;
    }

 private:
    std::vector<std::pair<Text, Text>> names;
};

}  // namespace

bool FolderExistsAt(TextView name) {
    std::error_code ignored;
    return fs::is_directory(FolderPath(name), ignored);
}

bool FolderIsMissing(TextView name) {
    std::error_code ignored;
    const fs::file_status status = fs::status(FolderPath(name), ignored);
    return fs::status_known(status) && !fs::is_directory(status);
}

FolderContents ContentsOf(TextView folder) {
    return AsRunTimeError([folder] {
        Names files;
        Names folders;
        for (const fs::directory_entry& entry : fs::directory_iterator(FolderPath(folder))) {
            std::error_code ignored;
            const bool isFolder = entry.is_directory(ignored);
            if (isFolder && entry.is_symlink(ignored)) continue;
            (isFolder ? folders : files).Add(NameOf(entry.path().filename()));
        }
        return FolderContents{files.Sorted(), folders.Sorted()};
    });
}

void MakeFolders(TextView folder) {
    AsRunTimeError([folder] { return fs::create_directories(FolderPath(folder)); });
}

std::optional<fs::file_time_type> WriteTimeOf(TextView name) {
    std::error_code problem;
    const fs::file_time_type time = fs::last_write_time(FolderPath(name), problem);
    if (problem) return {};
    return time;
}

}  // namespace korvande
