#include "host/modFileHandling.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <random>
#include <utility>

#include "core/FolderNames.h"
#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/FileIdentity.h"
#include "host/SystemPath.h"

namespace korvande {

namespace {

namespace fs = std::filesystem;

// The path at the end of a chain of links, which may be that of a file still to come.
fs::path BehindLinks(fs::path path) {
    constexpr int longestChain = 40;
    std::error_code ignored;
    for (int i = 0; i < longestChain && fs::is_symlink(path, ignored); ++i) {
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

RuntimeError SystemError(const std::error_code& problem) {
    return RuntimeError(ErrorNumberOf(problem.default_error_condition().value()));
}

// What a path leads to.
fs::file_type TypeOf(const fs::path& path) {
    std::error_code problem;
    const fs::file_type type = fs::status(path, problem).type();
    if (type == fs::file_type::none) throw SystemError(problem);
    return type;
}

// The result of an action, or what stands for its failure.
template <class Result, class Action>
Result OrOnFailure(Result failure, Action action) {
    try {
        return action();
    } catch (const std::exception&) {
        return failure;
    }
}

constexpr bool IsSeparator(char16_t character) { return character == u'\\' || character == u'/'; }

// Where the last component of a name begins, and where it ends. The letter of a drive with its colon is no part of it.
std::pair<std::size_t, std::size_t> LastComponent(TextView name) {
    const std::size_t first = name.size() >= 2 && name[1] == u':' ? 2 : 0;
    std::size_t end = name.size();
    while (end > first && IsSeparator(name[end - 1])) --end;
    std::size_t begin = end;
    while (begin > first && !IsSeparator(name[begin - 1])) --begin;
    return {begin, end};
}

// Whether a text fits a pattern in which "*" stands for any characters and "?" for one.
bool Matches(TextView text, TextView pattern) {
    std::size_t at = 0;
    std::size_t inPattern = 0;
    std::size_t star = TextView::npos;  // the last "*" met, and the text that it stands for so far ends at `starEnd`
    std::size_t starEnd = 0;
    while (at < text.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == u'*') {
            star = inPattern++;
            starEnd = at;
        } else if (inPattern < pattern.size() && (pattern[inPattern] == u'?' || pattern[inPattern] == text[at])) {
            ++inPattern;
            ++at;
        } else if (star != TextView::npos) {
            inPattern = star + 1;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', inPattern) == TextView::npos;
}

// The library's copy tells of a full disk no more than that something went wrong.
void CopyBytes(std::FILE* from, std::FILE* to) {
    std::vector<char> block(std::size_t{1} << 16);
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), from)) {
        if (std::ferror(from) != 0) break;
        if (std::fwrite(block.data(), 1, count, to) != count) throw RuntimeError(ErrorNumberOf(errno));
    }
    if (std::ferror(from) != 0 || std::fflush(to) != 0) throw RuntimeError(ErrorNumberOf(errno));
}

void Copy(TextView source, TextView target) {
    if (SameFile(source, target)) throw RuntimeError(errors::pathAccess);
    const FileHandle from(OpenNativeFile(source, OpenMode::Read));
    FileHandle to(OpenNativeFile(target, OpenMode::Write));
    try {
        CopyBytes(from.get(), to.get());
    } catch (const RuntimeError&) {
        // Half a copy is nothing to go on with.
        to.reset();
        if (IsRegularFileOrMissing(target)) DeleteFileAt(target);
        throw;
    }
}

void ShowCopyError(Screen& screen, TextView source, TextView target, const RuntimeError& error) {
    ShowMessage(screen, Concat(u"FileCopy failed:\nSource: ", source, u"\nTarget: ", target, u"\nCause: ",
                               error.Description()));
}

// A key below a hive, open as long as this object lives.
class OpenKey {
 public:
    OpenKey(RegKey hive, TextView name) : isOpen(RegOpenSubKey(hive, name, key)) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (isOpen) RegCloseKeyHandle(key);
    }

    RegKey key = 0;
    bool isOpen;
};

}  // namespace

bool FileExistsAt(TextView name) {
    return OrOnFailure(false, [name] {
        const fs::file_status status = fs::status(PathOf(name));
        return fs::exists(status) && !fs::is_directory(status);
    });
}

