#include "idex/modImportIDEX.h"

#include <algorithm>
#include <array>

#include "core/Clock.h"
#include "core/modKORVANDE.h"
#include "core/modScreen.h"
#include "core/modStrings.h"
#include "idex/DiagnosticFiles.h"
#include "idex/IdexFile.h"
#include "idex/IdexLines.h"
#include "idex/IdexPoints.h"
#include "idex/IdexTable.h"
#include "idex/IdexTexts.h"
#include "idex/PassedOver.h"
#include "translation/Files.h"

namespace korvande {

namespace {

// The second character of a header value such as "','"; a blank when there is none.
char SecondCharacter(std::string_view rest) { return rest.size() > 1 ? rest[1] : ' '; }

// Tells a unit of the header that is not the one that values are taken in.
template <std::size_t N>
void RequireUnit(IdexFile& file, std::string_view unit, const std::array<std::string_view, N>& taken) {
    if (unit.empty() || std::find(taken.begin(), taken.end(), unit) != taken.end()) return;
    file.Tell(ProblemKind::UnitNotConverted, unit, file.Line());
}

void ReadHeader(IdexFile& file, Drawing& drawing) {
    constexpr std::array<std::string_view, 7> grads = {"GRADS", "GRAD", "GRADIAN", "GRADIANS", "GON", "GONS", "G"};
    constexpr std::array<std::string_view, 5> metres = {"METRE", "METRES", "METER", "METERS", "M"};
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
        } else if (line.keyword == "ANGULAR") {
            RequireUnit(file, line.rest, grads);
        } else if (line.keyword == "LINEAR") {
            RequireUnit(file, line.rest, metres);
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
    IdexTable table(file, "LAYERS", {{"LAYERNO"}, {"NAME"}});
    table.ReadHeader(headerLine);
    std::string_view row;
    std::int64_t rowsRead = 0;
    while (file.NextCapitalRow(row)) {
        table.Split(row);
        const std::int32_t number = table.Whole(layerNo);
        RequireArrayIndex(number, ++rowsRead);
        const auto index = static_cast<std::size_t>(number);
        if (index >= layerNames.size()) layerNames.resize(index + 1);
        layerNames[index] = FromWindows1252(ToCapitals(table.Unquoted(name)));
    }
}

// The rest of a POLYGONS table that the edges inside it ended: its rows are polygons all the same.
class RestOfPolygons {
 public:
    explicit RestOfPolygons(Translation& itsTranslation) : translation(itsTranslation) {}

    void Begin() noexcept { isOpen = true; }

    // Whether a line, which is no table of ours, belongs to it.
    bool Takes(std::string_view line) {
        if (!isOpen || line.empty()) return false;
        if (StartsWith(line, "END")) {
            isOpen = inEdges && NameOfEnd(line) != "DATABASE";
            inEdges = false;
            return false;
        }
        if (StartsWith(line, "EDGES")) {
            inEdges = true;
        } else if (!inEdges) {
            AccountForPolygon(translation);
        }
        return true;
    }

