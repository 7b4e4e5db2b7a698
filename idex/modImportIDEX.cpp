#include "idex/modImportIDEX.h"

#include <algorithm>

#include "core/Clock.h"
#include "core/Numbers.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/DiagnosticFiles.h"
#include "idex/IdexFile.h"
#include "idex/IdexLines.h"
#include "idex/IdexPoints.h"
#include "idex/IdexTexts.h"
#include "translation/Files.h"

namespace korvande {

namespace {

// The second character of a header value such as "','"; a blank when there is none.
char SecondCharacter(std::string_view rest) { return rest.size() > 1 ? rest[1] : ' '; }

void ReadHeader(IdexFile& file, Drawing& drawing) {
    while (true) {
        const KeywordLine line = file.NextKeyword();
        if (line.keyword == "SEPARATOR") {
            file.SetSeparator(drawing.IdexSeparator = SecondCharacter(line.rest));
        } else if (line.keyword == "TERMINATOR") {
            file.SetTerminator(drawing.IdexTerminator = SecondCharacter(line.rest));
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
void ChooseDate(const Options& options, Text& drawingDate) {
    std::string date;
    if (options.optDateNow) {
        date = CompactDate(Now());
    } else if (options.optDateAlt) {
        const std::string alternative = ToWindows1252(Trim(options.txtAltDatum));
        date = alternative.substr(alternative.size() - std::min<std::size_t>(alternative.size(), 8));
    } else {
        return;
    }
    drawingDate = FromWindows1252(ConvertFieldworkDate(date));
}

void ReadLayers(IdexFile& file, std::string_view headerLine, std::vector<Text>& layerNames) {
    enum { layerNo, name };
    IdexTable table(file, {"LAYERNO", "NAME"});
    table.ReadHeader(headerLine);
    std::string_view row;
    std::int64_t rowsRead = 0;
    while (file.NextCapitalRow(row)) {
        table.Split(row);
        const std::int32_t number = LeadingWholeNumber(table.Field(layerNo));
        RequireArrayIndex(number, ++rowsRead);
        const auto index = static_cast<std::size_t>(number);
        if (index >= layerNames.size()) layerNames.resize(index + 1);
        layerNames[index] = FromWindows1252(ToCapitals(StripQuotes(table.Field(name))));
    }
}

void ReadDatabase(Translation& translation, IdexFile& file) {
    while (true) {
        const KeywordLine line = file.NextKeyword();
        const std::string_view keyword = line.keyword.substr(0, line.keyword.find('('));
        if (keyword == "POINTS") {
            ReadPoints(translation, file, line.line);
        } else if (keyword == "LINES") {
            ReadLines(translation.screen, file, line.line, translation.drawing);
        } else if (keyword == "POLYGONS") {
            ReadOverPolygons(translation.screen, file, line.line, translation.account);
        } else if (keyword == "TEXT") {
            ReadTexts(translation, file);
        } else if (keyword == "EOF") {
            return;
        }
    }
}

void ReadWholeFile(Translation& translation, IdexFile& file) {
    Drawing& drawing = translation.drawing;
    if (!file.SkipToContaining("HEADER")) {
        translation.outcome.wrongFormat = true;
        return Report(translation, {.kind = ProblemKind::NoHeader});
    }
    ReadHeader(file, drawing);
    ChooseDate(translation.options, drawing.DrawingDate);
    std::string layersLine;
    if (!file.SkipToStart("LAYERS", layersLine)) return Report(translation, {.kind = ProblemKind::NoLayers});
    ReadLayers(file, layersLine, drawing.LayerNames);
    if (!file.SkipToContaining("DATABASE")) return Report(translation, {.kind = ProblemKind::NoDatabase});
    ReadDatabase(translation, file);
}

}  // namespace

void ReadIdexFile(Translation& translation) {
    Drawing& drawing = translation.drawing;
    ResetDrawing(drawing);
    drawing.LayerNames.assign(1, Text());
    drawing.DrawingName.clear();
    translation.unknowns.Reset();
    LineReader reader;
    if (!OpenInput(translation, reader, translation.IdexFileName)) return;
    translation.screen.ShowStatus(u"Inlezen IDEX");
    ReadInput(translation, reader, [&translation, &reader] {
        IdexFile file(reader, translation.screen, translation.inputLine);
        ReadWholeFile(translation, file);
    });
    translation.inputLine = 0;
    if (translation.withDiagnosticFiles) WriteDiagnosticFiles(drawing);
}

}  // namespace korvande
