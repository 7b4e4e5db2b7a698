#include "app/RunActivity.h"

#include "app/frmKORVANDE.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"

namespace korvande {

Running::Running(Activity& itsActivity, RunKind kind) noexcept : activity(itsActivity) {
    activity.isRunning = true;
    activity.isChecking = kind == RunKind::Check;
    activity.endIsAsked = false;
    activity.stopIsAsked = false;
}

Running::~Running() { activity.isRunning = false; }

bool IsRunning(const FormKORVANDE& form) noexcept { return form.activity.isRunning; }

void AskEndOfRun(FormKORVANDE& form) noexcept { form.activity.endIsAsked = form.activity.isRunning; }

bool IsEndOfRunAsked(const FormKORVANDE& form) noexcept { return form.activity.endIsAsked; }

void StopRun(FormKORVANDE& form) noexcept { form.activity.stopIsAsked = form.activity.isRunning; }

bool IsStopAsked(const FormKORVANDE& form) noexcept { return form.activity.stopIsAsked; }

void EndRunIfAsked(const FormKORVANDE& form) {
    const Activity& activity = form.activity;
    const bool isAsked = activity.endIsAsked || activity.stopIsAsked;
    if (activity.isRunning && !activity.isLoading && isAsked) throw TranslationAborted();
}

void ShowNoProgress(const FormKORVANDE& form) {
    form.screen.ShowStatus({});
    form.screen.pace.hasValue = false;
    form.screen.ShowProgressMaximum(1);
}

}  // namespace korvande
