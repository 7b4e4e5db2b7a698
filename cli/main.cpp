#include <cerrno>
#include <clocale>
#include <cstdio>

#include <CLI/CLI.hpp>

#include "cli/Arguments.h"
#include "cli/Check.h"
#include "cli/Compare.h"
#include "cli/Draw.h"
#include "cli/Patterns.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "cli/Projects.h"
#include "cli/Translate.h"
#include "core/RuntimeError.h"
#include "core/Version.h"

namespace korvande {

namespace {

void DescribeReading(CLI::App& command, ReadingOptions& options) {
    command
        .add_option("--tekenset", options.characterSet,
                    "wat de bytes van de invoer voorstellen; zonder: Windows-1252, en UTF-8 waar een regel dat is")
        ->option_text("windows-1252|cp850");
    command.add_flag("--zonder-nullen", options.withoutZeroes, "laat punten zonder coördinaten weg");
    command.add_flag("--instrument", options.fromInstrument, "lees ook een IDEX bestand zonder LAYERS");
}

void DescribeTranslate(CLI::App& command, TranslateOptions& options) {
    command.footer(
        "korvande-cli vertaal --modus MODUS [opties] INVOER [UITVOER]\n"
        "korvande-cli vertaal --modus MODUS --uitvoermap MAP [opties] INVOER...\n\n"
        "Afsluitstatus: 0 alles vertaald; 1 vertaald, maar met fouten in het logboek\n"
        "of uit een beschadigd bestand; 2 verkeerd gebruik; 3 niet vertaald.");
    command
        .add_option("--modus", options.mode,
                    "idex-nen1878, idex-suf2, nen1878-idex, suf2-idex, of de tekst van de modus "
                    "(\"IDEX >> NEN1878\", ...)")
        ->option_text("MODUS");
    command.add_option("--project", options.project, "controletabel; zonder: de standaardinstellingen")
        ->option_text("P.nst");
    command.add_option("--logboek", options.logBook, "waar het logboek komt")->option_text("L");
    command.add_flag("--geen-logboek", options.withoutLogBook, "er blijft geen logboek over");
    command.add_option("--antwoord", options.answer, "antwoord op elke vraag over het formaat")
        ->option_text("ja|nee|annuleren");
    command.add_option("--selectie", options.selection, "alleen objecten binnen deze rechthoek (meters)")
        ->option_text("MINX,MINY,MAXX,MAXY");
    command.add_option("--bronvermelding", options.source, "bronvermelding van het G-veld")->option_text("0..5");
    command.add_option("--onbekend", options.unknowns, "onbekende objecten wel of niet overnemen")
        ->option_text("ja|nee");
    command.add_flag("--driepuntsbogen", options.threePointArcs,
                     "schrijf bogen en cirkels als bogen van drie punten, die andere programma's kunnen lezen");
    command.add_option("--uitvoermap", options.outputFolder, "vertaal elk invoerbestand naar deze map")
        ->option_text("MAP");
    DescribeReading(command, options.reading);
    command.add_flag("--stil", options.quiet, "geen voortgang, geen objectbalans; alleen wat verloren ging");
    command.add_option("bestanden", options.files, "INVOER en UITVOER, of met --uitvoermap een of meer keer INVOER")
        ->option_text("INVOER [UITVOER]");
}

void DescribeCompare(CLI::App& command, CompareOptions& options) {
    command.footer(
        "Objecten horen bij elkaar naar soort, code en plaats op de millimeter. Omschrijvingen,\n"
        "vlaggen en ankerposities tellen tussen twee IDEX bestanden; puntnummers van IDEX\n"
        "(PointNo) en de volgorde tellen niet.\n\n"
        "Afsluitstatus: 0 gelijk; 1 verschillend; 2 verkeerd gebruik; 3 niet leesbaar.");
    command
        .add_option("--project", options.project,
                    "controletabel, waarmee codes van IDEX en van NEN1878 of SUF2 te vergelijken zijn")
        ->option_text("P.nst");
    DescribeReading(command, options.reading);
    command.add_option("eerste", options.first, "IDEX, NEN1878 of SUF2 bestand")->required()->option_text("A");
    command.add_option("tweede", options.second, "IDEX, NEN1878 of SUF2 bestand")->required()->option_text("B");
}

void DescribeDraw(CLI::App& command, DrawOptions& options) {
    command.footer(
        "Een .svg is in meters, met een groep per code; wat de controletabel niet kent is rood.\n\n"
        "Afsluitstatus: 0 getekend; 1 getekend, maar met fouten of uit een beschadigd bestand;\n"
        "2 verkeerd gebruik; 3 niet getekend.");
    command.add_option("--project", options.project, "controletabel; zonder: alle codes zijn onbekend")
        ->option_text("P.nst");
    command.add_option("--kader", options.frame, "wat ervan getekend wordt (meters); zonder: alles")
        ->option_text("MINX,MINY,MAXX,MAXY");
    command.add_option("--breedte", options.width, "breedte van een .png in pixels; zonder: 1600")
        ->option_text("PIXELS");
    DescribeReading(command, options.reading);
    command.add_option("invoer", options.input, "IDEX, NEN1878 of SUF2 bestand")->required()->option_text("INVOER");
    command.add_option("uitvoer", options.output, "de afbeelding, .svg of .png")->required()->option_text("UITVOER");
}

// The library would take a list in brackets apart, and take some names for marks of its own. An argument that it could
// take so goes through it behind a character that it knows nothing of.
constexpr char guard = '\x01';

std::string Guarded(const std::string& argument) {
    constexpr std::string_view takenForMore = "[{+%\x01";
    const bool isGuarded = !argument.empty() && takenForMore.find(argument.front()) != std::string_view::npos;
    return isGuarded ? guard + argument : argument;
}

void TakeGuardAway(std::string& argument) {
    if (argument.starts_with(guard)) argument.erase(0, 1);
}

void TakeGuardsAway(CheckOptions& options) {
    TakeGuardAway(options.project);
    TakeGuardAway(options.reading.characterSet);
    for (std::string& file : options.files) TakeGuardAway(file);
}

void TakeGuardsAway(CompareOptions& options) {
    for (std::string* value : {&options.project, &options.reading.characterSet, &options.first, &options.second}) {
        TakeGuardAway(*value);
    }
}

void TakeGuardsAway(DrawOptions& options) {
    for (std::string* value : {&options.project, &options.reading.characterSet, &options.frame, &options.width,
                               &options.input, &options.output}) {
        TakeGuardAway(*value);
    }
}

void TakeGuardsAway(TranslateOptions& options) {
    for (std::string* value :
         {&options.mode, &options.project, &options.logBook, &options.answer, &options.selection, &options.source,
          &options.unknowns, &options.outputFolder, &options.reading.characterSet}) {
        TakeGuardAway(*value);
    }
    for (std::string& file : options.files) TakeGuardAway(file);
}

void ExpandPatterns(TranslateOptions& options, CheckOptions& checkOptions) {
    checkOptions.files = WithPatternsExpanded(checkOptions.files);
    const bool hasOutput = options.outputFolder.empty();
    options.files = hasOutput ? WithPatternsOfOneExpanded(options.files) : WithPatternsExpanded(options.files);
}

// The part of the library's message behind its colon: the arguments that it is about.
std::string BehindColon(const std::string& message) {
    const std::size_t colon = message.find(": ");
    return colon == std::string::npos ? message : message.substr(colon + 2);
}

Text InDutch(const CLI::ParseError& error) {
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

// An argument without a character is a mistake, such as a script's variable that was never set.
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

// The status of a command whose result is what it prints: a failure when not all of that arrived. A reader that went
// away needs no message.
int Shown(int result) {
    if (!OutputIsThere()) return result;
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return result;
    if (errno != EPIPE) PrintErrorLine(u"De standaarduitvoer kan niet worden geschreven.");
    return status::failed;
}

int RunCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("KORVANDE vertaalt meetkundige tekeningen tussen IDEX en NEN1878 of SUF2.", "korvande-cli");
    TranslateHelpTexts(app);
    app.require_subcommand(0, 1);
    bool wantsVersion = false;
    app.add_flag("--version", wantsVersion, "toon de versie");

    TranslateOptions options;
    CLI::App& translate = *app.add_subcommand("vertaal", "vertaal een of meer tekeningen")->group("Opdrachten");
    DescribeTranslate(translate, options);

    CheckOptions checkOptions;
    CLI::App& check =
        *app.add_subcommand("controleer", "lees bestanden en noem hun codes en problemen")->group("Opdrachten");
    check.add_option("--project", checkOptions.project, "controletabel; zonder: de standaardinstellingen")
        ->option_text("P.nst");
    DescribeReading(check, checkOptions.reading);
    check.add_flag("--alles", checkOptions.listsAll, "noem elk probleem apart, met zijn regel");
    check.add_option("bestanden", checkOptions.files, "IDEX, NEN1878 of SUF2 bestanden")
        ->required()
        ->option_text("INVOER...");

    CompareOptions compareOptions;
    CLI::App& compare =
        *app.add_subcommand("vergelijk", "noem de verschillen tussen twee tekeningen")->group("Opdrachten");
    DescribeCompare(compare, compareOptions);

    DrawOptions drawOptions;
    CLI::App& draw = *app.add_subcommand("teken", "maak een afbeelding van een tekening")->group("Opdrachten");
    DescribeDraw(draw, drawOptions);

    std::string projectFile;
    CLI::App& project = *app.add_subcommand("project", "maak of toon een controletabel")->group("Opdrachten");
    project.require_subcommand(1);
    CLI::App& make =
        *project.add_subcommand("maak", "schrijf een controletabel met de standaardwaarden")->group("Opdrachten");
    make.add_option("bestand", projectFile, "de nieuwe controletabel")->required()->option_text("P.nst");
    CLI::App& show = *project.add_subcommand("toon", "toon de instellingen en codetabellen")->group("Opdrachten");
    show.add_option("bestand", projectFile, "de controletabel")->required()->option_text("P.nst");

    for (CLI::App* command : {&translate, &check, &compare, &draw, &project, &make, &show})
        command->get_help_ptr()->group("Opties");
    std::vector<std::string> guarded;
    guarded.reserve(arguments.size());
    for (const std::string& argument : arguments) guarded.push_back(Guarded(argument));
    std::vector<const char*> words;
    words.reserve(guarded.size());
    for (const std::string& argument : guarded) words.push_back(argument.c_str());
    try {
        app.parse(static_cast<int>(words.size()), words.data());
    } catch (const CLI::CallForHelp&) {
        std::string help = app.help();
        while (help.ends_with('\n')) help.pop_back();
        PrintLine(FromUtf8(help));
        return Shown(status::done);
    } catch (const CLI::ParseError& error) {
        throw UsageError{InDutch(error)};
    }
    RefuseEmptyValues(app);
    TakeGuardsAway(options);
    TakeGuardsAway(checkOptions);
    TakeGuardsAway(compareOptions);
    TakeGuardsAway(drawOptions);
    TakeGuardAway(projectFile);
    if (ShellsLeavePatterns()) ExpandPatterns(options, checkOptions);
    if (wantsVersion) {
        PrintLine(Concat(u"KORVANDE ", versionText));
        return Shown(status::done);
    }
    if (translate.parsed()) return Shown(Translate(options));
    if (check.parsed()) return Shown(Check(checkOptions));
    if (compare.parsed()) return Shown(CompareDrawings(compareOptions));
    if (draw.parsed()) return Shown(DrawDrawing(drawOptions));
    if (make.parsed()) return MakeProject(projectFile);
    if (show.parsed()) return Shown(ShowProject(projectFile));
    throw UsageError{u"Er ontbreekt een opdracht; zie korvande-cli --help"};
}

}  // namespace

int Main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    PrepareProcess();
    try {
        return RunCommandLine(ProgramArguments(argc, argv));
    } catch (const UsageError& error) {
        PrintErrorLine(error.message);
        return status::wrongUsage;
    } catch (const TranslationAborted&) {
        PrintErrorLine(u"Afgebroken.");
    } catch (const std::exception&) {
        PrintCurrentError();
    }
    return status::failed;
}

}  // namespace korvande

int main(int argc, char** argv) { return korvande::Main(argc, argv); }
