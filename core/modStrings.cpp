#include "core/modStrings.h"

#include <algorithm>
#include <array>

namespace korvande {

namespace {

template <class String, class View>
String Stripped(View text) {
    text = Trim(text);
    if (!text.empty() && text.front() == '"') text.remove_prefix(1);
    if (!text.empty() && text.back() == '"') text.remove_suffix(1);
    String stripped(text);
    std::replace(stripped.begin(), stripped.end(), typename String::value_type('"'), typename String::value_type('\''));
    return stripped;
}

template <class String, class View>
String Replaced(View text, View find, View replacement) {
    String result;
    std::size_t from = 0;
    while (!find.empty()) {
        const std::size_t at = text.find(find, from);
        if (at == View::npos) break;
        result.append(text, from, at - from).append(replacement);
        from = at + find.size();
    }
    return result.append(text, from);
}

std::string SwitchSeparator(std::string_view text, char from, char to) {
    std::string result(text);
    if (result.find(from) == std::string::npos) return result;
    std::erase(result, to);
    std::replace(result.begin(), result.end(), from, to);
    return result;
}

char FillOf(std::string_view fill) { return fill.empty() ? ' ' : fill.front(); }

}  // namespace

std::string StripQuotes(std::string_view text) { return Stripped<std::string>(text); }
Text StripQuotes(TextView text) { return Stripped<Text>(text); }

Text QuoteText(TextView text) { return Concat(u"\"", StripQuotes(text), u"\""); }

std::string CommaToPoint(std::string_view text) { return SwitchSeparator(text, ',', '.'); }

std::string PointToComma(std::string_view text) { return SwitchSeparator(text, '.', ','); }

std::string RemoveAll(std::string_view text, std::string_view part) {
    std::string result;
    if (part.empty()) return std::string(text);
    // A removal can only bring about an occurrence that ends in a character still to come, so looking at the end of
    // what is kept finds what scanning again from the start would.
    for (const char character : text) {
        result.push_back(character);
        if (std::string_view(result).ends_with(part)) result.resize(result.size() - part.size());
    }
    return result;
}

Text ReplaceAll(TextView text, TextView find, TextView replacement) { return Replaced<Text>(text, find, replacement); }

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replacement) {
    return Replaced<std::string>(text, find, replacement);
}

std::string PadLeft(std::string_view text, std::size_t width, std::string_view fill) {
    if (text.size() >= width) return std::string(text.substr(text.size() - width));
    return std::string(width - text.size(), FillOf(fill)).append(text);
}

std::string PadRight(std::string_view text, std::size_t width, std::string_view fill) {
    std::string padded(text.substr(0, width));
    padded.resize(width, FillOf(fill));
    return padded;
}

std::int32_t BinaryToFlags(std::string_view text) noexcept {
    std::uint32_t flags = 0;
    for (const char digit : text) {
        if (digit != ' ') flags = flags * 2 + (digit == '1' ? 1 : 0);
    }
    return static_cast<std::int32_t>(flags);
}

std::string FlagsToBinary(std::int32_t flags) {
    std::array<char, 17> binary{};
    return {binary.begin(), WriteFlags(binary.data(), flags)};
}

char* WriteFlags(char* place, std::int32_t flags) noexcept {
    constexpr int bits = 16;
    for (int bit = bits - 1; bit >= 0; --bit) {
        const std::int32_t weight = 1 << bit;
        const bool set = flags >= weight;
        if (set) flags -= weight;
        *place++ = set ? '1' : '0';
        if (bit == bits / 2) *place++ = ' ';
    }
    return place;
}

char TransposeAnchorPosition(std::string_view text) noexcept {
    constexpr std::string_view positions = "147258369";
    const char last = text.empty() ? '0' : text.back();
    return positions[last > '0' && last <= '9' ? static_cast<std::size_t>(last - '1') : 0];
}

}  // namespace korvande
