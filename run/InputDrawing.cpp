#include "run/InputDrawing.h"

#include <cerrno>
#include <cstdio>

#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"
#include "run/Recognise.h"
#include "translation/Translation.h"

namespace korvande {

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

// Takes the format of an input, or the message why there is none.
void TakeFormat(Screen& screen, const Text& name, FoundInput& found) {
    LineReader file;
    if (found.input->bytes) {
        file.OpenBytes(*found.input->bytes);
    } else {
        file.Open(name, &screen);
    }
    const std::optional<Format> format = file.IsUtf16() ? std::nullopt : Recognise(file);
    if (format) {
        found.input->format = *format;
        return;
    }
    const Text reason = file.IsUtf16() ? Sentence(Problem{.kind = ProblemKind::InputIsUtf16})
                                       : Text(u"geen IDEX, NEN1878 of SUF2 bestand");
    found = {{}, Concat(name, u": ", reason, u".")};
}

}  // namespace

FoundInput LookAtInput(Screen& screen, const Text& name) {
    FoundInput found;
    try {
        found.input.emplace();
        if (!IsRegularFileOrMissing(name)) found.input->bytes = ReadOnce(screen, name);
        TakeFormat(screen, name, found);
    } catch (const RuntimeError& error) {
        return {
            {},
            Concat(u"Kon bestand: '", name, u"' niet openen;\nFoutcode: ", error.Number(), u"\n", error.Description())};
    }
    return found;
}

void TakeInput(const InputDrawing& input, const Text& name, Translation& translation) {
    translation.mode = ModeReading(input.format);
    (input.format == Format::Idex ? translation.IdexFileName : translation.SufNenFileName) = name;
    translation.inputBytes = input.bytes;
}

}  // namespace korvande
