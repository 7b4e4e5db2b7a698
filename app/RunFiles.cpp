#include "app/RunFiles.h"

#include "app/OutputName.h"
#include "app/RunTranslation.h"
#include "app/frmKORVANDE.h"
#include "core/modScreen.h"
#include "host/modFileHandling.h"

namespace korvande {

namespace {

// The two files of a direction, by their roles.
struct Roles {
    Text& input;
    Text& output;
    Text Options::*outputBox;
    TextView outputExtension;
};

Roles RolesOf(Conversion& conversion) {
    if (conversion.direction == Direction::FromIdex) {
        return {conversion.IdexFileName, conversion.SufNenFileName, &Options::txtFileSUFNEN, u"SFN"};
    }
    return {conversion.SufNenFileName, conversion.IdexFileName, &Options::txtFileIDEX, u"IDX"};
}

}  // namespace

bool InputIsThere(const FormKORVANDE& form, const Text& name) {
    if (!FileIsMissing(name)) return true;
    ShowMessage(form.screen, Concat(u"Invoerbestand niet gevonden:\n'", name, u"'"));
    return false;
}

bool TakeNamesFromForm(FormKORVANDE& form) {
    TakeQuotesAway(form);
    Options& options = form.project.options;
    Conversion& conversion = form.conversion;
    conversion.IdexFileName = options.txtFileIDEX;
    conversion.SufNenFileName = options.txtFileSUFNEN;
    conversion.direction = SelectedMode(form).direction;
    const Roles roles = RolesOf(conversion);
    if (!InputIsThere(form, roles.input)) return false;
    if (Trim(roles.output).empty()) {
        roles.output = WithLastThreeReplaced(roles.input, roles.outputExtension);
    } else {
        roles.output = BesideInput(roles.output, roles.input);
    }
    if (options.*roles.outputBox != roles.output) {
        options.*roles.outputBox = roles.output;
        TellChanged(form);
    }
    conversion.LogFileName = WithLastThreeReplaced(roles.output, u"LOG");
    return true;
}

const Text& OutputOf(const FormKORVANDE& form) noexcept {
    const Conversion& conversion = form.conversion;
    return conversion.direction == Direction::FromIdex ? conversion.SufNenFileName : conversion.IdexFileName;
}

bool WouldWriteOverItsFiles(FormKORVANDE& form) {
    Conversion& conversion = form.conversion;
    const Roles roles = RolesOf(conversion);
    const Text& logBook = conversion.LogFileName;
    const Text controlTable = ControlTableOf(form);
    const struct {
        TextView what;
        const Text& name;
        const Text& other;  // empty: there is none
    } clashes[] = {{u"Invoer en uitvoer", roles.input, roles.output},
                   {u"Invoer en logboek", roles.input, logBook},
                   {u"Uitvoer en logboek", logBook, roles.output},
                   {u"Controletabel en uitvoer", roles.output, controlTable},
                   {u"Controletabel en logboek", logBook, controlTable}};
    for (const auto& [what, name, other] : clashes) {
        if (other.empty() || !SameFile(name, other)) continue;
        ShowMessage(form.screen, Concat(what, u" zijn hetzelfde bestand:\n", name));
        return true;
    }
    return false;
}

bool MayWriteOutput(const FormKORVANDE& form, const Text& output) {
    if (!form.project.options.StartedInteractively || form.outputs.contains(FileIdentity(output))) return true;
    return MayReplace(form, output);
}

Text ControlTableOf(const FormKORVANDE& form) {
    return form.CurrentProject.empty() ? Text() : Concat(form.ProjectFolder, form.CurrentProject);
}

}  // namespace korvande
