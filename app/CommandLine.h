#pragma once

#include <cstdint>
#include <vector>

#include "core/Text.h"

namespace korvande {

// A conversion that a command line asks for: the direction digit (0 when the first character is none) and the names of
// the two files, without their quotation marks.
struct CommandLineConversion {
    std::int16_t direction = 0;
    Text sufNenFile;
    Text idexFile;
};

// What stands behind the program's own name in the command line of a process, which begins with it: its path, whether
// between quotes or not and with or without its extension, or else the first word. `program` is that path without an
// extension; "\" and "/" are the same in it, and so are capitals and small letters.
Text BehindProgramName(TextView commandLine, TextView program);

// The argument of a command line that is only one, without the quotation marks around it; empty when there are more of
// them, or none.
Text OnlyArgument(TextView commandLine);

// Splits a command line such as: 1"C:\MIJN KAART.SFN" "C:\KAART.IDX". The names come in capitals.
CommandLineConversion SplitCommandLine(TextView commandLine);

// The command line of a program's arguments where the system hands them over one by one: joined by blanks, those with
// blanks between double quotes unless they hold quotes already.
Text JoinArguments(const std::vector<Text>& arguments);

// Whether the switch /LISCAD is given, in any case: anywhere in a command line, or as a whole argument.
bool HasRegistrationSwitch(TextView commandLine);
bool HasRegistrationSwitch(const std::vector<Text>& arguments);

}  // namespace korvande
