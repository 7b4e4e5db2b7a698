#include <cstdio>
#include <exception>

#include <CLI/CLI.hpp>

#include "cli/Commands.h"
#include "cli/pages/Completion.h"
#include "cli/pages/ManPage.h"
#include "core/Text.h"
#include "core/Version.h"
#include "host/FileReplacement.h"

// Writes the page of the manual and the completions of the shells, from the same description as the help texts, into a
// folder.
int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: korvande-cli-pages FOLDER\n", stderr);
        return 2;
    }
    try {
        CLI::App app;
        korvande::Commands options;
        korvande::DescribeCommands(app, options);
        const std::vector<korvande::Command> commands = korvande::CommandsOf(app);
        const korvande::Text folder = korvande::FromUtf8(argv[1]) + u"/";
        korvande::ReplaceFile(folder + u"korvande-cli.1",
                              korvande::ManPage(commands, korvande::ToUtf8(korvande::versionText)));
        korvande::ReplaceFile(folder + u"korvande-cli.bash", korvande::BashCompletion(commands));
        korvande::ReplaceFile(folder + u"_korvande-cli", korvande::ZshCompletion(commands));
        korvande::ReplaceFile(folder + u"korvande-cli.fish", korvande::FishCompletion(commands));
        return 0;
    } catch (const std::exception&) {
        std::fputs("korvande-cli-pages: the pages were not written\n", stderr);
        return 1;
    }
}
