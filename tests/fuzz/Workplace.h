#pragma once

#include <string>
#include <string_view>

#include "core/Text.h"
#include "core/modScreen.h"
#include "project/Project.h"

namespace korvande::fuzz {

// The project of a control table, at a fixed moment.
Project ProjectOf(Screen& screen, std::string_view table);

// A file's name in a folder that goes with the program, and a file of it; "" when it is not there.
Text NameOf(std::string_view name);
std::string FileBytes(std::string_view name);
void WriteFile(std::string_view name, std::string_view bytes);

// Removes what an input before left there.
void EmptyFolder();

// A control table with a code of every kind.
extern const std::string_view someTable;

// A screen that gives every question the same answer, and counts them.
class AnsweringScreen : public SilentScreen {
 public:
    explicit AnsweringScreen(Answer always) : answer(always) {}
    int Questions() const noexcept { return questions; }

    Answer ShowMessage(const MessageBox& box) override;

 private:
    Answer answer;
    int questions = 0;
};

}  // namespace korvande::fuzz
