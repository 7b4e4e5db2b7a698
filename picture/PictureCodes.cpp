#include "picture/PictureCodes.h"

#include "translation/Translation.h"

namespace korvande {

namespace {

PointShape ShapeOf(TextView type) {
    if (type == types::point) return PointShape::Plain;
    if (type == types::rotatedPoint) return PointShape::Rotated;
    if (type == types::controlPoint) return PointShape::ControlPoint;
    if (type == types::symbol) return PointShape::Symbol;
    return PointShape::NotWritten;
}

bool IsWritten(char16_t table, TextView type) {
    switch (table) {
        case u'P':
            return ShapeOf(type) != PointShape::NotWritten;
        case u'L':
            return type == types::line || type == types::boundary;
        default:
            return type != types::dummy;
    }
}

}  // namespace

PictureCodes::PictureCodes(Translation& translation, std::vector<PictureCode>& itsList)
    : drawing(translation.drawing),
      list(itsList),
      isFromIdex(translation.mode.direction == Direction::FromIdex),
      points{&translation.codes.points, std::vector<std::uint32_t>(drawing.PointKinds.Count())},
      lines{&translation.codes.lines, std::vector<std::uint32_t>(drawing.LineKinds.Count())},
      texts{&translation.codes.texts, std::vector<std::uint32_t>(drawing.TextCodes.Count())} {
    if (!isFromIdex) TakeUnknowns(translation);
}

// The reader of an exchange file has tallied what it did not know; everything else in the drawing it gave a code of a
// row, or one of its own making.
void PictureCodes::TakeUnknowns(Translation& translation) {
    for (const UnknownCodeRec& unknown : translation.unknowns.Entries()) {
        const TextView key = unknown.Code.View();
        Table& table = key[0] == points.table->letter ? points : key[0] == lines.table->letter ? lines : texts;
        table.unknowns.insert(ToWindows1252(key.substr(1)));
    }
}

std::uint32_t PictureCodes::FindOrAdd(Table& table, const CodeBytes& code) {
    const auto [entry, isNew] =
        table.found.try_emplace(std::string(code.View()), static_cast<std::uint32_t>(list.size()));
    if (isNew) list.push_back(Describe(table, code));
    return entry->second;
}

PictureCode PictureCodes::Describe(const Table& table, const CodeBytes& code) const {
    PictureCode described;
    described.table = table.table->letter;
    if (!code.NeverFilled()) described.code = FromWindows1252(code.TrimmedRight());
    if (described.table == u'T' && code.View().front() == lkiCodeMark) {
        described.lkiCode = FromWindows1252(TrimRight(code.View().substr(1)));
        described.description = u"Tekst uit de punten";
        described.isKnown = described.isWritten = true;
        return described;
    }
    const std::int32_t row = FindLiscadCode(*table.table, code.Wide());
    described.isKnown = isFromIdex ? row > 0 : !table.unknowns.contains(std::string(code.View()));
    if (table.table->rows.empty()) return described;
    if (described.isKnown) described.row = row;
    const CodeRow& entry = table.table->rows[described.isKnown ? static_cast<std::size_t>(row) : 0];
    // A code that the reader made itself, such as that of a text's places, has no row.
    if (row > 0 || !described.isKnown) described.lkiCode = Text(entry.LkiCode.TrimmedRight());
    if (row > 0 && described.isKnown) described.description = Text(entry.Description.Trimmed());
    const TextView type = entry.Type.TrimmedRight();
    described.type = Text(type);
    described.isWritten = IsWritten(described.table, type);
    described.shape = ShapeOf(type);
    return described;
}

}  // namespace korvande
