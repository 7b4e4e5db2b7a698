#pragma once

#include <exception>

#include "core/Text.h"

namespace korvande {

// A run-time error: a number and its Dutch description. Callers that can say more than the number's usual description
// give one of their own.
class RuntimeError : public std::exception {
 public:
    explicit RuntimeError(int errorNumber);
    RuntimeError(int errorNumber, TextView errorDescription);

    int Number() const noexcept { return number; }
    const Text& Description() const noexcept { return description; }
    const char* what() const noexcept override { return utf8.c_str(); }

 private:
    int number;
    Text description;
    std::string utf8;
};

namespace errors {
inline constexpr int invalidCall = 5;
inline constexpr int overflow = 6;
inline constexpr int outOfMemory = 7;
inline constexpr int subscriptOutOfRange = 9;
inline constexpr int typeMismatch = 13;
inline constexpr int badFileName = 52;
inline constexpr int fileNotFound = 53;
inline constexpr int fileAlreadyOpen = 55;
inline constexpr int diskFull = 61;
inline constexpr int inputPastEnd = 62;
inline constexpr int accessDenied = 70;
inline constexpr int deviceNotReady = 71;
inline constexpr int pathAccess = 75;
inline constexpr int pathNotFound = 76;
}  // namespace errors

// The run-time error number that tells what a system error number (errno) means.
int ErrorNumberOf(int systemError) noexcept;

// The exception being handled (call inside a catch block) as a run-time error: itself, or error 7 for memory that ran
// out. Any other exception is thrown again.
RuntimeError CurrentError();

// Ends a run: a person asked for it. It is no error and is never skipped as one.
struct TranslationAborted {};

}  // namespace korvande
