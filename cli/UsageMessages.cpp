#include "cli/UsageMessages.h"

#include <string>

#include <CLI/CLI.hpp>

#include "cli/Arguments.h"
#include "cli/Guards.h"

namespace korvande {

namespace {

// The part of the library's message behind its colon: the arguments that it is about.
std::string BehindColon(const std::string& message) {
    const std::size_t colon = message.find(": ");
    return colon == std::string::npos ? message : message.substr(colon + 2);
}

}  // namespace

Text UsageMessage(const CLI::ParseError& error) {
    constexpr TextView seeHelp = u"; zie korvande-cli --help";
    std::string message = error.what();
    std::erase(message, guard);
    const Text option = FromUtf8(message.substr(0, message.find(':')));
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return Concat(u"Onbekend argument: ", FromUtf8(BehindColon(message)));
    }
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
        const bool isCommand = message.find("subcommand") != std::string::npos;
        return isCommand ? Concat(u"Er ontbreekt een opdracht", seeHelp)
                         : Concat(u"Er ontbreekt een argument: ", FromUtf8(message.substr(0, message.find(' '))));
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        const bool isRepeated = message.find("At Most") != std::string::npos;
        return Concat(isRepeated ? u"Een optie staat er meer dan eens: " : u"Er ontbreekt een waarde bij ", option);
    }
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
        return Concat(u"Er hoort geen waarde bij een optie: ", FromUtf8(BehindColon(message)));
    }
    return Concat(u"Verkeerd gebruik", seeHelp);
}

// NOLINTNEXTLINE(misc-no-recursion): commands are two deep
void RefuseEmptyValues(const CLI::App& app) {
    for (const CLI::App* command : app.get_subcommands()) {
        for (const CLI::Option* option : command->get_options()) {
            for (const std::string& value : option->results()) {
                if (value.empty()) {
                    throw UsageError{Concat(u"Er ontbreekt een waarde bij ", FromUtf8(option->get_name()))};
                }
            }
        }
        RefuseEmptyValues(*command);
    }
}

}  // namespace korvande
