#include "host/RegistryFile.h"

#include <algorithm>
#include <charconv>
#include <unordered_set>

#include "core/RuntimeError.h"
#include "host/FileReplacement.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

constexpr std::string_view heading = "Windows Registry Editor Version 5.00";

std::string Utf16ToUtf8(std::string_view bytes) {
    Text text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[i]);
        const auto high = static_cast<unsigned char>(bytes[i + 1]);
        text.push_back(static_cast<char16_t>(low | (high << 8)));
    }
    return ToUtf8(text);
}

std::string WithoutByteOrderMark(std::string bytes) {
    if (bytes.starts_with("\xFF\xFE")) return Utf16ToUtf8(std::string_view(bytes).substr(2));
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.erase(0, 3);
    return bytes;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

// A text between double quotes, with "\" before "\" and double quotes.
std::string Quoted(TextView text) {
    std::string quoted = "\"";
    for (const char c : ToUtf8(text)) {
        if (c == '"' || c == '\\') quoted.push_back('\\');
        quoted.push_back(c);
    }
    return quoted + '"';
}

// Takes a quoted text off the front; nothing when it does not begin with one or the closing quote is missing.
std::optional<Text> TakeQuoted(std::string_view& rest) {
    if (!rest.starts_with('"')) return {};
    std::string text;
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '"') {
            rest.remove_prefix(i + 1);
            return FromUtf8(text);
        }
        if (rest[i] == '\\' && i + 1 < rest.size()) ++i;
        text.push_back(rest[i]);
    }
    return {};
}

// The key that a line names; nothing for any other line. "[-NAME]", which takes a key away in an import, names none.
std::optional<Text> KeyOfLine(std::string_view line) {
    line = Trim(line);
    if (!line.starts_with('[') || !line.ends_with(']')) return {};
    return FromUtf8(line.substr(1, line.size() - 2));
}

struct ValueLine {
    Text name;
    std::string_view data;
};

std::optional<ValueLine> ValueOfLine(std::string_view line) {
    std::string_view rest = Trim(line);
    std::optional<Text> name;
    if (rest.starts_with('@')) {
        name = Text();
        rest.remove_prefix(1);
    } else {
        name = TakeQuoted(rest);
    }
    rest = Trim(rest);
    if (!name || !rest.starts_with('=')) return {};
    return ValueLine{*name, Trim(rest.substr(1))};
}

RegValue ValueFrom(std::string_view data) {
    constexpr std::string_view doubleWordMark = "dword:";
    RegValue value;
    std::string_view rest = data;
    if (const std::optional<Text> text = TakeQuoted(rest); text && rest.empty()) {
        value.type = RegValueType::String;
        value.text = *text;
    } else if (data.starts_with(doubleWordMark)) {
        const std::string_view digits = data.substr(doubleWordMark.size());
        const char* const end = digits.data() + digits.size();
        const auto [stop, problem] = std::from_chars(digits.data(), end, value.doubleWord, 16);
        if (problem == std::errc() && stop == end) value.type = RegValueType::DoubleWord;
    }
    return value;
}

bool SameName(TextView a, TextView b) { return ToCapitals(a) == ToCapitals(b); }

// Whether `name` is the key or lies below it.
bool IsWithin(TextView name, TextView key) {
    return SameName(name.substr(0, key.size()), key) && (name.size() == key.size() || name[key.size()] == u'\\');
}

}  // namespace

RegistryFile::RegistryFile(TextView name) : fileName(name) {
    // A device may have no end.
    if (!IsRegularFileOrMissing(name)) throw RuntimeError(errors::pathAccess);
    if (FileExistsAt(name)) lines = SplitLines(WithoutByteOrderMark(FileBytesOf(name)));
    const bool isEmpty = std::all_of(lines.begin(), lines.end(), [](const auto& line) { return Trim(line).empty(); });
    if (isEmpty) {
        lines = {std::string(heading)};
    } else if (Trim(lines.front()) != heading) {
        // Some other file, which is not ours to write over.
        throw RuntimeError(errors::typeMismatch);
    }
}

void RegistryFile::Save() const {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    ReplaceFile(fileName, text);
}

bool RegistryFile::HasKey(TextView key) const {
    return std::any_of(lines.begin(), lines.end(), [key](const std::string& line) {
        const std::optional<Text> name = KeyOfLine(line);
        return name && IsWithin(*name, key);
    });
}

void RegistryFile::AddKey(TextView key) {
    if (HasKey(key)) return;
    if (!lines.back().empty()) lines.emplace_back();
    lines.push_back("[" + ToUtf8(key) + "]");
}

std::vector<Text> RegistryFile::SubKeys(TextView key) const {
    std::vector<Text> subKeys;
    std::unordered_set<Text> seen;
    for (const std::string& line : lines) {
        const std::optional<Text> name = KeyOfLine(line);
        if (!name || !IsWithin(*name, key) || name->size() <= key.size() + 1) continue;
        const TextView below = TextView(*name).substr(key.size() + 1);
        const TextView subKey = below.substr(0, below.find(u'\\'));
        if (seen.insert(ToCapitals(subKey)).second) subKeys.emplace_back(subKey);
    }
    return subKeys;
}

RegistryFile::Places RegistryFile::Find(TextView key, TextView valueName) const {
    Places places;
    bool inKey = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const std::optional<Text> name = KeyOfLine(lines[i])) {
            inKey = SameName(*name, key);
        } else if (const std::optional<ValueLine> value = ValueOfLine(lines[i]); inKey && value) {
            if (SameName(value->name, valueName)) places.value = i;
        }
        if (inKey && !Trim(lines[i]).empty()) places.keyEnd = i + 1;
    }
    return places;
}

std::optional<RegValue> RegistryFile::FindValue(TextView key, TextView valueName) const {
    const Places places = Find(key, valueName);
    if (places.value == std::string::npos) return {};
    return ValueFrom(ValueOfLine(lines[places.value])->data);
}

// A value of another kind may run on over several lines, each but the last ending in "\".
void RegistryFile::RemoveContinuation(std::size_t line) {
    if (ValueFrom(ValueOfLine(lines[line])->data).type == RegValueType::String) return;
    std::size_t last = line;
    while (last + 1 < lines.size() && Trim(lines[last]).ends_with('\\')) ++last;
    const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(line) + 1;
    lines.erase(begin, begin + static_cast<std::ptrdiff_t>(last - line));
}

void RegistryFile::SetText(TextView key, TextView valueName, TextView text) {
    const std::string line = (valueName.empty() ? "@" : Quoted(valueName)) + "=" + Quoted(text);
    Places places = Find(key, valueName);
    if (places.value != std::string::npos) {
        RemoveContinuation(places.value);
        lines[places.value] = line;
        return;
    }
    if (places.keyEnd == std::string::npos) {
        // So far the key was there by a key below it only.
        lines.emplace_back();
        lines.push_back("[" + ToUtf8(key) + "]");
        places.keyEnd = lines.size();
    }
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(places.keyEnd), line);
}

}  // namespace korvande
