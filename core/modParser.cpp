#include "core/modParser.h"

#include "core/Text.h"

namespace korvande {

namespace {

// Where the search for the separator starts: behind the closing quote of a field that begins with a quote.
std::size_t BehindQuotes(std::string_view text) noexcept {
    if (text.empty() || text.front() != '"') return 0;
    std::size_t quote = text.find('"', 1);
    while (quote != std::string_view::npos && quote + 1 < text.size() && text[quote + 1] == '"') {
        quote = text.find('"', quote + 2);
    }
    return quote == std::string_view::npos ? 1 : quote + 1;
}

}  // namespace

std::string_view TrimAs(Blanks blanks, std::string_view text) noexcept {
    if (blanks == Blanks::Spaces) return Trim(text);
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    return text;
}

std::size_t ParseFields(std::string_view line, char separator, char terminator, Blanks blanks,
                        std::vector<std::string_view>& fields, std::size_t maximum) {
    fields.clear();
    std::string_view rest = TrimAs(blanks, line);
    std::size_t cut = rest.find(terminator);
    const auto begin = static_cast<std::size_t>(rest.data() - line.data());
    rest = TrimAs(blanks, rest.substr(0, cut));
    if (cut != std::string_view::npos) cut += begin;
    if (rest.empty()) return cut;
    while (fields.size() < maximum) {
        const std::size_t end = rest.find(separator, BehindQuotes(rest));
        if (end == std::string_view::npos) {
            fields.push_back(rest);
            return cut;
        }
        fields.push_back(TrimAs(blanks, rest.substr(0, end)));
        rest = TrimAs(blanks, rest.substr(end + 1));
    }
    return cut;
}

}  // namespace korvande
