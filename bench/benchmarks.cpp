#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <map>

#include "bench/generate.h"
#include "core/modScreen.h"
#include "idex/modExportIDEX.h"
#include "idex/modImportIDEX.h"
#include "nensuf/modExportSUFNEN.h"
#include "nensuf/modImportSUFNEN.h"
#include "project/ControlTable.h"
#include "run/TranslateFiles.h"
#include "translation/Files.h"
#include "translation/Translation.h"

// What reading, writing and the whole run cost, on generated drawings of the number of objects given as argument.
namespace korvande {

namespace {

namespace fs = std::filesystem;

constexpr Mode idexToNen{Direction::FromIdex, Variant::Nen1878};
constexpr Mode idexToSuf{Direction::FromIdex, Variant::Suf2};
constexpr Mode nenToIdex{Direction::ToIdex, Variant::Nen1878};

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
        LoadProjectBytes(screen, project, bench::ControlTable(options.tableRows));
        Run(idexToNen, "in.idx", "in.sfn");
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files() { fs::remove_all(folder); }

    Text In(const char* name) const { return FromUtf8((folder / name).string()); }

    // A translation between two of the files, which keeps no log book.
    void Prepare(Translation& translation, const char* idex, const char* sufNen, Mode mode) const {
        translation.mode = mode;
        translation.IdexFileName = In(idex);
        translation.SufNenFileName = In(sufNen);
    }

    // A whole run, with the grids' way of the code tables.
    void Run(Mode mode, const char* idex, const char* sufNen) {
        Translation translation(screen, project);
        Prepare(translation, idex, sufNen, mode);
        TranslateFiles(translation);
    }

    SilentScreen screen;
    Project project;

 private:
    fs::path folder;
};

Files& FilesOf(std::int64_t objects) {
    static std::map<std::int64_t, Files> files;
    return files.try_emplace(objects, objects).first->second;
}

void CountObjects(benchmark::State& state) {
    state.counters["objects/s"] =
        benchmark::Counter(static_cast<double>(state.range(0) * state.iterations()), benchmark::Counter::kIsRate);
}

void ReadIdex(benchmark::State& state) {
    Files& files = FilesOf(state.range(0));
    Translation translation(files.screen, files.project);
    files.Prepare(translation, "in.idx", "out.sfn", idexToNen);
    for ([[maybe_unused]] auto _ : state) ReadIdexFile(translation);
    CountObjects(state);
}

void WriteNen(benchmark::State& state) {
    Files& files = FilesOf(state.range(0));
    Translation translation(files.screen, files.project);
    files.Prepare(translation, "in.idx", "out.sfn", idexToNen);
    ReadIdexFile(translation);
    for ([[maybe_unused]] auto _ : state) ExportSufNen(translation);
    CountObjects(state);
}

void ReadNen(benchmark::State& state) {
    Files& files = FilesOf(state.range(0));
    Translation translation(files.screen, files.project);
    files.Prepare(translation, "out.idx", "in.sfn", nenToIdex);
    for ([[maybe_unused]] auto _ : state) ImportNenSuf(translation);
    translation.output.Abandon();
    CountObjects(state);
}

void WriteIdex(benchmark::State& state) {
    Files& files = FilesOf(state.range(0));
    Translation translation(files.screen, files.project);
    files.Prepare(translation, "out.idx", "in.sfn", nenToIdex);
    ImportNenSuf(translation);
    for ([[maybe_unused]] auto _ : state) {
        OpenOutput(translation, translation.IdexFileName);
        WriteIdexFile(translation);
    }
    CountObjects(state);
}

void WholeRun(benchmark::State& state, Mode mode) {
    Files& files = FilesOf(state.range(0));
    for ([[maybe_unused]] auto _ : state) {
        if (mode == nenToIdex) {
            files.Run(mode, "out.idx", "in.sfn");
        } else {
            files.Run(mode, "in.idx", "out.sfn");
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
