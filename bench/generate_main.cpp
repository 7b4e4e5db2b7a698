// korvande-generate: writes a drawing for the benchmarks and, when asked, the control table that fits it.

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

constexpr const char* usage = "usage: korvande-generate N OUT.idx [--seed S] [--table ROWS P.nst]\n";

struct Arguments {
    GeneratorOptions options;
    std::string drawing;
    std::string table;  // empty: none is written
};

template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

bool ReadArguments(const std::vector<std::string>& words, Arguments& arguments) {
    std::vector<std::string> plain;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--seed" && i + 1 < words.size()) {
            if (!ReadNumber(words[++i], arguments.options.seed)) return false;
        } else if (words[i] == "--table" && i + 2 < words.size()) {
            if (!ReadNumber(words[++i], arguments.options.tableRows)) return false;
            arguments.table = words[++i];
        } else if (words[i].starts_with("--")) {
            return false;
        } else {
            plain.push_back(words[i]);
        }
    }
    if (plain.size() != 2 || !ReadNumber(plain[0], arguments.options.objects) || arguments.options.objects < 0)
        return false;
    arguments.drawing = plain[1];
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

bool WriteDrawing(const Arguments& arguments) {
    korvande::bench::DrawingCounts counts;
    if (!WriteFile(arguments.drawing,
                   [&](std::FILE* file) { counts = korvande::bench::WriteIdexDrawing(arguments.options, file); }))
        return false;
    std::printf("%s: %lld points, %lld line strings, %lld edges, %lld texts\n", arguments.drawing.c_str(),
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
        return WriteDrawing(arguments) ? 0 : 3;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "korvande-generate: %s\n", error.what());
        return 2;
    }
}
