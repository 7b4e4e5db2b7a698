#include "tests/run/Damage.h"

#include <functional>
#include <vector>

namespace korvande::testing {

namespace {

using Strings = std::vector<std::string>;

constexpr std::string_view lineEnd = "\r\n";

Strings LinesOf(const std::string& bytes) {
    Strings lines;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = bytes.find(lineEnd, at);
        lines.push_back(bytes.substr(at, end - at));
        at = end + lineEnd.size();
    }
    return lines;
}

std::string Joined(const Strings& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + std::string(lineEnd);
    return bytes;
}

// A file that is being damaged, by its lines.
class Patient {
 public:
    Patient(Chance& itsChance, const std::string& bytes) : chance(itsChance), lines(LinesOf(bytes)) {}

    // The lines that a test of them allows, from the first on that begins the body.
    template <class Test>
    std::vector<std::size_t> Places(Test test) const {
        std::vector<std::size_t> places;
        for (std::size_t i = body; i < lines.size(); ++i) {
            if (test(lines[i])) places.push_back(i);
        }
        return places;
    }

    // One of them; false when there is none.
    template <class Test>
    bool Choose(Test test) {
        const auto places = Places(test);
        if (places.empty()) return false;
        place = places[chance.Below(places.size())];
        return true;
    }

    std::string& Line() { return lines[place]; }

    Damaged Done(const std::string& what) const {
        return {Joined(lines), what + " in line " + std::to_string(place + 1) + ": " +
                                   (place < lines.size() ? lines[place] : std::string())};
    }

    Chance& chance;
    Strings lines;
    std::size_t body = 0;  // the first line that may be damaged
    std::size_t place = 0;
};

bool Any(const std::string& line) { return line.size() > 1; }

// What can be done to any file

Damaged CutOff(Patient& patient, const std::string& bytes, std::size_t before) {
    const std::size_t length = patient.chance.Below(before);
    return {bytes.substr(0, length), "cut off behind byte " + std::to_string(length)};
}

// Only where lines have their width a lost beginning, or something in the middle, can be known from a value.
enum class Lines { OfAnyWidth, OfFixedWidth };

Damaged Shorten(Patient& patient, Lines lines) {
    patient.Choose(Any);
    std::string& line = patient.Line();
    const std::size_t lost = 1 + patient.chance.Below(line.size() - 1);
    if (lines == Lines::OfFixedWidth && patient.chance.Once(3)) {
        line.erase(0, lost);
    } else {
        line.erase(line.size() - lost);
    }
    return patient.Done("shortened by " + std::to_string(lost));
}

Damaged Lengthen(Patient& patient, Lines lines) {
    patient.Choose(Any);
    std::string& line = patient.Line();
    const std::string more = patient.chance.Once(2) ? std::string(1 + patient.chance.Below(9), ' ')
                                                    : std::to_string(patient.chance.Between(1, 99999));
    const bool inside = lines == Lines::OfFixedWidth && patient.chance.Once(2);
    line.insert(inside ? patient.chance.Below(line.size()) : line.size(), more);
    return patient.Done("lengthened");
}

void MakeNoNumber(Patient& patient, std::string& line, std::size_t first, std::size_t length) {
    std::vector<std::size_t> digits;
    for (std::size_t i = first; i < first + length; ++i) {
        if (line[i] >= '0' && line[i] <= '9') digits.push_back(i);
    }
    if (!digits.empty()) line[digits[patient.chance.Below(digits.size())]] = "lOx?"[patient.chance.Below(4)];
}

// What can be done to IDEX

bool IsRow(const std::string& line) { return line.ends_with(';'); }
bool IsEnd(const std::string& line) { return line.starts_with("END "); }
bool IsHeader(const std::string& line) { return line.ends_with(')'); }
bool IsPoint(const std::string& line) { return line.ends_with(",33.3;"); }
bool IsEdge(const std::string& line) {
    return IsRow(line) && (line.find("STRAIGHT") != std::string::npos || line.find("_") != std::string::npos) &&
           line.find('"') == std::string::npos;
}

Damaged LoseTerminator(Patient& patient) {
    patient.Choose(IsRow);
    if (patient.chance.Once(2)) {
        patient.Line().pop_back();
    } else {
        patient.Line().back() = ":.,|"[patient.chance.Below(4)];
    }
    return patient.Done("terminator");
}

Damaged LoseEnd(Patient& patient) {
    patient.Choose(IsEnd);
    if (patient.chance.Once(2)) {
        patient.lines.erase(patient.lines.begin() + static_cast<std::ptrdiff_t>(patient.place));
        return patient.Done("END lost");
    }
    patient.Line()[patient.chance.Below(3)] = 'X';
    return patient.Done("END changed");
}

Damaged ChangeColumn(Patient& patient) {
    patient.Choose(IsHeader);
    std::string& line = patient.Line();
    const std::size_t open = line.find('(');
    Strings names;
    for (std::size_t at = open + 1; at < line.size();) {
        const std::size_t end = std::min(line.find(',', at), line.size() - 1);
        names.push_back(line.substr(at, end - at));
        at = end + 1;
    }
    const std::size_t chosen = patient.chance.Below(names.size());
    if (patient.chance.Once(2)) {
        names[chosen] += "X";
    } else {
        names.erase(names.begin() + static_cast<std::ptrdiff_t>(chosen));
    }
    line.resize(open + 1);
    for (std::size_t i = 0; i < names.size(); ++i) line += (i == 0 ? "" : ",") + names[i];
    line += ")";
    return patient.Done("column");
}

Damaged ChangeSeparator(Patient& patient) {
    patient.Choose(IsRow);
    std::string& line = patient.Line();
    std::vector<std::size_t> separators;
    bool isQuoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') isQuoted = !isQuoted;
        if (line[i] == ',' && !isQuoted) separators.push_back(i);
    }
    const std::size_t at = separators[patient.chance.Below(separators.size())];
    if (patient.chance.Once(2)) {
        line.erase(at, 1);
    } else {
        line[at] = ".; |"[patient.chance.Below(4)];
    }
    return patient.Done("separator");
}

