#include "cli/Describe.h"

#include <CLI/CLI.hpp>

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

void DescribeBatch(CLI::App& command, BatchOptions& options, const std::string& goesDeep) {
    command.add_flag("--recursief", options.goesDeep, goesDeep);
    command.add_option("--taken", options.atATime, "zoveel bestanden tegelijk; zonder: een per processor")
        ->option_text("N");
    command.add_option("--verslag", options.report, "een regel per bestand, voor een rekenblad of een programma")
        ->option_text("P.csv|P.json");
}

}  // namespace

void DescribeJson(CLI::App& command, bool& asJson) {
    command.add_flag("--json", asJson, "het resultaat als JSON, voor een programma");
}

void DescribeTranslate(CLI::App& command, TranslateOptions& options) {
    command.footer(
        "korvande-cli vertaal --modus MODUS [opties] INVOER [UITVOER]\n"
        "korvande-cli vertaal --modus MODUS --uitvoermap MAP [opties] INVOER...\n\n"
        "Met --uitvoermap is een INVOER ook een map: daaruit wordt vertaald wat, naar zijn inhoud,\n"
        "bij de modus past. Uitvoer en meldingen zijn bij elk aantal --taken dezelfde.\n\n"
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
    DescribeBatch(command, options.batch, "ook de mappen in een map, die in de uitvoermap terugkomen");
    command.add_flag("--hervat", options.resumes,
                     "sla over wat volgens het verslag al zo vertaald is en sindsdien niet veranderd");
    DescribeReading(command, options.reading);
    command.add_flag("--stil", options.batch.quiet, "geen voortgang, geen objectbalans; alleen wat verloren ging");
    DescribeJson(command, options.asJson);
    command.add_option("bestanden", options.files, "INVOER en UITVOER, of met --uitvoermap een of meer keer INVOER")
        ->option_text("INVOER [UITVOER]");
}

void DescribeCheck(CLI::App& command, CheckOptions& options) {
    command.footer(
        "Een INVOER is ook een map: daaruit doet elke tekening mee.\n\n"
        "Afsluitstatus: 0 geen problemen; 1 problemen; 2 verkeerd gebruik; 3 niet leesbaar.");
    command.add_option("--project", options.project, "controletabel; zonder: de standaardinstellingen")
        ->option_text("P.nst");
    DescribeReading(command, options.reading);
    command.add_flag("--alles", options.listsAll, "noem elk probleem apart, met zijn regel");
    DescribeBatch(command, options.batch, "ook de mappen in een map");
    command.add_flag("--stil", options.batch.quiet, "geen voortgang, en van alle bestanden samen geen overzicht");
    DescribeJson(command, options.asJson);
    command.add_option("bestanden", options.files, "IDEX, NEN1878 of SUF2 bestanden, of mappen")
        ->required()
        ->option_text("INVOER...");
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
    DescribeJson(command, options.asJson);
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

void DescribeGeoPackage(CLI::App& command, GeoPackageOptions& options) {
    command.footer(
        "korvande-cli geopackage [opties] INVOER... UITVOER.gpkg\n\n"
        "Lagen punten, lijnen en teksten, in RD (EPSG:28992), voor QGIS en andere GIS-programma's.\n"
        "Een vloeiende kromme, en met --rechte-lijnen ook een boog, wordt een lijn die er nergens\n"
        "meer dan 1 millimeter van afwijkt. Een INVOER is ook een map: daaruit doet elke tekening mee.\n\n"
        "Afsluitstatus: 0 alles overgenomen; 1 overgenomen, maar met fouten, uit een beschadigd\n"
        "bestand of niet uit alle bestanden; 2 verkeerd gebruik; 3 niets geschreven.");
    command.add_option("--project", options.project, "controletabel; zonder: alle codes zijn onbekend")
        ->option_text("P.nst");
    command.add_flag("--lokaal", options.isLocal,
                     "neem ook tekeningen buiten RD over; het bestand heeft dan geen coördinatenstelsel");
    command.add_flag("--rechte-lijnen", options.isStraight, "maak van bogen rechte lijnen");
    command.add_flag("--overschrijf", options.overwrites, "vervang een UITVOER die er al is");
    DescribeReading(command, options.reading);
    DescribeBatch(command, options.batch, "ook de mappen in een map");
    command.add_flag("--stil", options.batch.quiet, "geen voortgang, en van alle bestanden samen geen overzicht");
    command.add_option("bestanden", options.files, "een of meer keer INVOER, en als laatste UITVOER")
        ->required()
        ->option_text("INVOER... UITVOER");
}

}  // namespace korvande
