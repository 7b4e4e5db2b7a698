// korvande-generate: writes a drawing for the benchmarks as IDEX and, when asked, the same as NEN1878 and SUF2 and the
// control table that fits it.

#include <charconv>
#include <cstdio>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/generate.h"

namespace {

using korvande::bench::GeneratorOptions;

constexpr const char* usage =
    "usage: korvande-generate N OUT.idx [--seed S] [--rows ROWS] [--table OUT.nst] [--nen OUT.sfn] [--suf OUT.sf2]\n";

struct Arguments {
    GeneratorOptions options;
    std::string idex;
    std::string nen;  // empty, as the next two may be: not written
    std::string suf;
    std::string table;
};

template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

// Takes the value of an option; false for one that is not known or not well formed.
bool ReadOption(std::string_view name, const std::string& value, Arguments& arguments) {
    if (name == "--seed") return ReadNumber(value, arguments.options.seed);
    if (name == "--rows") return ReadNumber(value, arguments.options.tableRows);
    if (name == "--table") arguments.table = value;
    if (name == "--nen") arguments.nen = value;
    if (name == "--suf") arguments.suf = value;
    return name == "--table" || name == "--nen" || name == "--suf";
}

bool ReadArguments(const std::vector<std::string>& words, Arguments& arguments) {
    std::vector<std::string> plain;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!words[i].starts_with("--")) {
            plain.push_back(words[i]);
        } else if (i + 1 == words.size() || !ReadOption(words[i], words[i + 1], arguments)) {
            return false;
        } else {
            ++i;
        }
    }
    if (plain.size() != 2 || !ReadNumber(plain[0], arguments.options.objects) || arguments.options.objects < 0)
        return false;
    arguments.idex = plain[1];
    return true;
}

// Opens the file, lets the procedure fill it and tells on standard error what went wrong.
template <typename Fill>
bool WriteFile(const std::string& name, Fill fill) {
    std::FILE* file = std::fopen(name.c_str(), "wb");
    bool good = file != nullptr;
    if (good) {
        fill(file);
        good = std::ferror(file) == 0;
        good = std::fclose(file) == 0 && good;
    }
    if (!good) std::fprintf(stderr, "korvande-generate: cannot write %s\n", name.c_str());
    return good;
}

bool WriteTable(const Arguments& arguments) {
    const auto table = korvande::bench::ControlTable(arguments.options.tableRows);
    return WriteFile(arguments.table, [&](std::FILE* file) { std::fwrite(table.data(), 1, table.size(), file); });
}

using WriteForm = korvande::bench::DrawingCounts (*)(const GeneratorOptions&, std::FILE*);

bool WriteDrawing(const GeneratorOptions& options, const std::string& name, WriteForm form) {
    if (name.empty()) return true;
    korvande::bench::DrawingCounts counts;
    if (!WriteFile(name, [&](std::FILE* file) { counts = form(options, file); })) return false;
    std::printf("%s: %lld points, %lld line strings, %lld edges, %lld texts\n", name.c_str(),
                static_cast<long long>(counts.points), static_cast<long long>(counts.lineStrings),
                static_cast<long long>(counts.edges), static_cast<long long>(counts.texts));
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Arguments arguments;
        if (!ReadArguments({argv + 1, argv + argc}, arguments)) {
            std::fputs(usage, stderr);
            return 2;
        }
        if (!arguments.table.empty() && !WriteTable(arguments)) return 3;
        const bool written = WriteDrawing(arguments.options, arguments.idex, korvande::bench::WriteIdexDrawing) &&
                             WriteDrawing(arguments.options, arguments.nen, korvande::bench::WriteNenDrawing) &&
                             WriteDrawing(arguments.options, arguments.suf, korvande::bench::WriteSufDrawing);
        return written ? 0 : 3;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "korvande-generate: %s\n", error.what());
        return 2;
    }
}
