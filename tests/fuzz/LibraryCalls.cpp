#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "library/korvande.h"
#include "tests/fuzz/Targets.h"
#include "tests/fuzz/Workplace.h"

namespace korvande::fuzz {

namespace {

// A caller of the library, as good or as bad as the bytes make it. What the library promises of each call is looked at
// after it.
class Caller {
 public:
    explicit Caller(std::string_view drawing) {
        EmptyFolder();
        WriteFile("tekening.in", drawing);
        WriteFile("tabel.nst", someTable);
        WriteFile("uitvoer", formerOutput);
        for (std::size_t i = 0; i < files.size(); ++i) names[i] = ToUtf8(NameOf(files[i]));
    }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;
    ~Caller() {
        for (korvande_handle* const handle : handles) korvande_close(handle);
    }

    // The low bits choose what is done, the high ones how.
    void Do(unsigned char byte) {
        const unsigned how = byte >> 4U;
        switch (byte % 16) {
            case 0:
            case 1:
                Open(how);
                break;
            case 2:
            case 3:
            case 4:
                Translate(how);
                break;
            case 5:
                Check();
                break;
            case 6:
                current = how % handles.size();
                break;
            case 7:
                Close();
                break;
            case 8:
                input = how % mostNames;
                break;
            case 9:
                output = how % mostNames;
                break;
            case 10:
                logBook = how % mostNames;
                break;
            case 11:
                ChooseOptions(how);
                break;
            case 12:
                ChooseRectangle(how);
                break;
            case 13:
                ChooseCallbacks(how);
                break;
            case 14:
                RequireTexts();
                break;
            default:
                TranslateTwice(how);
        }
    }

 private:
    static constexpr std::string_view formerOutput = "een eerdere uitvoer\r\n";
    static constexpr int mostRuns = 6;

    // Those that calls are made with, by their numbers: there, not there, in no folder. Behind them an empty name and
    // none.
    static constexpr std::array<std::string_view, 6> files = {"tekening.in", "tabel.nst", "uitvoer",
                                                              "boek",        "weg",       "geen/map"};
    static constexpr std::size_t theTable = 1;
    static constexpr std::size_t theOutput = 2;
    static constexpr std::size_t mostNames = files.size() + 2;

    const char* NameAt(std::size_t index) const {
        if (index < names.size()) return names[index].c_str();
        return index == names.size() ? "" : nullptr;
    }

    static std::string BytesAt(std::size_t index) {
        return index < files.size() ? FileBytes(files[index]) : std::string();
    }

    korvande_handle*& Handle() { return handles[current]; }

    void Open(unsigned how) {
        if (how % 8 == 7) {
            Require(korvande_open(nullptr, nullptr) == KORVANDE_WRONG_USE, "a table was opened for nobody");
            return;
        }
        Close();
        tables[current] = how % 2 == 0 ? theTable : how % mostNames;
        const int status = korvande_open(how % 8 == 6 ? nullptr : NameAt(tables[current]), &Handle());
        Require(Handle() != nullptr, "an open without a handle");
        RequireStatus(status);
        Require(korvande_result(Handle()) == nullptr, "a result of an open");
    }

    void Close() {
        korvande_close(Handle());
        Handle() = nullptr;
    }

    void Translate(unsigned how) {
        if (++runs > mostRuns) return;
        constexpr std::array<const char*, 6> modeNames = {"idex-nen1878", "idex-suf2", "nen1878-idex",
                                                          "suf2-idex",    "idex",      nullptr};
        const Kept kept = KeepFiles();
        const int status = korvande_translate(Handle(), modeNames[how % modeNames.size()], NameAt(input),
                                              NameAt(output), NameAt(logBook), Options(), Callbacks());
        RequireCall(status, kept);
        if (Handle() != nullptr) {
            Require((korvande_result(Handle()) == nullptr) == (status == KORVANDE_WRONG_USE),
                    "a result that is missing, or of nothing");
        }
        const bool isWritten = status == KORVANDE_DONE || status == KORVANDE_WITH_ERRORS;
        if (!isWritten && logBook != theOutput) {
            Require(BytesAt(theOutput) == kept.output, "a failed call changed the output");
        }
        Require(!isWritten || output != theOutput || !BytesAt(theOutput).empty(), "an output without bytes");
    }

