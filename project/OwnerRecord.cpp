#include "project/OwnerRecord.h"

#include "project/frmKORVANDE.h"

namespace korvande {

namespace {

// Calls an action with each field of the record and its text box.
template <class Action>
void ForEachField(Action action) {
    OwnerRec& owner = TheOwner();
    FormKORVANDE& form = frmKORVANDE();
    action(owner.NameLong, form.txtNameLong);
    action(owner.NameShort, form.txtNameShort);
    action(owner.Street, form.txtStreet);
    action(owner.Number, form.txtNumber);
    action(owner.Extra, form.txtSuffix);
    action(owner.ZipCode, form.txtZipcode);
    action(owner.Town, form.txtCity);
    action(owner.Source, form.txtSource);
}

}  // namespace

OwnerRec& TheOwner() noexcept {
    static OwnerRec owner{};
    return owner;
}

void ShowOwner() {
    ForEachField([](const auto& field, Text& box) { box = field.TrimmedRight(); });
}

void TakeOwner() {
    ForEachField([](auto& field, const Text& box) { field = box; });
}

}  // namespace korvande
