#include "idex/modImportIDEX.h"

#include "core/Clock.h"
#include "core/Numbers.h"
#include "core/RuntimeError.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/IdexFile.h"
#include "project/frmKORVANDE.h"
#include "run/InputFile.h"
#include "run/LogBook.h"

namespace korvande {

namespace {

constexpr std::int32_t highestLayer = 1'000'000;

void LogMissing(TextView keyword) { LogFile().WriteError(Concat(u"Geen ", keyword, u" gevonden in het IDEX bestand")); }

// The second character of a header value such as "','"; a blank when there is none.
char SecondCharacter(std::string_view rest) { return rest.size() > 1 ? rest[1] : ' '; }

void ReadHeader(IdexFile& file) {
    Drawing& drawing = TheDrawing();
    while (true) {
        const KeywordLine line = file.NextKeyword();
        if (line.keyword == "SEPARATOR") {
            file.separator = drawing.IdexSeparator = SecondCharacter(line.rest);
        } else if (line.keyword == "TERMINATOR") {
            file.terminator = drawing.IdexTerminator = SecondCharacter(line.rest);
        } else if (line.keyword == "NAME") {
            drawing.DrawingName = FromWindows1252(line.rest);
        } else if (line.keyword == "FIELD_DATE") {
            drawing.DrawingDate = FromWindows1252(ConvertFieldworkDate(line.rest));
        } else if ((line.keyword == "END" && line.rest == "HEADER") || line.keyword == "EOF") {
            return;
        }
    }
}

// The date option of the export decides between today, the alternative date and the file's own.
void ChooseDate() {
    const FormKORVANDE& form = frmKORVANDE();
    std::string date;
    if (form.optDateNow) {
        date = CompactDate(Now());
    } else if (form.optDateAlt) {
        const std::string alternative = ToWindows1252(Trim(form.txtAltDatum));
        date = alternative.substr(alternative.size() - std::min<std::size_t>(alternative.size(), 8));
    } else {
        return;
    }
    TheDrawing().DrawingDate = FromWindows1252(ConvertFieldworkDate(date));
}

void ReadLayers(IdexFile& file, std::string_view headerLine) {
    enum { layerNo, name };
    IdexTable table(file, {"LAYERNO", "NAME"});
    table.ReadHeader(headerLine);
    auto& layerNames = TheDrawing().LayerNames;
    std::string_view row;
    while (file.NextRow(row)) {
        table.Split(row);
        const std::int32_t number = LeadingWholeNumber(table.Field(layerNo));
        if (number < 0 || number > highestLayer) throw RuntimeError(errors::subscriptOutOfRange);
        const auto index = static_cast<std::size_t>(number);
        if (index >= layerNames.size()) layerNames.resize(index + 1);
        layerNames[index] = FromWindows1252(ToCapitals(StripQuotes(table.Field(name))));
    }
}

void ReadDatabase(IdexFile& file) {
    while (true) {
        const KeywordLine line = file.NextKeyword();
        const std::string_view keyword = line.keyword.substr(0, line.keyword.find('('));
        if (keyword == "POINTS") {
            ReadPoints(file, line.line);
        } else if (keyword == "LINES") {
            ReadLines(file, line.line);
        } else if (keyword == "POLYGONS") {
            ReadOverPolygons(file, line.line);
        } else if (keyword == "TEXT") {
            ReadTexts(file);
        } else if (keyword == "EOF") {
            return;
        }
    }
}

void ReadWholeFile(IdexFile& file) {
    if (!file.SkipToContaining("HEADER")) {
        TheRun().outcome.wrongFormat = true;
        return LogMissing(u"HEADER");
    }
    ReadHeader(file);
    ChooseDate();
    std::string layersLine;
    if (!file.SkipToStart("LAYERS", layersLine)) return LogMissing(u"LAYERS");
    ReadLayers(file, layersLine);
    if (!file.SkipToContaining("DATABASE")) return LogMissing(u"DATABASE");
    ReadDatabase(file);
}

}  // namespace

void ReadIdexFile() {
    ResetDrawing();
    TheDrawing().LayerNames.assign(1, Text());
    TheDrawing().DrawingName.clear();
    LineReader reader;
    if (!OpenInput(reader, TheRun().IdexFileName)) return;
    ShowStatus(u"Inlezen IDEX");
    ReadInput(reader, [&reader] {
        IdexFile file(reader);
        ReadWholeFile(file);
    });
    CurrentInputLine() = 0;
    if (TheRun().withDiagnosticFiles) WriteDiagnosticFiles();
}

}  // namespace korvande
