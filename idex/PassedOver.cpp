#include "idex/PassedOver.h"

#include <algorithm>

#include "core/Text.h"
#include "idex/IdexFile.h"

namespace korvande {

namespace {

constexpr std::string_view properties = "PROPERTIES";

std::string_view FirstWord(std::string_view line) noexcept {
    return line.substr(0, std::min(line.find_first_of(" \t"), line.size()));
}

// The name of the block that a line opens: a word and "(", directly or behind blanks.
std::string_view OpenedBlock(std::string_view line) noexcept {
    const std::size_t end = std::min(line.find_first_of(" \t("), line.size());
    const std::size_t open = line.find_first_not_of(" \t", end);
    const bool isWord =
        end > 0 && std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(end), [](char c) {
            const char capital = ToCapital(c);
            return (capital >= 'A' && capital <= 'Z') || (c >= '0' && c <= '9') || c == '_';
        });
    return isWord && open != std::string_view::npos && line[open] == '(' ? line.substr(0, end) : std::string_view();
}

}  // namespace

void PassedOver::Add(std::string_view line) {
    if (line.empty()) return;
    if (StartsWith(line, "END")) return AddEnd(line);
    if (!block.empty()) {
        ++lines;
        return;
    }
    const std::string_view opened = OpenedBlock(line);
    if (!opened.empty()) {
        block = ToCapitals(opened);
        blockLine = file.Line();
        lines = 0;
    } else if (!StartsWith(line, "BOXES")) {
        file.Tell(ProblemKind::LinePassedOver, FirstWord(line), file.Line());
    }
}

void PassedOver::AddEnd(std::string_view line) {
    file.NoteEnd(line);
    const std::string name = NameOfEnd(line);
    if (name.empty() || name == block || name.starts_with("DATABASE")) Close();
}

void PassedOver::Close() {
    if (!block.empty() && block != properties) file.TellBlock(block, blockLine, lines);
    block.clear();
}

}  // namespace korvande
