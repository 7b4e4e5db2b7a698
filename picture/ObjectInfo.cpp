#include "picture/ObjectInfo.h"

namespace korvande {

namespace {

void TakeCode(const PictureCode& code, ObjectInfo& info) {
    info.code = code.code;
    info.lkiCode = code.lkiCode;
    info.isKnown = code.isKnown;
    info.isWritten = code.isWritten;
    if (info.description.empty()) info.description = code.description;
}

}  // namespace

ObjectInfo Describe(const Drawing& drawing, const DisplayList& list, PictureRef ref) {
    ObjectInfo info;
    info.kind = ref.kind;
    switch (ref.kind) {
        case PictureKind::Point: {
            const PicturePoint& point = list.points[ref.place];
            const PointRec& record = drawing.Points[point.index];
            const auto& description = drawing.Description(record);
            const auto& name = record.PointID();
            info.description = Text(description.Trimmed());
            info.number = name.NeverFilled() || name.IsBlank() ? Concat(record.PointNo) : Text(name.Trimmed());
            info.inputLine = record.InputLine;
            TakeCode(list.codes[point.code], info);
            break;
        }
        case PictureKind::LineString: {
            const PictureLine& line = list.lines[ref.place];
            const LineRec& record = drawing.Lines[line.lineNo];
            const auto& description = drawing.Description(record);
            if (!description.NeverFilled()) info.description = Text(description.Trimmed());
            info.number = Concat(line.lineNo);
            info.inputLine = record.InputLine;
            TakeCode(list.codes[line.code], info);
            break;
        }
        case PictureKind::TextObject: {
            const PictureText& text = list.texts[ref.place];
            const TextRec& record = drawing.Texts[text.index];
            const auto& characters = record.Characters();
            info.description = Text(characters.Trimmed());
            info.inputLine = record.InputLine;
            TakeCode(list.codes[text.code], info);
            break;
        }
    }
    return info;
}

}  // namespace korvande
