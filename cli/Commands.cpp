#include "cli/Commands.h"

#include <memory>

#include <CLI/CLI.hpp>

#include "cli/Describe.h"

namespace korvande {

namespace {

void TranslateHelpTexts(CLI::App& app) {
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Gebruik");
    formatter->label("OPTIONS", "opties");
    formatter->label("SUBCOMMAND", "OPDRACHT");
    formatter->label("SUBCOMMANDS", "OPDRACHTEN");
    formatter->label("Positionals", "Argumenten");
    formatter->label("POSITIONALS", "ARGUMENTEN");
    formatter->column_width(34);
    app.formatter(formatter);
    app.option_defaults()->group("Opties");
    app.set_help_flag("-h,--help", "toon deze hulp");
    app.allow_windows_style_options(false);
}

CLI::App& AddCommand(CLI::App& app, const char* name, const char* meaning) {
    CLI::App& command = *app.add_subcommand(name, meaning)->group("Opdrachten");
    command.get_help_ptr()->group("Opties");
    return command;
}

void DescribeProject(CLI::App& command, Commands& commands) {
    command.require_subcommand(1);
    CLI::App& make = AddCommand(command, "maak", "schrijf een controletabel met de standaardwaarden");
    make.add_option("bestand", commands.projectFile, "de nieuwe controletabel")->required()->option_text("P.nst");
    CLI::App& show = AddCommand(command, "toon", "toon de instellingen en codetabellen");
    show.add_option("bestand", commands.projectFile, "de controletabel")->required()->option_text("P.nst");
    DescribeJson(show, commands.showsProjectAsJson);
}

}  // namespace

void DescribeCommands(CLI::App& app, Commands& commands) {
    app.name("korvande-cli");
    app.description("KORVANDE vertaalt meetkundige tekeningen tussen IDEX en NEN1878 of SUF2.");
    TranslateHelpTexts(app);
    app.require_subcommand(0, 1);
    app.add_flag("--version", commands.wantsVersion, "toon de versie");
    DescribeTranslate(AddCommand(app, "vertaal", "vertaal een of meer tekeningen"), commands.translate);
    DescribeCheck(AddCommand(app, "controleer", "lees bestanden en noem hun codes en problemen"), commands.check);
    DescribeCompare(AddCommand(app, "vergelijk", "noem de verschillen tussen twee tekeningen"), commands.compare);
    DescribeDraw(AddCommand(app, "teken", "maak een afbeelding van een tekening"), commands.draw);
    DescribeGeoPackage(AddCommand(app, "geopackage", "zet tekeningen in een bestand voor GIS"), commands.geoPackage);
    DescribeProject(AddCommand(app, "project", "maak of toon een controletabel"), commands);
}

}  // namespace korvande
