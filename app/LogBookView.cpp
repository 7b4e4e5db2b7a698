#include "app/LogBookView.h"

#include <algorithm>
#include <iterator>

#include "app/RunActivity.h"
#include "app/frmKORVANDE.h"
#include "core/LineReader.h"
#include "core/modScreen.h"

namespace korvande {

namespace {

constexpr std::string_view errorBegin = "FOUT:";
constexpr std::string_view blockTitle = "Niet of anders overgekomen:";

// The last of its kind: a name of a file can be anything, also this title.
std::size_t FindBlock(const std::vector<std::string>& lines) {
    const auto found = std::find(lines.rbegin(), lines.rend(), blockTitle);
    return found == lines.rend() ? lines.size() : static_cast<std::size_t>(lines.rend() - found) - 1;
}

void FindMarks(LogBookView& view) {
    view.blockBegin = FindBlock(view.lines);
    for (std::size_t i = 0; i < view.lines.size(); ++i) {
        view.longestLine = std::max(view.longestLine, view.lines[i].size());
        if (i == view.blockBegin || LookOf(view, i) == LineLook::Error) view.marks.push_back(i);
    }
}

bool Holds(const std::string& line, std::string_view capitals) {
    const auto isSame = [](char byte, char capital) { return ToCapital(byte) == capital; };
    return std::search(line.begin(), line.end(), capitals.begin(), capitals.end(), isSame) != line.end();
}

}  // namespace

bool ShowsLogBookItself(const FormKORVANDE& form) {
    const Options& options = form.project.options;
    return options.StartedInteractively && options.logBookInWindow && !IsEndOfRunAsked(form);
}

void ViewLogBook(Screen& screen, const Text& name) {
    if (!screen.ViewTextFile(name)) {
        ShowMessage(screen, Concat(u"Het logboek kan niet worden getoond. Het is opgeslagen in:\n\n", name));
    }
}

LineLook LookOf(const LogBookView& view, std::size_t line) {
    if (line >= view.blockBegin) return LineLook::Block;
    return view.lines[line].starts_with(errorBegin) ? LineLook::Error : LineLook::Plain;
}

LogBookView ReadLogBook(TextView name) {
    LineReader file(name);
    LogBookView view;
    std::string_view line;
    while (file.Next(line)) view.lines.emplace_back(line);
    FindMarks(view);
    return view;
}

std::string LogBookBytes(const LogBookView& view) {
    std::string bytes;
    for (const std::string& line : view.lines) bytes.append(line).append("\r\n");
    return bytes;
}

std::optional<std::size_t> FindMark(const LogBookView& view, std::optional<std::size_t> from, Towards towards) {
    const std::vector<std::size_t>& marks = view.marks;
    if (marks.empty()) return {};
    if (towards == Towards::Next) {
        const auto next = from ? std::upper_bound(marks.begin(), marks.end(), *from) : marks.begin();
        return next == marks.end() ? marks.front() : *next;
    }
    const auto behind = from ? std::lower_bound(marks.begin(), marks.end(), *from) : marks.end();
    return behind == marks.begin() ? marks.back() : *std::prev(behind);
}

std::optional<std::size_t> FindLine(const LogBookView& view, TextView text, std::optional<std::size_t> from,
                                    Towards towards) {
    const std::size_t count = view.lines.size();
    if (text.empty() || count == 0) return {};
    const std::string bytes = ToWindows1252(text);
    if (FromWindows1252(bytes) != text) return {};  // no log book has such a character
    const std::string capitals = ToCapitals(bytes);
    const bool goesOn = towards == Towards::Next;
    const std::size_t begin = from ? *from : (goesOn ? count - 1 : 0);
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t line = (goesOn ? begin + step : begin + count - step) % count;
        if (Holds(view.lines[line], capitals)) return line;
    }
    return {};
}

Text PlaceInLogBook(const LogBookView& view, std::optional<std::size_t> line) {
    const std::size_t count = view.lines.size();
    const std::size_t marks = view.marks.size();
    const Text all = Concat(count, count == 1 ? TextView(u" regel") : TextView(u" regels"));
    const Text place = line ? Concat(u"Regel ", *line + 1, u" van ", count) : all;
    if (marks == 0) return Concat(place, u", geen meldingen");
    return Concat(place, u", ", marks, marks == 1 ? TextView(u" melding") : TextView(u" meldingen"));
}

}  // namespace korvande
