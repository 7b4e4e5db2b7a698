#include <algorithm>

#include "app/CommandLine.h"
#include "cli/ConsoleScreen.h"
#include "tests/fuzz/Targets.h"

namespace korvande::fuzz {

namespace {

std::vector<Text> ArgumentsOf(std::string_view input) {
    std::vector<Text> arguments;
    while (!input.empty()) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        arguments.push_back(FromUtf8(input.substr(0, end)));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    return arguments;
}

// A name as a command line hands it over: in capitals, and a part of it.
void RequireName(const Text& name, const Text& line) {
    Require(name == ToCapitals(name), "a name that is not in capitals");
    Require(name.size() < line.size(), "a name longer than its line");
}

bool IsPlain(const Text& name) {
    return !name.empty() && name == Trim(name) && name.find(u'"') == Text::npos && name == ToCapitals(name);
}

// A conversion whose parts are put together is taken apart again.
void RequireTakenApart(const Text& first, const Text& second) {
    const CommandLineConversion conversion =
        SplitCommandLine(JoinArguments({u"1", Concat(u"\"", first, u"\""), second}));
    Require(conversion.direction == 1, "another direction than given");
    Require(conversion.sufNenFile == first && conversion.idexFile == second, "other names than given");
}

// Nothing that is shown moves a cursor or begins a sequence of a terminal.
void RequireHarmless(const Text& text) {
    const std::string shown = ForTerminal(text);
    Require(FromUtf8(shown).find_first_of(u"\u007F\x1B\r") == Text::npos, "a control character reaches the terminal");
    for (const char16_t character : FromUtf8(shown)) {
        const bool isControl = (character < u' ' && character != u'\n') || (character >= 0x7F && character < 0xA0);
        Require(!isControl && (character < 0xDC00 || character > 0xDFFF || shown.size() > 3),
                "a control character reaches the terminal");
    }
}

}  // namespace

void TryCommandLine(std::string_view input) {
    const std::vector<Text> arguments = ArgumentsOf(input);
    const Text line = JoinArguments(arguments);
    const CommandLineConversion conversion = SplitCommandLine(line);
    Require(conversion.direction >= 0 && conversion.direction <= 9, "a direction that is no digit");
    if (!line.empty()) {
        RequireName(conversion.sufNenFile, line);
        RequireName(conversion.idexFile, line);
    }
    Require(conversion.idexFile.find(u'"') == Text::npos, "a quotation mark in a name");
    Require(HasRegistrationSwitch(line) || !HasRegistrationSwitch(arguments), "a switch that is lost by joining");
    if (arguments.size() > 1 && IsPlain(arguments[0]) && IsPlain(arguments[1])) {
        RequireTakenApart(arguments[0], arguments[1]);
    }
    Require(ToUtf8(FromUtf8(input)) == input, "a file name that changes on its way");
    RequireHarmless(FromUtf8(input));
}

}  // namespace korvande::fuzz
