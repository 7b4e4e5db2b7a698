#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "bench/generate.h"
#include "core/Digits.h"
#include "core/LineReader.h"
#include "core/LineWriter.h"
#include "core/Numbers.h"
#include "core/Picture.h"
#include "core/PlainNumbers.h"
#include "core/Text.h"
#include "project/CodeTables.h"

// The primitives that reading and writing are made of, on values that change from call to call, and what the standard
// library offers for the same. The label is what the table of figures shows.
namespace korvande {

namespace {

constexpr std::size_t valueCount = 4096;

// Coordinates in whole millimetres, as drawings hold them.
std::vector<std::int64_t> Millimetres() {
    bench::Random random(1);
    std::vector<std::int64_t> values(valueCount);
    for (auto& value : values) value = 100'000'000 + random.Below(450'000'000);
    return values;
}

std::vector<std::string> Decimals() {
    std::vector<std::string> texts;
    for (const auto value : Millimetres()) {
        auto thousandths = std::to_string(value % 1000);
        thousandths.insert(0, 3 - thousandths.size(), '0');
        texts.push_back(std::to_string(value / 1000) + "." + thousandths + "0");
    }
    return texts;
}

std::vector<double> Metres() {
    std::vector<double> values;
    for (const auto value : Millimetres()) values.push_back(static_cast<double>(value) / 1000);
    return values;
}

// Calls the procedure for one value after another.
template <typename Value, typename Call>
void ForEach(benchmark::State& state, const char* label, const std::vector<Value>& values, Call call) {
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(call(values[i]));
        i = (i + 1) % values.size();
    }
    state.SetLabel(label);
}

void PrimitiveLeadingNumber(benchmark::State& state) {
    ForEach(state, "a decimal read (`LeadingNumber`)", Decimals(),
            [](const std::string& text) { return LeadingNumber(text); });
}

void PrimitivePlainNumber(benchmark::State& state) {
    // As in a row, there is more behind them.
    std::vector<std::string> rows = Decimals();
    for (std::string& row : rows) row.append("        ");
    ForEach(state, "the same by eight digits (`PlainNumber`)", rows, [](const std::string& row) {
        const std::string_view text = std::string_view(row).substr(0, row.size() - 8);
        double value = 0;
        PlainNumber(text, row.data() + row.size(), value);
        return value;
    });
}

void PrimitiveFromChars(benchmark::State& state) {
    ForEach(state, "the same by `from_chars`", Decimals(), [](const std::string& text) {
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    });
}

void PrimitiveStrtod(benchmark::State& state) {
    ForEach(state, "the same by `strtod`", Decimals(),
            [](const std::string& text) { return std::strtod(text.c_str(), nullptr); });
}

void PrimitiveMillimetres(benchmark::State& state) {
    ForEach(state, "metres into whole millimetres (`NearestWhole`)", Metres(), [](double metres) {
        std::int64_t whole = 0;
        NearestWhole(metres * 1000, whole);
        return whole;
    });
}

void PrimitiveDecimal(benchmark::State& state) {
    ForEach(state, "a number written with four decimals (`NearestWhole`, `WriteScaled`)", Metres(), [](double metres) {
        std::array<char, 32> text{};
        std::int64_t scaled = 0;
        NearestWhole(metres * 1e4, scaled);
        const char* const end = WriteScaled(text.data(), scaled, 4);
        benchmark::DoNotOptimize(text);
        return end;
    });
}

void PrimitiveToChars(benchmark::State& state) {
    ForEach(state, "the same by `to_chars`", Metres(), [](double metres) {
        std::array<char, 32> text{};
        const auto* const end =
            std::to_chars(text.data(), text.data() + text.size(), metres, std::chars_format::fixed, 4).ptr;
        benchmark::DoNotOptimize(text);
        return end;
    });
}

void PrimitivePrintf(benchmark::State& state) {
    ForEach(state, "the same by `snprintf`", Metres(), [](double metres) {
        std::array<char, 32> text{};
        const int length = std::snprintf(text.data(), text.size(), "%.4f", metres);
        benchmark::DoNotOptimize(text);
        return length;
    });
}

void PrimitiveLookup(benchmark::State& state) {
    const auto tables = bench::MakeCodeTables(bench::maxTableRows);
    std::vector<CodeRow> rows;
    std::vector<CodeKey> keys;
    for (const auto& line : tables.lines) {
        CodeRow row{};
        row.LiscadCode = FromWindows1252(line.liscad);
        rows.push_back(row);
        keys.push_back(row.LiscadCode);
    }
    // Row 0 stands for all codes that are not in the table.
    keys.erase(keys.begin());
    CodeLookup lookup(&CodeRow::LiscadCode);
    ForEach(state, "a code found among thousands (`CodeLookup::Find`)", keys,
            [&](const CodeKey& key) { return lookup.Find(rows, key); });
}

// A file of lines of 64 columns, removed at the end.
class LinesFile {
 public:
    LinesFile() {
        LineWriter writer;
        writer.Open(Name());
        for (std::size_t i = 0; i < valueCount; ++i) writer.PutLine(std::string(64, 'x'));
        writer.Close();
    }
    LinesFile(const LinesFile&) = delete;
    LinesFile& operator=(const LinesFile&) = delete;
    ~LinesFile() { std::filesystem::remove(path_); }

    Text Name() const { return FromUtf8(path_.string()); }

 private:
    std::filesystem::path path_ = std::filesystem::temp_directory_path() / "korvande-bench-lines";
};

void PrimitiveReadLine(benchmark::State& state) {
    const LinesFile file;
    LineReader reader(file.Name());
    std::string_view line;
    for ([[maybe_unused]] auto _ : state) {
        if (!reader.Next(line)) reader.Open(file.Name());
        benchmark::DoNotOptimize(line);
    }
    state.SetLabel("a line of 64 columns read (`LineReader::Next`)");
}

void PrimitiveWriteLine(benchmark::State& state) {
    LineWriter writer;
    writer.Open(u"/dev/null");
    const std::string line(64, 'x');
    for ([[maybe_unused]] auto _ : state) writer.PutLine(line);
    writer.Close();
    state.SetLabel("a line of 64 columns written (`LineWriter::PutLine`)");
}

BENCHMARK(PrimitiveLeadingNumber);
BENCHMARK(PrimitivePlainNumber);
BENCHMARK(PrimitiveFromChars);
BENCHMARK(PrimitiveStrtod);
BENCHMARK(PrimitiveMillimetres);
BENCHMARK(PrimitiveDecimal);
BENCHMARK(PrimitiveToChars);
BENCHMARK(PrimitivePrintf);
BENCHMARK(PrimitiveLookup);
BENCHMARK(PrimitiveReadLine);
BENCHMARK(PrimitiveWriteLine);

}  // namespace

}  // namespace korvande
