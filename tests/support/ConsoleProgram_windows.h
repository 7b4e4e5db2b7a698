#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "tests/support/RunProgram.h"

namespace korvande::testing {

// A program in a console of its own, with a person before it. It is ended with this object, if it has not ended before.
class ConsoleProgram {
 public:
    explicit ConsoleProgram(const Start& start);
    ConsoleProgram(const ConsoleProgram&) = delete;
    ConsoleProgram& operator=(const ConsoleProgram&) = delete;
    ~ConsoleProgram();

    // Presses keys: "\r" is Enter.
    void Type(std::string_view keys) const;

    // What Ctrl+C does.
    void Interrupt() const;

    // Waits until the console has shown a text; a test failure when it never does.
    void WaitForText(const std::string& text) const;

    // Waits for the end of the program, and gives its exit status.
    int Wait();

    // What the console has shown so far, without the sequences that move its cursor.
    std::string Shown() const;

 private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}  // namespace korvande::testing