Damaged SpoilCoordinate(Patient& patient) {
    patient.Choose(IsPoint);
    std::string& line = patient.Line();
    const std::size_t first = line.find("\",") + 2;
    MakeNoNumber(patient, line, first, line.find(",\"", first) - first);
    return patient.Done("coordinate");
}

Damaged PutInBlock(Patient& patient) {
    patient.Choose([](const std::string& line) { return IsPoint(line) || IsEdge(line); });
    const Strings block = {"THEMA (Nummer,Soort)", "1,\"a\";", "2,\"b\";", "END THEMA"};
    patient.lines.insert(patient.lines.begin() + static_cast<std::ptrdiff_t>(patient.place), block.begin(),
                         block.end());
    return patient.Done("block put in");
}

Damaged ChangeLineType(Patient& patient) {
    if (!patient.Choose(IsEdge)) return SpoilCoordinate(patient);
    std::string& line = patient.Line();
    line.insert(line.size() - 1, "X");
    return patient.Done("line type");
}

// What can be done to NEN1878 and SUF2

Damaged ChangeEndCode(Patient& patient) {
    patient.Choose([](const std::string& line) { return !line.starts_with("99"); });
    const std::string codes[] = {"00", "01", "  ", "02", "0 "};
    patient.Line().replace(62, 2, codes[patient.chance.Below(std::size(codes))]);
    return patient.Done("end code");
}

Damaged ChangeType(Patient& patient) {
    patient.Choose(Any);
    const std::string types[] = {"03", "04", "05", "06", "07", "08", "00", "AA", "  "};
    patient.Line().replace(0, 2, types[patient.chance.Below(std::size(types))]);
    return patient.Done("record type");
}

Damaged SpoilField(Patient& patient) {
    constexpr std::size_t firstX = 12;  // behind the first field
    const auto isCoordinates = [](const std::string& line) { return line.starts_with("04") && line[firstX] == 'X'; };
    if (!patient.Choose(isCoordinates)) return ChangeEndCode(patient);
    MakeNoNumber(patient, patient.Line(), firstX + 1, 9);
    return patient.Done("coordinate");
}

}  // namespace

Damaged DamageIdex(Chance& chance, const std::string& idex) {
    Patient patient(chance, idex);
    while (!patient.lines[patient.body].starts_with("LAYERS")) ++patient.body;
    switch (chance.Below(11)) {
        case 0:
            return CutOff(patient, idex, idex.find("END DATABASE"));
        case 1:
        case 2:
            return Shorten(patient, Lines::OfAnyWidth);
        case 3:
            return Lengthen(patient, Lines::OfAnyWidth);
        case 4:
            return LoseTerminator(patient);
        case 5:
            return LoseEnd(patient);
        case 6:
            return ChangeColumn(patient);
        case 7:
            return ChangeSeparator(patient);
        case 8:
            return SpoilCoordinate(patient);
        case 9:
            return PutInBlock(patient);
        default:
            return ChangeLineType(patient);
    }
}

Damaged DamageExchange(Chance& chance, const std::string& nen) {
    Patient patient(chance, nen);
    while (patient.lines[patient.body].substr(0, 2) < "03") ++patient.body;
    switch (chance.Below(7)) {
        case 0:
            return CutOff(patient, nen, nen.rfind("\n99") + 1);
        case 1:
        case 2:
            return Shorten(patient, Lines::OfFixedWidth);
        case 3:
            return Lengthen(patient, Lines::OfFixedWidth);
        case 4:
            return ChangeEndCode(patient);
        case 5:
            return ChangeType(patient);
        default:
            return SpoilField(patient);
    }
}

}  // namespace korvande::testing
