#include "tests/reference/Records.h"

#include <utility>

#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

const std::string closingRecord = "99" + std::string(62, ' ');

bool HasEndCode(const std::string& line) { return EndsWith(line, "00") || EndsWith(line, "01"); }

// The rules for the columns of a line.
std::string InColumns(std::string line) {
    if (line.size() > 64) {
        const std::string first = line.substr(0, 64);
        const std::string last = line.substr(line.size() - 64);
        const bool isRecordAndBlanks =
            !HasEndCode(last) && (HasEndCode(first) || BeginsWith(first, "99")) && Trimmed(line.substr(64)).empty();
        line = isRecordAndBlanks ? first : last;
    }
    if (line.size() == 63) line = "0" + line;
    if (!line.empty() && static_cast<unsigned char>(line[0]) < '0') line[0] = '0';
    return line;
}

}  // namespace

Records::Records(std::vector<std::string> fileLines) : lines(std::move(fileLines)) {}

std::string Records::TakeHeader(const std::string& type) {
    while (type == "01" && next < lines.size() && Trimmed(lines[next], " \t").empty()) ++next;
    if (next == lines.size()) return "";
    std::string line = lines[next++];
    if (!BeginsWith(line, type)) line = InColumns(line);
    return BeginsWith(line, type) ? line : "";
}

bool Records::IsClosing(const std::string& line) const {
    if (!BeginsWith(line, "99")) return false;
    for (std::size_t i = next; i < lines.size(); ++i) {
        if (!lines[i].empty()) return false;
    }
    return true;
}

std::string Records::Read() {
    while (next < lines.size()) {
        const std::string line = lines[next++];
        if (IsClosing(line)) return closingRecord;
        if (line.size() >= 63) return InColumns(line);
    }
    return closingRecord;
}

std::string Records::Take() {
    const std::string record = Look();
    ahead.reset();
    return record;
}

std::string Records::Look() {
    if (!ahead) ahead = Read();
    return *ahead;
}

Group Records::TakeGroup() {
    std::string record = Take();
    Group group;
    group.type = record.substr(0, 2);
    std::string data = record.substr(2, 60);
    while (EndsWith(record, "00") && Look().substr(0, 2) == group.type) {
        record = Take();
        data += record.substr(2, 60);
    }
    data = Trimmed(data);
    for (std::size_t at = 0; at < data.size(); at += 10) {
        group.fields.push_back({data[at], data.substr(at, 10).substr(1)});
    }
    return group;
}

}  // namespace korvande::reference
