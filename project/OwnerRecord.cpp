#include "project/OwnerRecord.h"

namespace korvande {

namespace {

// The name becomes capitals itself.
template <std::size_t N>
void TakeSourceFrom(FixedText<N>& name, OwnerRec& owner) {
    name = ToCapitals(name.View());
    owner.Source = name.View();
}

}  // namespace

void FillOwner(OwnerRec& owner) {
    if (!owner.NameLong.NeverFilled()) return;
    owner.NameLong = u"VOSAIZO ZANDERVIK B.V.";
    owner.NameShort = u"VOSAIZO";
    owner.Street = u"POSTBUS";
    owner.Number = u"418";
    owner.Extra = u"";
    owner.ZipCode = u"7391KX";
    owner.Town = u"MOLVEREN";
    owner.Source = u"";
}

void FillSource(OwnerRec& owner) {
    owner.Source = Text(owner.Source.Trimmed());
    if (owner.Source.IsBlank()) TakeSourceFrom(owner.NameShort, owner);
    if (owner.Source.IsBlank()) TakeSourceFrom(owner.NameLong, owner);
}

}  // namespace korvande
