#include "app/Listing.h"

#include "core/LineReader.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

constexpr std::size_t headingColumn = 35;
constexpr std::size_t endColumn = 25;

// A line with a text at a print column, counted from 1.
Text AtColumn(std::size_t column, TextView text) { return Concat(Text(column - 1, u' '), text); }

std::vector<Text> ReadLogBook(Screen& screen, TextView name) {
    LineReader file(name, &screen);
    std::vector<Text> lines;
    std::string_view line;
    while (file.Next(line)) {
        lines.push_back(FromWindows1252(line));
        ProcessEvents(screen);
    }
    return lines;
}

}  // namespace

std::vector<std::vector<Text>> ListingPages(const std::vector<Text>& lines, int linesPerPage) {
    std::vector<std::vector<Text>> pages = {{AtColumn(headingColumn, u"Pagina: 1"), {}}};
    for (const Text& line : lines) {
        pages.back().push_back(line);
        if (static_cast<int>(pages.back().size()) < linesPerPage - 1) continue;
        // Without the first page's blank.
        pages.push_back({AtColumn(headingColumn, Concat(u"Pagina:", pages.size() + 1)), {}});
    }
    pages.back().emplace_back();
    pages.back().push_back(AtColumn(endColumn, u"----- Einde van de lijst -----"));
    return pages;
}

void PrintLogBook(Screen& screen, const Text& name) {
    try {
        const std::vector<Text> lines = ReadLogBook(screen, name);
        if (screen.Print([&lines](int linesPerPage) { return ListingPages(lines, linesPerPage); })) {
            DeleteFileAt(name);
        } else {
            ShowMessage(screen, Concat(u"Het logboek kan niet worden afgedrukt. Het is opgeslagen in:\n\n", name));
        }
    } catch (const RuntimeError& error) {
        ShowMessage(screen, Concat(u"Het logboek kan niet worden afgedrukt:\n", name, u"\n", error.Description()));
    }
}

}  // namespace korvande
