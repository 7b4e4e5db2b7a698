#pragma once

#include "core/modScreen.h"

namespace korvande {

// A screen that hands everything on to the one it works for, to be changed by who needs it otherwise.
class RunningScreen : public Screen {
 public:
    explicit RunningScreen(Screen& itsOwner) : owner(itsOwner) {}

    void ShowStatus(TextView text) override { owner.ShowStatus(text); }
    void ShowProgressMaximum(std::int64_t maximum) override { owner.ShowProgressMaximum(maximum); }
    void ShowProgressValue(std::int64_t value) override { owner.ShowProgressValue(value); }
    void PumpEvents() override { owner.PumpEvents(); }
    void ShowBusy(bool busy) override { owner.ShowBusy(busy); }
    Answer ShowMessage(const MessageBox& box) override { return owner.ShowMessage(box); }
    bool ViewTextFile(TextView name) override { return owner.ViewTextFile(name); }
    bool Print(const MakePages& makePages) override { return owner.Print(makePages); }

 private:
    Screen& owner;
};

}  // namespace korvande
