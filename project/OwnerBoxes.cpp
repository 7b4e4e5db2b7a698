#include "project/OwnerBoxes.h"

#include "project/Options.h"
#include "project/OwnerRecord.h"

namespace korvande {

namespace {

// Calls an action with each field of the record and its text box.
template <class Owner, class Action>
void ForEachField(Owner& owner, Action action) {
    action(owner.NameLong, &Options::txtNameLong);
    action(owner.NameShort, &Options::txtNameShort);
    action(owner.Street, &Options::txtStreet);
    action(owner.Number, &Options::txtNumber);
    action(owner.Extra, &Options::txtSuffix);
    action(owner.ZipCode, &Options::txtZipcode);
    action(owner.Town, &Options::txtCity);
    action(owner.Source, &Options::txtSource);
}

}  // namespace

void ShowOwner(const OwnerRec& owner, Options& options) {
    ForEachField(owner, [&options](const auto& field, Text Options::*box) { options.*box = field.TrimmedRight(); });
}

void TakeOwner(const Options& options, OwnerRec& owner) {
    ForEachField(owner, [&options](auto& field, Text Options::*box) { field = options.*box; });
}

void TakeOwnerField(OwnerRec& owner, Text Options::*wanted, std::string_view bytes) {
    ForEachField(owner, [wanted, bytes](auto& field, Text Options::*box) {
        if (box == wanted) field.Assign(bytes);
    });
}

}  // namespace korvande
