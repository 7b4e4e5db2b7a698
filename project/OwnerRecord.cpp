#include "project/OwnerRecord.h"

namespace korvande {

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
    if (owner.Source.IsBlank()) owner.Source = ToCapitals(owner.NameShort.View());
    if (owner.Source.IsBlank()) owner.Source = ToCapitals(owner.NameLong.View());
}

}  // namespace korvande
