#include "tests/faults/Judgement.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <initializer_list>
#include <sstream>

#include "core/CharacterSet.h"

namespace korvande::testing {

namespace {

bool Has(const std::string& text, std::string_view part) { return text.find(part) != std::string::npos; }

bool HasAny(const std::string& text, std::initializer_list<std::string_view> parts) {
    return std::any_of(parts.begin(), parts.end(), [&text](std::string_view part) { return Has(text, part); });
}

bool IsLogBook(const std::string& bytes) { return Has(bytes, "NEN1878/SUF2 Vertaler Versie:"); }

// The words for an error of the system, with or without its number.
bool NamesCause(const std::string& text, int error) {
    switch (error) {
        case ENOMEM:
            return HasAny(text, {"Onvoldoende geheugen", "Foutcode: 7\n", "Error:7 "});
        case ENOSPC:
            return HasAny(text, {"Schijf vol", "Foutcode: 61", "Error:61"});
        case EACCES:
        case EPERM:
            return HasAny(text, {"Toegang geweigerd", "Foutcode: 70", "Error:70"});
        default:
            return HasAny(text, {"Fout bij toegang tot pad of bestand", "Foutcode: 75", "Error:75"});
    }
}

// Everything that a person is told: on the streams, and in the log books.
std::string Told(const Scenario& scenario, const Trial& trial) {
    std::string told = trial.output + trial.error;
    for (const auto& [name, bytes] : trial.after) {
        if (!scenario.before.contains(name) && IsLogBook(bytes)) told += Windows1252ToUtf8(bytes);
    }
    return told;
}

// The settings of the window: that they could not be kept is told to nobody, but each value is the old or the new one.
bool IsSettings(const std::string& name) { return name.ends_with(".reg"); }

bool HasEachLineIn(const std::string& text, const std::string& old, const std::string& now) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!Has(old, line) && !Has(now, line)) return false;
    }
    return text.ends_with('\n');
}

bool IsTemporary(const std::string& name) { return Has(name, "~korvande-"); }

// A window that cannot open its control table says so; it has no project then, and who goes on translates without one.
bool HasNoProject(const Trial& trial) { return Has(trial.error, "P.NST' niet openen;"); }
bool TellsNoProject(const std::string& settings) { return Has(settings, "\"CurrProject\"=\"\"\r\n"); }

// The library of databases opens what it cannot open once more, for reading only, and is refused when it writes.
bool IsOpenedForReading(const Fault& fault, const Trial& trial) {
    return fault.operation == Operation::Open && IsTemporary(trial.requests.place);
}

// What cannot be told when these are what fails.
bool HitsStandardStreams(const Trial& trial) { return Has(trial.requests.place, "memfd:"); }

// What other libraries read by themselves, such as fonts: how they go on is theirs to say.
bool HitsSystemFiles(const Trial& trial) {
    const std::string place = trial.requests.place;
    return place.starts_with("/usr/") || place.starts_with("/etc/") || place.starts_with("/var/");
}

// A window whose settings cannot be read does not find LISCAD, and says that.
bool HitsSettings(const Trial& trial) { return IsSettings(trial.requests.place); }

// Also a log book that was to be thrown away.
bool MayRemain(const Fault& fault) { return fault.operation == Operation::Remove; }

std::string FirstDifference(const Files& expected, const Files& actual) {
    for (const auto& [name, bytes] : expected) {
        const auto found = actual.find(name);
        if (IsSettings(name)) continue;
        if (found == actual.end()) return name + " is missing";
        if (found->second != bytes) return name + " is another";
    }
    for (const auto& [name, bytes] : actual) {
        if (!expected.contains(name)) return name + " is too many";
    }
    return {};
}

std::string FaultOfFiles(const Scenario& scenario, const Trial& good, const Fault& fault, const Trial& trial) {
    for (const auto& [name, bytes] : scenario.before) {
        const auto now = trial.after.find(name);
        const auto whenGood = good.after.find(name);
        if (now == trial.after.end()) {
            if (whenGood != good.after.end()) return name + " has gone";
            continue;
        }
        const bool isNew = whenGood != good.after.end() && now->second == whenGood->second;
        const bool isInput = whenGood != good.after.end() && whenGood->second == bytes;
        if (now->second == bytes || isNew) continue;
        if (isInput) return name + " is an input and was changed";
        if (IsSettings(name) && HasEachLineIn(now->second, bytes, whenGood->second)) continue;
        if (IsSettings(name) && HasNoProject(trial) && TellsNoProject(now->second)) continue;
        // Without one of its fonts a picture has other letters.
        if (HitsSystemFiles(trial) && name.ends_with(".png") && IsWhole(now->second)) continue;
        const bool isTold = (trial.status == 1 || HasNoProject(trial)) && IsWhole(now->second);
        if (IsReplaced(name, whenGood->second) && !isTold) return name + " is neither old nor new";
    }
    for (const auto& [name, bytes] : trial.after) {
        if (scenario.before.contains(name)) continue;
        if (MayRemain(fault)) continue;
        if (IsTemporary(name)) return name + " remains";
        const auto whenGood = good.after.find(name);
        const bool isNew =
            whenGood != good.after.end() && (bytes == whenGood->second || !IsReplaced(name, whenGood->second));
        // One that is thrown away when all goes well, or that could not be found again to throw it away.
        const bool isLeft = trial.status > 0 || Has(trial.requests.place, name);
        if ((IsLogBook(bytes) || name.ends_with(".LOG")) && isLeft) continue;
        if (!isNew && (trial.status != 1 || !IsWhole(bytes))) return name + " is not whole";
    }
    return {};
}

