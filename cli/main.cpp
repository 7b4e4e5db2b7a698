#include <cerrno>
#include <clocale>
#include <cstdio>

#include <CLI/CLI.hpp>

#include "cli/Check.h"
#include "cli/Commands.h"
#include "cli/Compare.h"
#include "cli/Draw.h"
#include "cli/GeoPackage.h"
#include "cli/Guards.h"
#include "cli/Patterns.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/ProgramArguments.h"
#include "cli/Projects.h"
#include "cli/Translate.h"
#include "cli/UsageMessages.h"
#include "core/RuntimeError.h"
#include "core/Version.h"

namespace korvande {

namespace {

void TakeGuardsAway(Commands& commands) {
    TakeGuardsAway(commands.translate);
    TakeGuardsAway(commands.check);
    TakeGuardsAway(commands.compare);
    TakeGuardsAway(commands.draw);
    TakeGuardsAway(commands.geoPackage);
    TakeGuardAway(commands.projectFile);
}

void ExpandPatterns(Commands& commands) {
    TranslateOptions& translate = commands.translate;
    const bool hasOutput = translate.outputFolder.empty();
    translate.files = hasOutput ? WithPatternsOfOneExpanded(translate.files) : WithPatternsExpanded(translate.files);
    for (std::vector<std::string>* files : {&commands.check.files, &commands.geoPackage.files}) {
        *files = WithPatternsExpanded(*files);
    }
}

// The status of a command whose result is what it prints: a failure when not all of that arrived. A reader that went
// away needs no message.
int Shown(int result) {
    if (!OutputIsThere()) return result;
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return result;
    if (errno != EPIPE) PrintErrorLine(u"De standaarduitvoer kan niet worden geschreven.");
    return status::failed;
}

void Parse(CLI::App& app, const std::vector<std::string>& arguments) {
    std::vector<std::string> guarded;
    guarded.reserve(arguments.size());
    for (const std::string& argument : arguments) guarded.push_back(Guarded(argument));
    std::vector<const char*> words;
    words.reserve(guarded.size());
    for (const std::string& argument : guarded) words.push_back(argument.c_str());
    app.parse(static_cast<int>(words.size()), words.data());
}

int PrintHelp(const CLI::App& app) {
    std::string help = app.help();
    while (help.ends_with('\n')) help.pop_back();
    PrintLine(FromUtf8(help));
    return Shown(status::done);
}

int Do(const CLI::App& app, const Commands& commands) {
    if (commands.wantsVersion) {
        PrintLine(Concat(u"KORVANDE ", versionText));
        return Shown(status::done);
    }
    if (app.got_subcommand("vertaal")) return Shown(Translate(commands.translate));
    if (app.got_subcommand("controleer")) return Shown(Check(commands.check));
    if (app.got_subcommand("vergelijk")) return Shown(CompareDrawings(commands.compare));
    if (app.got_subcommand("teken")) return Shown(DrawDrawing(commands.draw));
    if (app.got_subcommand("geopackage")) return Shown(MakeGeoPackage(commands.geoPackage));
    if (app.got_subcommand("project")) {
        if (app.get_subcommand("project")->got_subcommand("maak")) return MakeProject(commands.projectFile);
        return Shown(ShowProject(commands.projectFile, commands.showsProjectAsJson));
    }
    throw UsageError{u"Er ontbreekt een opdracht; zie korvande-cli --help"};
}

int RunCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app;
    Commands commands;
    DescribeCommands(app, commands);
    try {
        Parse(app, arguments);
    } catch (const CLI::CallForHelp&) {
        return PrintHelp(app);
    } catch (const CLI::ParseError& error) {
        throw UsageError{UsageMessage(error)};
    }
    RefuseEmptyValues(app);
    TakeGuardsAway(commands);
    if (ShellsLeavePatterns()) ExpandPatterns(commands);
    return Do(app, commands);
}

// Memory may run out while it tells why.
int RunOrRefuse(int argc, char** argv) {
    try {
        return RunCommandLine(ProgramArguments(argc, argv));
    } catch (const UsageError& error) {
        PrintErrorLine(error.message);
        return status::wrongUsage;
    } catch (const TranslationAborted&) {
        PrintErrorLine(u"Afgebroken.");
        return status::failed;
    }
}

}  // namespace

int Main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    PrepareProcess();
    try {
        return RunOrRefuse(argc, argv);
    } catch (const std::exception&) {
        PrintCurrentError();
    }
    return status::failed;
}

}  // namespace korvande

int main(int argc, char** argv) { return korvande::Main(argc, argv); }
