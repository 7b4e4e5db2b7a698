#pragma once

namespace korvande {

struct Activity;
struct FormKORVANDE;

enum class RunKind { Translation, Check };

// The time that a run takes: a translation, several of them, or a check.
class Running {
 public:
    explicit Running(Activity& itsActivity, RunKind kind = RunKind::Translation) noexcept;
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running();

 private:
    Activity& activity;
};

// Whether a run is going on. The run mark alone does not tell: it stays behind when a run stops because its input is
// missing.
bool IsRunning(const FormKORVANDE& form) noexcept;

// Asks the run to end. It does so where it next lets events run, and unloads the form; or, after a stop, leaves it to
// its user. The answers stand until the next run begins.
void AskEndOfRun(FormKORVANDE& form) noexcept;
bool IsEndOfRunAsked(const FormKORVANDE& form) noexcept;
void StopRun(FormKORVANDE& form) noexcept;
bool IsStopAsked(const FormKORVANDE& form) noexcept;

// What a screen calls when it has let events run: throws TranslationAborted when the end of the run was asked. A
// project that is being loaded is loaded to its end before.
void EndRunIfAsked(const FormKORVANDE& form);

// What a run that is over leaves on the screen: no step under way, and an empty gauge.
void ShowNoProgress(const FormKORVANDE& form);

}  // namespace korvande
