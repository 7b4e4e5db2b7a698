#include "tests/faults/WindowScenarios.h"

#include <cstdio>
#include <exception>

#include "app/RunTranslation.h"
#include "app/StartUp.h"
#include "app/UserSettings.h"
#include "app/frmKORVANDE.h"
#include "core/RuntimeError.h"
#include "core/modScreen.h"
#include "tests/cli/CliTest.h"

namespace korvande::testing {

namespace {

const std::string runName = "window_translates";
const std::string saveName = "window_saves";

const std::string settings = WithCrLf(R"(Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\SOFTWARE\LISTECH\LISCAD\5.1]
"Language"="NL"

[HKEY_CURRENT_USER\SOFTWARE\LISTECH\LISCAD\5.1\SEE]
"UserPath"="projecten"

[HKEY_CURRENT_USER\Software\TERAMUND\KORVANDE]
"CurrProject"="P.NST"
)");

class TellingScreen : public SilentScreen {
 public:
    Answer ShowMessage(const MessageBox& box) override {
        const std::string text = ToUtf8(box.text) + "\n";
        std::fwrite(text.data(), 1, text.size(), stderr);
        if (text.ends_with("Vervangen?\n")) return Answer::Yes;
        return box.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
};

class Window {
 public:
    // One thing that a person has it do.
    template <class Action>
    void Do(Action action) {
        try {
            action();
        } catch (const std::exception&) {
            hasFailed = true;
            Tell();
        }
    }

    int Status() const {
        if (form.lastRun.number > 0 && !form.lastRun.wroteOutput) return 3;
        return hasFailed || (form.lastRun.number > 0 && !form.lastRun.wentWell) ? 1 : 0;
    }

    TellingScreen screen;
    FormKORVANDE form{screen};
    bool hasFailed = false;

 private:
    void Tell() noexcept {
        try {
            const RuntimeError error = CurrentError();
            ShowMessage(screen, Concat(u"Foutcode: ", error.Number(), u"\n", error.Description()), Icon::Critical);
        } catch (const std::exception&) {
            std::fputs("Onvoldoende geheugen\n", stderr);
        }
    }
};

int Translate() {
    Window window;
    FormKORVANDE& form = window.form;
    AfterStartUp after = AfterStartUp::EndProgram;
    window.Do([&] { after = StartUp(form, {}); });
    if (after == AfterStartUp::EndProgram) return 3;
    window.Do([&form] {
        form.cboXlateMode.index = 0;
        form.project.options.txtFileIDEX = u"a.idx";
        form.project.options.txtFileSUFNEN = u"uit.sfn";
        RunTranslation(form);
    });
    window.Do([&form] { UnloadForm(form); });
    return form.lastRun.number == 0 ? 3 : window.Status();
}

int Save() {
    Window window;
    FormKORVANDE& form = window.form;
    window.Do([&] {
        if (!LoadProjectFile(form, u"projecten/P.NST")) window.hasFailed = true;
    });
    if (window.hasFailed) return 3;
    form.project.options.txtCity = u"NIEUWSTAD";
    window.Do([&] {
        if (!SaveProjectFile(form, u"projecten/P.NST")) window.hasFailed = true;
    });
    form.CurrentProject = u"NIEUW.NST";
    form.project.options.txtMinX = u"42";
    window.Do([&form] { SaveUserSettings(form); });
    return window.Status();
}

// Where there is no memory for a window at all.
int Guarded(int (*action)()) {
    try {
        return action();
    } catch (const std::exception&) {
        std::fputs("Onvoldoende geheugen\n", stderr);
        return 3;
    }
}

}  // namespace

std::vector<std::string> WindowScenarioNames() { return {runName, saveName}; }

Scenario WindowScenario(const std::string& name) {
    return {name,
            {{"a.idx", smallIdex},
             {"uit.sfn", "van gisteren"},
             {"projecten/P.NST", smallTable},
             {"register.reg", settings}},
            [name] { return Guarded(name == runName ? Translate : Save); },
            // A window that had no memory to read its settings begins with the usual ones, and keeps those.
            name == saveName};
}

}  // namespace korvande::testing
