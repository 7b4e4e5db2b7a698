#include "cli/Inputs.h"

#include <cerrno>
#include <cstdio>

#include "cli/Arguments.h"
#include "cli/Print.h"
#include "cli/Process.h"
#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "host/modFileHandling.h"
#include "run/Recognise.h"
#include "run/Steps.h"
#include "translation/ProblemBlock.h"
#include "translation/Translation.h"

namespace korvande {

ReadingScreen::ReadingScreen() : ConsoleScreen(false) { isInterrupted = IsInterrupted; }

Answer ReadingScreen::ShowMessage(const MessageBox& box) {
    return box.buttons == Buttons::YesNoCancel ? ConsoleScreen::ShowMessage(box) : Answer::Ok;
}

namespace {

// All that an input gives until its end.
std::string ReadOnce(Screen& screen, const Text& name) {
    constexpr std::size_t blockSize = std::size_t{1} << 16;
    const FileHandle file(OpenNativeFile(name, OpenMode::Read));
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    std::string bytes;
    while (true) {
        const std::size_t before = bytes.size();
        bytes.resize(before + blockSize);
        const std::size_t count = std::fread(bytes.data() + before, 1, blockSize, file.get());
        bytes.resize(before + count);
        if (count == blockSize) continue;
        if (std::ferror(file.get()) == 0) return bytes;
        // A signal may end the wait for more.
        if (errno != EINTR) throw RuntimeError(ErrorNumberOf(errno));
        std::clearerr(file.get());
        screen.PumpEvents();
    }
}

// The format of an input, or a message why there is none.
std::optional<Format> FormatOf(Screen& screen, const Text& name, const std::optional<std::string>& bytes) {
    LineReader file;
    if (bytes) {
        file.OpenBytes(*bytes);
    } else {
        file.Open(name, &screen);
    }
    const std::optional<Format> format = file.IsUtf16() ? std::nullopt : Recognise(file);
    if (format) return format;
    const Text reason =
        file.IsUtf16() ? Sentence({.kind = ProblemKind::InputIsUtf16}) : Text(u"geen IDEX, NEN1878 of SUF2 bestand");
    PrintErrorLine(Concat(name, u": ", reason, u"."));
    return {};
}

}  // namespace

std::optional<InputDrawing> FindInput(Screen& screen, const Text& name) {
    InputDrawing input;
    try {
        if (!IsRegularFileOrMissing(name)) input.bytes = ReadOnce(screen, name);
        const std::optional<Format> format = FormatOf(screen, name, input.bytes);
        if (!format) return {};
        input.format = *format;
    } catch (const RuntimeError& error) {
        PrintErrorLine(
            Concat(u"Kon bestand: '", name, u"' niet openen;\nFoutcode: ", error.Number(), u"\n", error.Description()));
        return {};
    }
    return input;
}

void TakeInput(const InputDrawing& input, const Text& name, const ReadingOptions& reading, Translation& translation) {
    translation.mode = ModeReading(input.format);
    (input.format == Format::Idex ? translation.IdexFileName : translation.SufNenFileName) = name;
    translation.inputBytes = input.bytes;
    translation.readsWithoutLayers = reading.fromInstrument;
}

bool ReadInputDrawing(ReadingScreen& screen, const InputDrawing& input, const Text& name, const ReadingOptions& reading,
                      Translation& translation) {
    constexpr std::int64_t mostErrors = 5;  // that are told one by one
    TakeInput(input, name, reading, translation);
    translation.problems.onError = [&name, &translation](const Problem& problem) {
        if (translation.problems.errors > mostErrors) return;
        PrintErrorLine(Concat(name, u": ", SentenceWithLine(problem)));
    };
    // A question about the format is answered with what is proposed, and told.
    screen.answerQuestion = [&name](const MessageBox& box) {
        PrintErrorLine(Concat(name, u": ", box.text, u" ja"));
        return Answer::Yes;
    };
    ReadDrawing(translation);
    if (translation.outcome.cancelled) throw TranslationAborted();
    const std::int64_t more = translation.problems.errors - mostErrors;
    if (more > 0) PrintErrorLine(Concat(name, u": nog ", more, u" fouten; zie korvande-cli controleer"));
    for (const Text& line : LossLines(translation)) PrintErrorLine(line);
    return !translation.outcome.inputUnreadable && !translation.outcome.wrongFormat;
}

}  // namespace korvande