bool FileIsMissing(TextView name) {
    try {
        std::error_code ignored;
        const fs::file_type type = fs::status(PathOf(name), ignored).type();
        return type == fs::file_type::not_found || type == fs::file_type::directory;
    } catch (const RuntimeError&) {
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool IsFreeName(TextView name) {
    return OrOnFailure(true, [name] {
        std::error_code ignored;
        return fs::symlink_status(PathOf(name), ignored).type() == fs::file_type::not_found;
    });
}

bool MayBeMade(TextView name) {
    std::error_code problem;
    const fs::file_type type = fs::symlink_status(PathOf(name), problem).type();
    if (type == fs::file_type::none) throw SystemError(problem);
    return type == fs::file_type::not_found;
}

bool IsRegularFileOrMissing(TextView name) {
    return OrOnFailure(false, [name] { return MayBeReplaced(name); });
}

bool MayBeReplaced(TextView name) {
    const fs::path path = PathOf(name);
    if (IsUnlistedDevice(path)) return false;
    const fs::file_type type = TypeOf(path);
    return type == fs::file_type::regular || type == fs::file_type::not_found;
}

bool SameFile(TextView name1, TextView name2) { return FileIdentity(name1) == FileIdentity(name2); }

std::string FileIdentity(TextView name) {
    return OrOnFailure(ToUtf8(ToCapitals(name)), [name] {
        // Of what does not exist yet: the folder that does, and the rest of the name.
        fs::path path = fs::absolute(BehindLinks(PathOf(name)));
        std::string rest;
        while (true) {
            if (const std::optional<std::string> identity = ExistingFileIdentity(path)) return *identity + rest;
            const fs::path parent = path.parent_path();
            if (parent == path) return rest;
            if (path.has_filename()) rest.insert(0, "/" + ToUtf8(ToCapitals(NameOf(path.filename()))));
            path = parent;
        }
    });
}

Text FileNameOf(TextView name) {
    const auto [begin, end] = LastComponent(name);
    return Text(name.substr(begin, end - begin));
}

Text FolderOf(TextView name) {
    const auto [begin, end] = LastComponent(name);
    if (begin == end || begin == 0) return {};
    Text folder(name.substr(0, begin));
    if (!IsSeparator(folder.back())) folder.push_back(u'\\');
    return folder;
}

Text FullName(TextView name) {
    return OrOnFailure(Text(name), [name] { return NameOf(fs::absolute(PathOf(name))); });
}

Text FolderWithSeparator(TextView folder) {
    Text result(folder);
    if (folder.empty() || IsSeparator(folder.back())) return result;
    const std::size_t separator = folder.find_last_of(u"\\/");
    const bool isDrive = folder.back() == u':';
    if (separator != TextView::npos) {
        result.push_back(folder[separator]);
    } else {
        result.push_back(isDrive ? u'\\' : static_cast<char16_t>(fs::path::preferred_separator));
    }
    return result;
}

Text WithLastThreeReplaced(TextView name, TextView extension) {
    return Concat(name.substr(0, name.size() - std::min<std::size_t>(name.size(), 3)), extension);
}

bool CopyFileWithReport(Screen& screen, TextView source, TextView target, bool showError) {
    try {
        Copy(source, target);
        return true;
    } catch (const std::exception&) {
        if (showError) ShowCopyError(screen, source, target, CurrentError());
    }
    return false;
}

bool DeleteFileAt(TextView name) {
    return OrOnFailure(false, [name] {
        const fs::path path = PathOf(name);
        const OwnChange change(ToUtf8(NameOf(path)));
        return !fs::is_directory(fs::symlink_status(path)) && fs::remove(path);
    });
}

bool RenameFileAt(TextView from, TextView to, Replace replace) {
    return OrOnFailure(false, [&] {
        PutFileAt(from, to, replace);
        return true;
    });
}

void PutFileAt(TextView from, TextView to, Replace replace) {
    if (replace == Replace::No && !IsFreeName(to)) throw RuntimeError(errors::accessDenied);
    const fs::path source = PathOf(from);
    const fs::path target = BehindLinks(PathOf(to));
    const fs::file_type type = TypeOf(target);
    if (type == fs::file_type::directory) throw RuntimeError(errors::pathAccess);
    if (type != fs::file_type::not_found) {
        // To the system a file that may not be written may well be replaced; to its owner it may not.
        const FileHandle writable(OpenNativeFile(to, OpenMode::Append));
    }
    const OwnChange leaving(ToUtf8(NameOf(source)));
    const OwnChange arriving(ToUtf8(NameOf(target)));
    std::error_code problem;
    fs::rename(source, target, problem);
    // What was written is gone with its folder.
    if (problem == std::errc::no_such_file_or_directory) throw RuntimeError(errors::pathNotFound);
    if (problem) throw SystemError(problem);
}

Text TemporaryNameBeside(TextView name) {
    const fs::path folder = BehindLinks(PathOf(name)).parent_path();
    std::random_device random;
    while (true) {
        const fs::path path = folder / ("~korvande-" + std::to_string(random()) + ".tmp");
        std::error_code problem;
        const fs::file_type type = fs::symlink_status(path, problem).type();
        if (type == fs::file_type::none) throw SystemError(problem);
        if (type == fs::file_type::not_found) return NameOf(path);
    }
}

std::vector<Text> ListFiles(TextView folder, TextView pattern) {
    const Text capitals = ToCapitals(pattern);
    std::vector<std::pair<Text, Text>> found;  // in capitals, and as they are
    std::error_code problem;
    const auto list = [&] {
        fs::directory_iterator entry(folder.empty() ? fs::path(".") : PathOf(folder));
        for (; entry != fs::directory_iterator(); entry.increment(problem)) {
            Text name = NameOf(entry->path().filename());
            Text inCapitals = ToCapitals(name);
            if (!Matches(inCapitals, capitals) || entry->is_directory(problem)) continue;
            found.emplace_back(std::move(inCapitals), std::move(name));
        }
        return true;
    };
    OrOnFailure(false, list);
    std::sort(found.begin(), found.end());
    std::vector<Text> names;
    names.reserve(found.size());
    for (auto& [inCapitals, name] : found) names.push_back(std::move(name));
    return names;
}

bool ReadRegistryValue(RegKey hive, TextView keyName, TextView valueName, Text& value) {
    constexpr std::size_t room = 1023;  // 1024 characters less the NUL character at a text's end
    value.clear();
    const OpenKey open(hive, keyName);
    RegValue found;
    if (!open.isOpen || RegQueryValue(open.key, valueName, found) != regcodes::success) return false;
    if (found.type == RegValueType::String && found.text.size() <= room) {
        value = found.text.substr(0, found.text.find(u'\0'));
        return true;
    }
    if (found.type == RegValueType::DoubleWord) value = Concat(found.doubleWord);
    return found.type == RegValueType::DoubleWord;
}

bool WriteRegistryValue(RegKey hive, TextView keyName, TextView valueName, TextView data) {
    const OpenKey open(hive, keyName);
    return open.isOpen && RegSetTextValue(open.key, valueName, data) == regcodes::success;
}

}  // namespace korvande
