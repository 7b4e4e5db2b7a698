#pragma once

#include <string>
#include <vector>

namespace CLI {  // NOLINT(readability-identifier-naming): the name that the library has
class App;
}

// What the pages about the console program are made from: its commands as their description has them.
namespace korvande {

// What an option takes.
enum class Takes { Nothing, Words, File, Folder, Other };

struct CommandOption {
    std::vector<std::string> names;  // with their dashes
    std::string meaning;
    std::string placeholder;  // "ja|nee", "MAP"; empty: it takes nothing
    Takes takes = Takes::Nothing;
    std::vector<std::string> words;  // that it takes
};

struct Command {
    std::string name;  // "project toon"; empty: the program itself
    std::string meaning;
    std::string arguments;  // "INVOER [UITVOER]"
    std::string argumentsMeaning;
    std::string footer;
    std::vector<CommandOption> options;
    std::vector<std::string> subcommands;  // their last words
};

// The program itself, and each of its commands; one that is only the beginning of others too.
std::vector<Command> CommandsOf(const CLI::App& app);

}  // namespace korvande
