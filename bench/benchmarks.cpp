#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <map>

#include "bench/generate.h"
#include "core/modKORVANDE.h"
#include "idex/modExportIDEX.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/frmKORVANDE.h"
#include "run/RunValues.h"
#include "run/TranslateFiles.h"

// What reading, writing and the whole run cost, on generated drawings of the number of objects given as argument.
namespace korvande {

namespace {

namespace fs = std::filesystem;

enum ModeIndex { idexToNen = 0, idexToSuf = 1, nenToIdex = 2 };

// The files of one size of drawing, made once and removed at the end.
class Files {
 public:
    explicit Files(std::int64_t objects)
        : folder(fs::temp_directory_path() / ("korvande-bench-" + std::to_string(objects))) {
        fs::create_directories(folder);
        bench::GeneratorOptions options;
        options.objects = objects;
        std::FILE* const drawing = std::fopen((folder / "in.idx").c_str(), "wb");
        bench::WriteIdexDrawing(options, drawing);
        std::fclose(drawing);
        const std::string table = bench::ControlTable(options.tableRows);
        std::FILE* const project = std::fopen((folder / "p.nst").c_str(), "wb");
        std::fwrite(table.data(), 1, table.size(), project);
        std::fclose(project);
        Prepare(idexToNen);
        Run(In("in.idx"), In("in.sfn"));
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files() { fs::remove_all(folder); }

    Text In(const char* name) const { return FromUtf8((folder / name).string()); }

    // The program ready for a run of a mode.
    void Prepare(ModeIndex mode) const {
        InitialiseForm();
        LoadProjectFile(In("p.nst"));
        frmKORVANDE().cboXlateMode.index = mode;
        TheRun().XlateDirection = mode == nenToIdex ? toIdex : fromIdex;
        TakeVariantFromMode();
        TheRun().LogFileName.clear();
    }

    static void Run(const Text& idex, const Text& sufNen) {
        TheRun().IdexFileName = idex;
        TheRun().SufNenFileName = sufNen;
        SaveGridData();
        TranslateFiles();
    }

 private:
    fs::path folder;
};

const Files& FilesOf(std::int64_t objects) {
    static std::map<std::int64_t, Files> files;
    return files.try_emplace(objects, objects).first->second;
}

void CountObjects(benchmark::State& state) {
    state.counters["objects/s"] =
        benchmark::Counter(static_cast<double>(state.range(0) * state.iterations()), benchmark::Counter::kIsRate);
}

void ReadIdex(benchmark::State& state) {
    const Files& files = FilesOf(state.range(0));
    files.Prepare(idexToNen);
    TheRun().IdexFileName = files.In("in.idx");
    for ([[maybe_unused]] auto _ : state) ReadIdexFile();
    CountObjects(state);
}

void WriteNen(benchmark::State& state) {
    const Files& files = FilesOf(state.range(0));
    files.Prepare(idexToNen);
    TheRun().IdexFileName = files.In("in.idx");
    TheRun().SufNenFileName = files.In("out.sfn");
    ReadIdexFile();
    for ([[maybe_unused]] auto _ : state) ExportSufNen();
    CountObjects(state);
}

void ReadNen(benchmark::State& state) {
    const Files& files = FilesOf(state.range(0));
    files.Prepare(nenToIdex);
    TheRun().IdexFileName = files.In("out.idx");
    TheRun().SufNenFileName = files.In("in.sfn");
    for ([[maybe_unused]] auto _ : state) ImportNenSuf();
    TheRun().output.Abandon();
    CountObjects(state);
}

void WriteIdex(benchmark::State& state) {
    const Files& files = FilesOf(state.range(0));
    files.Prepare(nenToIdex);
    TheRun().IdexFileName = files.In("out.idx");
    TheRun().SufNenFileName = files.In("in.sfn");
    ImportNenSuf();
    for ([[maybe_unused]] auto _ : state) {
        OpenOutput(TheRun().IdexFileName);
        WriteIdexFile();
    }
    CountObjects(state);
}

void WholeRun(benchmark::State& state, ModeIndex mode) {
    const Files& files = FilesOf(state.range(0));
    files.Prepare(mode);
    for ([[maybe_unused]] auto _ : state) {
        if (mode == nenToIdex) {
            Files::Run(files.In("out.idx"), files.In("in.sfn"));
        } else {
            Files::Run(files.In("in.idx"), files.In("out.sfn"));
        }
    }
    CountObjects(state);
}

constexpr std::int64_t small = 20'000;
constexpr std::int64_t large = 200'000;

BENCHMARK(ReadIdex)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteNen)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadNen)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteIdex)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeRun, IdexToNen1878, idexToNen)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeRun, IdexToSuf2, idexToSuf)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeRun, Nen1878ToIdex, nenToIdex)->Arg(small)->Arg(large)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace korvande

BENCHMARK_MAIN();