    // The same call gives the same bytes.
    void TranslateTwice(unsigned how) {
        Translate(how);
        const std::string first = BytesAt(theOutput);
        const std::optional<std::string> told = Result();
        const bool wasCancelled = asksToStop > 0;
        Translate(how);
        if (runs > mostRuns || wasCancelled) return;
        Require(BytesAt(theOutput) == first, "the same call gave other bytes");
        Require(Result() == told, "the same call gave another result");
    }

    std::optional<std::string> Result() {
        const char* const result = korvande_result(Handle());
        return result == nullptr ? std::nullopt : std::optional<std::string>(result);
    }

    void Check() {
        if (++runs > mostRuns) return;
        const Kept kept = KeepFiles();
        const int status = korvande_check(Handle(), NameAt(input), Options(), Callbacks());
        RequireCall(status, kept);
        Require(BytesAt(theOutput) == kept.output, "a check wrote");
        if (Handle() != nullptr && status == KORVANDE_WRONG_USE) {
            Require(korvande_result(Handle()) == nullptr, "a result of a wrong use");
        }
    }

    // Files before a call.
    struct Kept {
        std::string input;
        std::string table;
        std::string output;
    };
    Kept KeepFiles() {
        steps = {};
        return {BytesAt(input), BytesAt(tables[current]), BytesAt(theOutput)};
    }

    void RequireStatus(int status) {
        Require(status >= KORVANDE_DONE && status <= KORVANDE_FAILED, "a status that is none");
        const std::string_view error = korvande_last_error(Handle());
        Require(error.empty() == (status == KORVANDE_DONE), "an error without words, or words without one");
        RequireTexts();
    }

    // Of a translation and a check.
    void RequireCall(int status, const Kept& kept) {
        if (Handle() == nullptr) Require(status == KORVANDE_WRONG_USE, "a call without a handle");
        if (Handle() != nullptr) RequireStatus(status);
        const bool isDone = status == KORVANDE_DONE || status == KORVANDE_WITH_ERRORS;
        Require(!steps.wentWrong, "a step that goes back, or on before its end");
        Require(!isDone || steps.done == steps.total, "a step without its end");
        Require(!steps.stopped || status == KORVANDE_FAILED, "a call that went on after it was cancelled");
        Require(status != KORVANDE_WRONG_USE || !steps.wereTold, "work that was done for a wrong use");
        Require(!steps.wasLetIn, "a handle at work took another call");
        Require(BytesAt(input) == kept.input, "a call changed its input");
        if (Handle() != nullptr) Require(BytesAt(tables[current]) == kept.table, "a call changed the control table");
    }

    // What is handed out is UTF-8, and a result an object.
    void RequireTexts() {
        const std::string_view error = korvande_last_error(Handle());
        Require(ToUtf8(FromUtf8(error)) == error, "an error that is no UTF-8");
        if (Handle() == nullptr) Require(!error.empty(), "nothing is said without a handle");
        const std::string result = Result().value_or("{}");
        Require(result.starts_with('{') && result.find('}') != std::string::npos, "a result that is no object");
        const Text wide = FromUtf8(result);
        Require(std::none_of(wide.begin(), wide.end(), [](char16_t c) { return c < u' ' && c != u'\n'; }),
                "a control character in a result");
    }

    void ChooseOptions(unsigned how) {
        constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
        options = KORVANDE_OPTIONS_NONE;
        withOptions = how != 0;
        options.character_set = how == 1 ? 3 : static_cast<std::int32_t>(how % 3);
        options.unknown_objects = how == 2 ? -1 : static_cast<std::int32_t>(how / 2 % 3);
        options.source_kind = how == 3 ? 6 : static_cast<std::int32_t>(how % 6);
        options.without_zeroes = how == 4 ? 2 : static_cast<std::int32_t>(how / 4 % 2);
        options.from_instrument = how == 5 ? least : static_cast<std::int32_t>(how / 8 % 2);
        options.three_point_arcs = static_cast<std::int32_t>(how % 2);
        options.without_log_book = how > 11 ? 1 : 0;
        if (how == 6) options.size = 0;
        if (how == 7) options.size = sizeof options - 1;
        if (how == 8) options.size = std::numeric_limits<std::size_t>::max();
    }

