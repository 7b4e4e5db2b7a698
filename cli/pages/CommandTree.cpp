#include "cli/pages/CommandTree.h"

#include <sstream>

#include <CLI/CLI.hpp>

#include "translation/Mode.h"

namespace korvande {

namespace {

// "ja|nee": words of small letters, figures and dashes with bars between.
std::vector<std::string> WordsOf(const std::string& placeholder) {
    if (placeholder.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-|") != std::string::npos) return {};
    std::vector<std::string> words;
    std::istringstream parts(placeholder);
    for (std::string word; std::getline(parts, word, '|');) words.push_back(word);
    return words;
}

std::vector<std::string> NamesOfModes() {
    std::vector<std::string> names;
    names.reserve(modes.size());
    for (const ModeNames& mode : modes) names.emplace_back(mode.shortName);
    return names;
}

Takes TakesOf(const CommandOption& option) {
    if (option.placeholder.empty()) return Takes::Nothing;
    if (!option.words.empty()) return Takes::Words;
    if (option.placeholder == "MAP") return Takes::Folder;
    const bool isFile = option.placeholder == "L" || option.placeholder.starts_with("P.");
    return isFile ? Takes::File : Takes::Other;
}

CommandOption OptionOf(const CLI::Option& option) {
    CommandOption found;
    for (const std::string& name : option.get_snames()) found.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames()) found.names.push_back("--" + name);
    found.meaning = option.get_description();
    if (option.get_items_expected_max() == 0) return found;
    found.placeholder = option.get_option_text();
    found.words = found.placeholder == "MODUS" ? NamesOfModes() : WordsOf(found.placeholder);
    found.takes = TakesOf(found);
    return found;
}

Command CommandOf(const CLI::App& app, const std::string& name) {
    Command command{.name = name,
                    .meaning = app.get_description(),
                    .arguments = {},
                    .argumentsMeaning = {},
                    .footer = app.get_footer(),
                    .options = {},
                    .subcommands = {}};
    for (const CLI::Option* option : app.get_options()) {
        if (!option->get_positional()) {
            command.options.push_back(OptionOf(*option));
            continue;
        }
        const std::string& text = option->get_option_text();
        command.arguments += (command.arguments.empty() ? "" : " ") + text;
        command.argumentsMeaning +=
            (command.argumentsMeaning.empty() ? "" : "; ") + text + ": " + option->get_description();
    }
    for (const CLI::App* sub : app.get_subcommands({})) command.subcommands.push_back(sub->get_name());
    return command;
}

}  // namespace

std::vector<Command> CommandsOf(const CLI::App& app) {
    struct Found {
        const CLI::App* app;
        std::string name;
    };
    std::vector<Found> toDo = {{&app, ""}};
    std::vector<Command> commands;
    for (std::size_t i = 0; i < toDo.size(); ++i) {
        const Found found = toDo[i];
        commands.push_back(CommandOf(*found.app, found.name));
        for (const CLI::App* sub : found.app->get_subcommands({})) {
            toDo.push_back({sub, found.name.empty() ? sub->get_name() : found.name + " " + sub->get_name()});
        }
    }
    return commands;
}

}  // namespace korvande
