#include "app/UserSettings.h"

#include "app/Remembered.h"
#include "app/frmKORVANDE.h"
#include "project/Options.h"

namespace korvande {

namespace {

constexpr TextView currentProject = u"CurrProject";
constexpr TextView isSet = u"1";
constexpr TextView isNotSet = u"0";

// Calls an action with the name and the option of each setting that is kept per user.
template <class Action>
void ForEachSetting(Action action) {
    for (const Option& option : AllOptions()) {
        if (option.kind == OptionKind::PerUser) action(FromWindows1252(option.key), option);
    }
}

}  // namespace

void ReadUserSettings(FormKORVANDE& form) {
    Options& options = form.project.options;
    form.CurrentProject = Remembered(currentProject);
    ForEachSetting([&options](const Text& name, const Option& option) {
        const Text value = Remembered(name, option.initial);
        if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
            options.** text = value;
        } else {
            options.*std::get<bool Options::*>(option.member) = value == isSet;
        }
    });
    TellChanged(form);
}

void SaveUserSettings(const FormKORVANDE& form) {
    const Options& options = form.project.options;
    Remember(currentProject, form.CurrentProject);
    ForEachSetting([&options](const Text& name, const Option& option) {
        if (const auto* const text = std::get_if<Text Options::*>(&option.member)) {
            Remember(name, options.**text);
        } else {
            Remember(name, options.*std::get<bool Options::*>(option.member) ? isSet : isNotSet);
        }
    });
}

}  // namespace korvande
