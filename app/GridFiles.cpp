#include "app/GridFiles.h"

#include <algorithm>
#include <optional>

#include "app/CellValues.h"
#include "app/GridHistory.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/FileReplacement.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

Text CountOfRows(std::size_t count) { return Concat(count, count == 1 ? u" regel" : u" regels"); }

Text QuestionAbout(TextView name, const CsvRows& read) {
    Text text = Concat(FileNameOf(name), u" heeft ", CountOfRows(read.rows.size()));
    if (read.emptyRows > 0) {
        AppendTo(text, Concat(u" (", read.emptyRows, read.emptyRows == 1 ? u" lege regel" : u" lege regels",
                              u" niet meegerekend)"));
    }
    AppendTo(text,
             u".\n\nJa: de regels van de tabel vervangen\nNee: de regels onderaan de tabel toevoegen\n"
             u"Annuleren: niets doen");
    return text;
}

Text NameWithEnding(TextView name) {
    const Text capitals = ToCapitals(name);
    const bool hasEnding = capitals.ends_with(u".CSV") || capitals.ends_with(u".TXT");
    return hasEnding ? Text(name) : Concat(name, u".csv");
}

}  // namespace

Text ImportGrid(FormKORVANDE& form, EditedGrid& edited, TextView name) {
    std::string bytes;
    if (!TryWithRetry(form.screen, name, u"openen", [&] { bytes = FileBytesOf(name); })) return {};
    CsvRows read = ReadGridCsv(edited, bytes);
    if (read.errors.empty() && read.rows.empty()) read.errors.emplace_back(u"Het bestand heeft geen regels.");
    if (!read.errors.empty()) {
        ShowMessage(form.screen, ListOfReasons(Concat(u"Niet geïmporteerd: ", name), read.errors));
        return {};
    }
    const Answer answer =
        form.screen.ShowMessage({QuestionAbout(name, read), {}, Icon::Question, Buttons::YesNoCancel});
    if (answer != Answer::Yes && answer != Answer::No) return {};
    const int present = edited.grid.RowCount();
    const int first = answer == Answer::Yes ? 1 : present;
    edited.order = {};
    ReplaceRows(edited, first, present - first, read.rows);
    edited.row = std::min(first, edited.grid.RowCount() - 1);
    TellChanged(form);
    return Concat(CountOfRows(read.rows.size()), u" geïmporteerd uit ", FileNameOf(name), u".");
}

Text ExportGrid(FormKORVANDE& form, const EditedGrid& edited, TextView name, const CsvForm& csvForm) {
    std::vector<Text> errors;
    const std::string bytes = CsvOfGrid(edited, csvForm, errors);
    if (!errors.empty()) {
        ShowMessage(form.screen, ListOfReasons(u"Niet geëxporteerd.", errors));
        return {};
    }
    const Text whole = NameWithEnding(name);
    // The dialog asked about the name as it was typed.
    if (whole != name && !MayReplace(form, whole)) return {};
    if (!TryWithRetry(form.screen, whole, u"opslaan", [&] { ReplaceFile(whole, bytes); })) return {};
    const auto rows = static_cast<std::size_t>(edited.grid.RowCount() - 1);
    return Concat(CountOfRows(rows), u" geëxporteerd naar ", FileNameOf(whole), u".");
}

}  // namespace korvande