    void ChooseRectangle(unsigned how) {
        constexpr std::array numbers = {0.0,
                                        -1e9,
                                        1e9,
                                        std::numeric_limits<double>::quiet_NaN(),
                                        std::numeric_limits<double>::infinity(),
                                        121'000.5,
                                        std::numeric_limits<double>::denorm_min(),
                                        -std::numeric_limits<double>::max()};
        withOptions = true;
        options.has_selection = how % 8 == 7 ? 0 : 1;
        options.min_x = how < 8 ? numbers[how % 8] : -1e9;
        options.min_y = -1e9;
        options.max_x = 1e9;
        options.max_y = numbers[(how + 2) % 8];
    }

    void ChooseCallbacks(unsigned how) {
        callbacks = KORVANDE_CALLBACKS_NONE;
        withCallbacks = how != 0;
        asksToStop = how % 4 == 1 ? static_cast<int>(how / 4) + 1 : 0;
        answer = static_cast<int>(how % 4);
        callbacks.context = this;
        if (how != 2) callbacks.progress = Progress;
        if (how != 3) callbacks.should_cancel = ShouldCancel;
        if (how != 4) callbacks.ask = Ask;
        if (how == 5) callbacks.size = 1;
    }

    const korvande_options* Options() const { return withOptions ? &options : nullptr; }
    const korvande_callbacks* Callbacks() const { return withCallbacks ? &callbacks : nullptr; }

    // A handle at work refuses every call.
    void TryHandle() {
        steps.wereTold = true;
        const bool refuses = korvande_check(Handle(), NameAt(0), nullptr, nullptr) == KORVANDE_WRONG_USE;
        korvande_close(Handle());
        if (!refuses) steps.wasLetIn = true;
    }

    static void Progress(void* context, const char* name, std::int64_t done, std::int64_t total) {
        Caller& caller = *static_cast<Caller*>(context);
        Steps& steps = caller.steps;
        const bool begins = done == 0 && steps.done == steps.total;
        const bool goesOn = total == steps.total && done >= steps.done;
        const bool isRight = total > 0 && done >= 0 && done <= total && name != nullptr && (begins || goesOn);
        if (!isRight) steps.wentWrong = true;
        steps.done = done;
        steps.total = total;
        caller.TryHandle();
    }

    static int ShouldCancel(void* context) {
        Caller& caller = *static_cast<Caller*>(context);
        caller.TryHandle();
        if (caller.asksToStop > 0 && ++caller.steps.asked >= caller.asksToStop) caller.steps.stopped = true;
        return caller.steps.stopped ? 1 : 0;
    }

    static int Ask(void* context, const char* /*question*/, int proposed) {
        Caller& caller = *static_cast<Caller*>(context);
        caller.TryHandle();
        return caller.answer == 0 ? proposed : caller.answer;
    }

    // What the callbacks of a call were told.
    struct Steps {
        std::int64_t done = 0;
        std::int64_t total = 0;
        int asked = 0;
        bool stopped = false;
        bool wentWrong = false;
        bool wereTold = false;
        bool wasLetIn = false;
    };

    std::array<std::string, files.size()> names;
    std::array<korvande_handle*, 2> handles{};
    std::array<std::size_t, 2> tables{theTable, theTable};  // that they were opened with
    std::size_t current = 0;
    std::size_t input = 0;
    std::size_t output = theOutput;
    std::size_t logBook = 3;
    korvande_options options = KORVANDE_OPTIONS_NONE;
    bool withOptions = false;
    korvande_callbacks callbacks = KORVANDE_CALLBACKS_NONE;
    bool withCallbacks = false;
    int asksToStop = 0;  // at which question; 0: at none
    int answer = 0;
    int runs = 0;
    Steps steps;
};

}  // namespace

void TryLibrary(std::string_view input) {
    constexpr std::size_t mostCalls = 64;
    const std::size_t end = std::min(input.find('\n'), input.size());
    Caller caller(input.substr(std::min(end + 1, input.size())));
    for (const char byte : input.substr(0, std::min(end, mostCalls))) caller.Do(static_cast<unsigned char>(byte));
}

}  // namespace korvande::fuzz
