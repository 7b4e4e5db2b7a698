#include "translation/ObjectAccount.h"

#include <algorithm>
#include <numeric>

namespace korvande {

namespace {

constexpr std::array<TextView, objectKinds> kindNames = {u"Punten",  u"Lijnstrings", u"Lijnsegmenten",   u"Bogen",
                                                         u"Teksten", u"Veelhoeken",  u"Overige objecten"};

constexpr std::array<TextView, leftOutReasons> reasonNames = {
    u"onbekende code",      u"type DUMMY",         u"ander type",
    u"ander lijntype",      u"lege tekst",         u"buiten de rechthoek",
    u"zonder code",         u"zonder coördinaten", u"zonder coördinaten, niet gewenst",
    u"record ontbreekt",    u"ongeldige boog",     u"verwijst naar niets",
    u"wordt niet vertaald", u"niet voltooid"};

}  // namespace

std::int64_t KindAccount::LeftOutTotal() const noexcept {
    return std::accumulate(leftOut.begin(), leftOut.end(), std::int64_t{0});
}

bool ObjectAccount::Balances() const noexcept {
    return std::all_of(kinds.begin(), kinds.end(), [](const KindAccount& kind) { return kind.Balances(); });
}

KindAccount ObjectAccount::Total() const noexcept {
    KindAccount total;
    for (const KindAccount& kind : kinds) {
        total.read += kind.read;
        total.kept += kind.kept;
        total.written += kind.written;
        for (std::size_t reason = 0; reason < leftOutReasons; ++reason) total.leftOut[reason] += kind.leftOut[reason];
    }
    return total;
}

void ObjectAccount::KeptAreWritten() noexcept {
    for (KindAccount& kind : kinds) kind.written += kind.kept;
}

Text ObjectAccount::Summary() const {
    Text summary;
    for (std::size_t kind = 0; kind < objectKinds; ++kind) {
        const KindAccount& account = kinds[kind];
        if (account.read == 0) continue;
        AppendTo(summary, Concat(kindNames[kind], u": ", account.read, u" gelezen, ", account.written, u" geschreven, ",
                                 account.LeftOutTotal(), u" weggelaten"));
        TextView separator = u" (";
        for (std::size_t reason = 0; reason < leftOutReasons; ++reason) {
            if (account.leftOut[reason] == 0) continue;
            AppendTo(summary, Concat(separator, account.leftOut[reason], u" ", reasonNames[reason]));
            separator = u", ";
        }
        AppendTo(summary, separator == u", " ? TextView(u")\n") : TextView(u"\n"));
    }
    return summary;
}

}  // namespace korvande
