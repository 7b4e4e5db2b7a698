#include "translation/UnknownObjects.h"

#include "core/Picture.h"
#include "core/UnknownCodeTally.h"
#include "core/modStrings.h"
#include "translation/LogBook.h"

namespace korvande {

namespace {

constexpr int firstColumn = 20;
constexpr int columnWidth = 15;
constexpr int lineWidth = 80;

TextView HeadingOf(char16_t tableLetter) {
    switch (tableLetter) {
        case u'T':
            return u"Tekstelementen:";
        case u'P':
            return u"Puntobjecten:";
        default:
            return u"Lijnobjecten:";
    }
}

}  // namespace

void WriteUnknownObjectOverview(LogBook& log, UnknownCodeTally& unknowns) {
    unknowns.Sort();
    const auto& entries = unknowns.Entries();
    if (!entries.empty()) {
        log.WriteLine();
        log.WriteLine(u"Overzicht onbekende objecten:");
    }
    char16_t letter = u'\0';
    int column = firstColumn;
    for (const UnknownCodeRec& entry : entries) {
        const TextView key = entry.Code.View();
        if (key[0] != letter) {
            letter = key[0];
            log.WriteEmptyLines(2);
            log.Write(HeadingOf(letter));
            column = firstColumn;
        }
        if (column >= lineWidth || log.Column() > column) {
            log.EndLine();
            column = firstColumn;
        }
        log.WriteAtColumn(column, Concat(key.substr(1), FormatPicture(entry.Count, "(#0)")));
        column += columnWidth;
    }
    log.WriteEmptyLines(2);
}

Text UnknownCodeSentence(const UnknownCodeRec& unknown) {
    const TextView key = unknown.Code.View();
    const TextView kind = key[0] == u'P' ? u"Puntcode" : key[0] == u'L' ? u"Lijncode" : u"Tekstcode";
    return Concat(kind, u" '", TrimRight(key.substr(1)), u"' staat niet in de controletabel: ", unknown.Count,
                  u" maal");
}

}  // namespace korvande