 private:
    Translation& translation;
    bool isOpen = false;
    bool inEdges = false;
};

void TellCutOff(Translation& translation, std::string_view missing) {
    Tell(translation, {.kind = ProblemKind::CutOff, .words = FromWindows1252(missing)});
}

// Behind a line EOF, which ends the database: what is there is not read.
void TellUnreadRest(Translation& translation, IdexFile& file) {
    std::string_view line;
    bool isTold = false;
    while (file.TryNext(line)) {
        file.NoteEnd(line);
        if (isTold || line.empty() || StartsWith(line, "END")) continue;
        isTold = true;
        Tell(translation, {.kind = ProblemKind::RestNotRead});
    }
}

void ReadDatabase(Translation& translation, IdexFile& file) {
    PassedOver passedOver(file);
    RestOfPolygons polygons(translation);
    while (true) {
        const KeywordLine line = file.NextKeyword();
        const std::string_view keyword = line.keyword.substr(0, line.keyword.find('('));
        const bool isOurs =
            keyword == "POINTS" || keyword == "LINES" || keyword == "POLYGONS" || keyword == "TEXT" || keyword == "EOF";
        if (!isOurs) {
            if (!polygons.Takes(line.line)) passedOver.Add(line.line);
            continue;
        }
        passedOver.Close();
        if (keyword == "POINTS") {
            ReadPoints(translation, file, line.line);
        } else if (keyword == "LINES") {
            ReadLines(translation, file, line.line);
        } else if (keyword == "POLYGONS") {
            if (ReadOverPolygons(translation, file, line.line)) polygons.Begin();
        } else if (keyword == "TEXT") {
            ReadTexts(translation, file);
        } else {
            if (!line.line.empty()) TellUnreadRest(translation, file);
            break;
        }
    }
    if (!file.HasEnded()) TellCutOff(translation, "END DATABASE");
}

// Whether a person wants a file read whose database begins where LAYERS should.
bool AsksForInstrument(Translation& translation) {
    if (translation.readsWithoutLayers) return true;
    const MessageBox question{
        u"Het bestand heeft geen LAYERS voor DATABASE, zoals bestanden van een instrument.\n"
        u"Toch inlezen?",
        u"KORVANDE", Icon::Question, Buttons::YesNo};
    return translation.screen.ShowMessage(question) == Answer::Yes;
}

// How far the search for the layers came.
enum class Layers { Found, BehindDatabase, NotWanted, Missing };

// Reads on to the LAYERS line; or to the DATABASE line before it, when the file is to be read without layers.
Layers FindLayers(Translation& translation, IdexFile& file, std::string& layersLine) {
    bool isBehind = false;
    std::string_view line;
    while (file.TryNext(line)) {
        if (StartsWith(line, "LAYERS")) {
            layersLine = line;
            return isBehind ? Layers::BehindDatabase : Layers::Found;
        }
        if (isBehind || !StartsWith(line, "DATABASE")) continue;
        if (AsksForInstrument(translation)) return Layers::NotWanted;
        isBehind = true;
    }
    return Layers::Missing;
}

void ReportNoLayers(Translation& translation) {
    Report(translation, {.kind = ProblemKind::NoLayers});
    translation.log.WriteLine(
        u"       Een bestand zonder LAYERS, zoals van een instrument, wordt gelezen met --instrument; het venster "
        u"vraagt "
        u"ernaar.");
}

// Reads on behind the DATABASE line, from behind the layers; false when there is none. A line END DATABASE is met in
// its place where the database began before the layers, or never does.
bool FindDatabase(Translation& translation, IdexFile& file, Layers layers, std::int64_t layersAt) {
    std::string line;
    const bool isFound = file.SkipToContaining("DATABASE", line);
    const bool isEnd = isFound && StartsWith(line, "END");
    if (isEnd) file.NoteEnd(line);
    if (layers == Layers::BehindDatabase && (isEnd || !isFound)) {
        Tell(translation, {.kind = ProblemKind::LayersBehindDatabase, .line = layersAt});
    } else if (isEnd) {
        TellCutOff(translation, "DATABASE");
    }
    if (!isFound) Report(translation, {.kind = ProblemKind::NoDatabase});
    return isFound;
}

void ReadWholeFile(Translation& translation, IdexFile& file) {
    Drawing& drawing = translation.drawing;
    std::string line;
    if (!file.SkipToContaining("HEADER", line)) {
        translation.outcome.wrongFormat = true;
        return Report(translation, {.kind = ProblemKind::NoHeader});
    }
    ReadHeader(file, drawing);
    ChooseDate(translation.options, drawing.DrawingDate);
    const Layers layers = FindLayers(translation, file, line);
    if (layers == Layers::Missing) return ReportNoLayers(translation);
    if (layers != Layers::NotWanted) {
        const std::int64_t layersAt = translation.inputLine;
        ReadLayers(file, line, drawing.LayerNames);
        if (!FindDatabase(translation, file, layers, layersAt)) return;
    }
    ReadDatabase(translation, file);
}

// The same. A file that ends inside a table is cut off, unless a table was looked for that it does not have.
void ReadToItsEnd(Translation& translation, IdexFile& file) {
    try {
        ReadWholeFile(translation, file);
    } catch (const RuntimeError& error) {
        if (error.Number() == errors::inputPastEnd && !file.HasEnded()) TellCutOff(translation, "END DATABASE");
        throw;
    }
}

}  // namespace

void ReadIdexFile(Translation& translation) {
    Drawing& drawing = translation.drawing;
    ResetDrawing(drawing);
    drawing.LayerNames.assign(1, Text());
    drawing.DrawingName.clear();
    ForgetUnknowns(translation);
    LineReader reader;
    if (!OpenInput(translation, reader, translation.IdexFileName)) return;
    translation.screen.ShowStatus(u"Inlezen IDEX");
    ReadInput(translation, reader, [&translation, &reader] {
        IdexFile file(translation, reader);
        ReadToItsEnd(translation, file);
    });
    translation.inputLine = 0;
    if (translation.withDiagnosticFiles) WriteDiagnosticFiles(drawing);
}

}  // namespace korvande