// A failed run's log book says so, unless it is the log book that fails, or only what is told after the run.
std::string FaultOfLogBooks(const Scenario& scenario, const Trial& good, const Fault& fault, const Trial& trial) {
    if (trial.status != 3 || fault.manner == Manner::FailsFromHereOn) return {};
    for (const auto& [name, bytes] : trial.after) {
        if (scenario.before.contains(name) || !IsLogBook(bytes)) continue;
        const auto whenGood = good.after.find(name);
        if (whenGood != good.after.end() && whenGood->second == bytes) continue;
        const bool itself = Has(trial.requests.place, name) || Has(trial.error, "logboek kon niet volledig");
        if (!itself && !HasAny(bytes, {"FOUT:", "==>"})) return name + " does not tell that the run failed";
    }
    return {};
}

// As its beginning says how many pages there are.
bool IsWholeDatabase(const std::string& bytes) {
    constexpr std::size_t pageSizePlace = 16;
    constexpr std::size_t pagesPlace = 28;
    if (!bytes.starts_with("SQLite format 3") || bytes.size() < pagesPlace + 4) return false;
    const auto number = [&bytes](std::size_t place, int size) {
        std::size_t value = 0;
        for (int i = 0; i < size; ++i) value = value << 8U | static_cast<unsigned char>(bytes[place++]);
        return value;
    };
    return number(pageSizePlace, 2) * number(pagesPlace, 4) == bytes.size();
}

}  // namespace

bool IsReplaced(const std::string& name, const std::string& bytes) {
    return !IsLogBook(bytes) && !name.ends_with(".csv");
}

bool IsWhole(const std::string& bytes) {
    return bytes.ends_with("99" + std::string(62, ' ') + "\r\n") || bytes.ends_with("END DATABASE\r\n") ||
           bytes.ends_with("</svg>\n") || bytes.ends_with("[End]\r\n") || bytes.ends_with("IEND\xAE\x42\x60\x82") ||
           IsWholeDatabase(bytes);
}

std::string FaultOf(const Scenario& scenario, const Trial& good, const Fault& fault, const Trial& trial) {
    if (trial.status == 128 + SIGALRM) return "it came to no end";
    if (trial.status >= 128) return "signal " + std::to_string(trial.status - 128) + " ended it";
    if (trial.status > 3) return "status " + std::to_string(trial.status);
    const std::string difference = FirstDifference(good.after, trial.after);
    const bool isGood = trial.status == good.status && difference.empty() && trial.output == good.output;
    // How many requests there are depends a little on how fast the run is, for what it keeps of folders ages.
    const bool isNoFailure = !trial.requests.isStruck || fault.manner == Manner::IsShort ||
                             (fault.manner == Manner::IsInterrupted && !HitsStandardStreams(trial));
    if (isNoFailure && !HitsSystemFiles(trial)) {
        if (!isGood) return "status " + std::to_string(trial.status) + ", " + difference;
        return trial.error == good.error ? "" : "other messages";
    }
    if (std::string files = FaultOfFiles(scenario, good, fault, trial); !files.empty()) return files;
    if (isGood) return {};
    if (std::string log = FaultOfLogBooks(scenario, good, fault, trial); !log.empty()) return log;
    if (HitsStandardStreams(trial) || HitsSystemFiles(trial) || HitsSettings(trial) ||
        fault.manner == Manner::FailsFromHereOn)
        return {};
    if (MayRemain(fault)) return {};
    if (trial.status == 0) return "nobody is told that " + difference;
    const std::string told = Told(scenario, trial);
    if (IsOpenedForReading(fault, trial) && NamesCause(told, EACCES)) return {};
    return NamesCause(told, fault.error) ? "" : "no word of the cause";
}

}  // namespace korvande::testing
