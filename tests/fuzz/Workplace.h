#pragma once

#include <string>
#include <string_view>

#include "core/Text.h"
#include "core/modScreen.h"

namespace korvande::fuzz {

// The program as it starts, in a folder of its own: an empty drawing, the reset project, no run, a fixed moment.
void ResetProgram();

// Writes a file of the folder and returns its name; reads one, "" when it is not there.
Text WriteFile(std::string_view name, std::string_view bytes);
std::string FileBytes(std::string_view name);
Text NameOf(std::string_view name);

// A control table with a code of every kind.
extern const std::string_view someTable;

// A screen that gives every question the same answer, and counts them.
class AnsweringScreen : public Screen {
 public:
    explicit AnsweringScreen(Answer always) : answer(always) {}
    int Questions() const noexcept { return questions; }

    void ShowStatus(TextView) override {}
    void ShowProgressMaximum(std::int64_t) override {}
    void ShowProgressValue(std::int64_t) override {}
    void PumpEvents() override {}
    void ShowBusy(bool) override {}
    Answer ShowMessage(const MessageBox& box) override;
    bool ViewTextFile(TextView) override { return false; }
    bool Print(const MakePages&) override { return false; }

 private:
    Answer answer;
    int questions = 0;
    ScreenInUse inUse{*this};
};

}  // namespace korvande::fuzz
