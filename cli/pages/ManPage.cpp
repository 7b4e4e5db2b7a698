#include "cli/pages/ManPage.h"

namespace korvande {

namespace {

// A text as it stands: no dash becomes a hyphen, and no line a request.
std::string Plain(std::string_view text) {
    std::string plain;
    for (const char character : text) {
        if (character == '\\') {
            plain += "\\e";
        } else if (character == '-') {
            plain += "\\-";
        } else if (character == '\'') {
            plain += "\\(aq";
        } else if (character == '.' && (plain.empty() || plain.back() == '\n')) {
            plain += "\\&.";
        } else {
            plain += character;
        }
    }
    return plain;
}

std::string Bold(std::string_view text) { return "\\fB" + Plain(text) + "\\fR"; }

std::string NamesOf(const CommandOption& option) {
    std::string names;
    for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + Bold(name);
    return option.placeholder.empty() ? names : names + " \\fI" + Plain(option.placeholder) + "\\fR";
}

std::string OptionsOf(const Command& command) {
    std::string page;
    for (const CommandOption& option : command.options) {
        page += ".TP\n" + NamesOf(option) + "\n" + Plain(option.meaning) + "\n";
    }
    return page;
}

std::string SectionOf(const Command& command) {
    std::string page = ".SS " + Bold(command.name) + "\n" + Plain(command.meaning) + ".\n";
    if (!command.argumentsMeaning.empty()) page += ".PP\n" + Plain(command.argumentsMeaning) + ".\n";
    page += OptionsOf(command);
    if (!command.footer.empty()) page += ".PP\n.nf\n" + Plain(command.footer) + "\n.fi\n";
    return page;
}

std::string SynopsisOf(const Command& command) {
    return Bold("korvande-cli " + command.name) + " [opties] " + Plain(command.arguments) + "\n.br\n";
}

}  // namespace

std::string ManPage(const std::vector<Command>& commands, std::string_view version) {
    const Command& program = commands.front();
    std::string synopsis;
    std::string sections;
    for (const Command& command : commands) {
        if (command.name.empty() || !command.subcommands.empty()) continue;
        synopsis += SynopsisOf(command);
        sections += SectionOf(command);
    }
    return R"(.TH KORVANDE\-CLI 1 "" "KORVANDE )" + std::string(version) + R"(" "Opdrachten"
.SH NAAM
korvande\-cli \- vertaalt tekeningen tussen IDEX en NEN1878 of SUF2
.SH OVERZICHT
)" + synopsis +
           ".SH BESCHRIJVING\n" + Plain(program.meaning) + "\n.SH OPTIES\n" + OptionsOf(program) + ".SH OPDRACHTEN\n" +
           sections;
}

}  // namespace korvande
