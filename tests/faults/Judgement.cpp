#include "tests/faults/Judgement.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <initializer_list>

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

bool IsTemporary(const std::string& name) { return Has(name, "~korvande-"); }

// What cannot be told when these are what fails.
bool HitsStandardStreams(const Trial& trial) { return Has(trial.requests.place, "memfd:"); }

bool MayRemain(const Fault& fault) { return fault.operation == Operation::Remove; }

std::string FirstDifference(const Files& expected, const Files& actual) {
    for (const auto& [name, bytes] : expected) {
        const auto found = actual.find(name);
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
        const bool isTold = trial.status == 1 && IsWhole(now->second);
        if (IsReplaced(name, whenGood->second) && !isTold) return name + " is neither old nor new";
    }
    for (const auto& [name, bytes] : trial.after) {
        if (scenario.before.contains(name)) continue;
        if (IsTemporary(name)) {
            if (!MayRemain(fault)) return name + " remains";
            continue;
        }
        const auto whenGood = good.after.find(name);
        const bool isNew = whenGood != good.after.end() &&
                           (bytes == whenGood->second || !IsReplaced(name, whenGood->second));
        if (!isNew && (trial.status != 1 || !IsWhole(bytes))) return name + " is not whole";
    }
    return {};
}

// A failed run's log book says so, unless it is the log book that fails, or only what is told after the run.
std::string FaultOfLogBooks(const Scenario& scenario, const Trial& good, const Fault& fault, const Trial& trial) {
    if (trial.status != 3 || trial.after == good.after || fault.manner == Manner::FailsFromHereOn) return {};
    for (const auto& [name, bytes] : trial.after) {
        if (scenario.before.contains(name) || !IsLogBook(bytes)) continue;
        const bool itself = Has(trial.requests.place, name) || Has(trial.error, "logboek kon niet volledig");
        if (!itself && !HasAny(bytes, {"FOUT:", "==>"})) return name + " does not tell that the run failed";
    }
    return {};
}

}  // namespace

bool IsReplaced(const std::string& name, const std::string& bytes) {
    return !IsLogBook(bytes) && !name.ends_with(".csv") && !name.ends_with(".reg");
}

bool IsWhole(const std::string& bytes) {
    return bytes.ends_with("99" + std::string(62, ' ') + "\r\n") || bytes.ends_with("END DATABASE\r\n") ||
           bytes.ends_with("</svg>\n");
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
    if (isNoFailure) {
        if (!isGood) return "status " + std::to_string(trial.status) + ", " + difference;
        return trial.error == good.error ? "" : "other messages";
    }
    if (std::string files = FaultOfFiles(scenario, good, fault, trial); !files.empty()) return files;
    if (isGood) return {};
    if (std::string log = FaultOfLogBooks(scenario, good, fault, trial); !log.empty()) return log;
    if (HitsStandardStreams(trial) || fault.manner == Manner::FailsFromHereOn) return {};
    if (trial.status == 0) return "nobody is told that " + difference;
    return NamesCause(Told(scenario, trial), fault.error) ? "" : "no word of the cause";
}

}  // namespace korvande::testing
