#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "app/ReadingNotice.h"
#include "core/modScreen.h"
#include "picture/Comparison.h"
#include "picture/SpatialIndex.h"
#include "translation/Translation.h"

namespace korvande {

struct FormKORVANDE;

// A drawing that is to be looked at, with the settings by which it is read; and another one that is compared with it.
struct PreviewOrder {
    Text input;
    Mode mode;
    Text output;  // that a translation in this mode made of it; empty: nothing is compared
    Options options;
    OwnerRec owner{};
    CodeTables codes;
};

// The input of the selected mode with the options on the screen; nothing during a run, or when it is missing, which a
// message tells.
std::optional<PreviewOrder> PreviewOfInput(FormKORVANDE& form);

// The input and the output of the form's last run, with the same settings; nothing without one that wrote an output, or
// when one of the two is missing, which a message tells.
std::optional<PreviewOrder> PreviewOfRun(FormKORVANDE& form);

// Gives an order the settings and the code tables as they are on the screen now; false during a run.
bool TakeSettings(FormKORVANDE& form, PreviewOrder& order);

// The screen of a reader on a thread of its own: another thread may ask how far it is and stop it. Messages are kept,
// and questions answered with what is proposed, which is told afterwards.
class PreviewScreen : public Screen {
 public:
    // From any thread.
    void Stop() noexcept { isStopped = true; }
    double Part() const noexcept { return part; }  // of the step, 0 to 1
    Text Status() const;

    // What was told last; for the reader's own thread, or when that has ended.
    Text message;
    std::vector<Text> questions;

    void ShowStatus(TextView text) override;
    void ShowProgressMaximum(std::int64_t newMaximum) override;
    void ShowProgressValue(std::int64_t value) override;
    void PumpEvents() override;
    void ShowBusy(bool /*busy*/) override {}
    Answer ShowMessage(const MessageBox& box) override;
    bool ViewTextFile(TextView /*name*/) override { return false; }
    bool Print(const MakePages& /*makePages*/) override { return false; }

 private:
    std::int64_t maximum = 1;
    std::atomic<double> part = 0;
    std::atomic<bool> isStopped = false;
    mutable std::mutex lock;  // of the status
    Text status;
};

// A drawing as it is shown.
struct ShownDrawing {
    explicit ShownDrawing(Screen& screen) : translation(screen) {}

    Text name;
    Text notice;  // what a person must know of the reading, in lines; empty: nothing
    Translation translation;
    DisplayList list;
    SpatialIndex index;
};

// What a preview shows.
struct Preview {
    PreviewScreen screen;
    ShownDrawing drawing{screen};
    std::unique_ptr<ShownDrawing> output;  // none when nothing is compared
    Comparison comparison;
};

enum class PreviewEnd { Read, Stopped, Failed };

// Reads a preview on a thread of its own, from when it is made.
class PreviewReading {
 public:
    explicit PreviewReading(PreviewOrder order);
    PreviewReading(const PreviewReading&) = delete;
    PreviewReading& operator=(const PreviewReading&) = delete;
    ~PreviewReading();  // stops it, if need be

    void Stop() noexcept { preview->screen.Stop(); }
    bool IsOver() const noexcept { return isOver; }
    double Part() const noexcept { return preview->screen.Part(); }
    Text Status() const { return preview->screen.Status(); }

    // When it is over: what became of it, why when it failed, and once what was read.
    PreviewEnd End() const noexcept { return end; }
    const Text& Failure() const noexcept { return failure; }
    std::unique_ptr<Preview> Take() noexcept { return std::move(preview); }

 private:
    void Read(const PreviewOrder& order);
    bool ReadOne(ShownDrawing& drawing, Mode mode, const Text& name, const PreviewOrder& order);

    std::unique_ptr<Preview> preview;
    std::atomic<bool> isOver = false;
    PreviewEnd end = PreviewEnd::Failed;
    Text failure;
    std::thread thread;
};

}  // namespace korvande
