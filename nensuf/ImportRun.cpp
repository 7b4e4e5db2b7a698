#include "nensuf/ImportRun.h"

#include "core/Numbers.h"
#include "core/modScreen.h"
#include "nensuf/Overflow.h"
#include "translation/CodeLookups.h"
#include "translation/Translation.h"

namespace korvande {

double CoordinateFrame::Metres(std::string_view value, double factor, double origin) {
    return WithoutOverflow(factor * LeadingNumber(value) + origin);
}

namespace {

SelectionRectangle SelectionOf(const Options& options) {
    const auto number = [](const Text& text) { return LeadingNumber(ToWindows1252(text)); };
    return {options.chkSelectXY, number(options.txtMinX), number(options.txtMaxX), number(options.txtMinY),
            number(options.txtMaxY)};
}

}  // namespace

ImportRun::ImportRun(Translation& itsTranslation, LineReader& file)
    : translation(itsTranslation),
      unknowns(TallyOf(itsTranslation)),
      records(file, itsTranslation.screen, itsTranslation.inputLine),
      NenMode(itsTranslation.mode.variant),
      selection(SelectionOf(itsTranslation.options)),
      withUnknowns(itsTranslation.options.chkImportUnknowns) {}

namespace {

// A 03 group: M holds the code (nine characters), G the kind of geometry in its first two.
void ReadGeometryFields(ImportRun& run, GroupObjects& objects) {
    run.afterGeometry = false;
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'M') {
            objects.ObjectCode = Trim(field.Value);
        } else if (field.Key == 'G') {
            const double kind = LeadingNumber(field.Value.substr(0, 2));
            objects.isPoint = objects.isPoint || kind == 1;
            objects.isLine = objects.isLine || kind == 3 || kind == 5 || kind == 12;
            objects.isArc = objects.isArc || kind == 4 || kind == 13;
            run.afterGeometry = true;
        }
    }
    objects.isPart = !run.afterGeometry && run.records.NextIs("05");
}

// A 05 group: Q or K holds the code, F the placement, whose third character tells texts from symbols.
void ReadPlacementFields(ImportRun& run, GroupObjects& objects) {
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'Q' || field.Key == 'K') {
            objects.ObjectCode = Trim(field.Value);
        } else if (field.Key == 'F') {
            objects.placement = field.Value;
            objects.isText = objects.isText || field.Value[2] == '1';
            objects.isSymbol = objects.isSymbol || field.Value[2] == '2';
        }
    }
    const bool hasCode = !objects.ObjectCode.empty();
    objects.isPart = run.afterGeometry && !hasCode && !objects.isText;
    if (hasCode) run.afterGeometry = false;
}

}  // namespace

GroupObjects ReadObjects(ImportRun& run) {
    GroupObjects objects;
    if (run.records.RecordType() == "03") {
        ReadGeometryFields(run, objects);
    } else {
        ReadPlacementFields(run, objects);
    }
    return objects;
}

void LeaveObjects(ObjectAccount& account, const GroupObjects& objects, LeftOut reason) {
    if (objects.isPart) return;
    const auto leave = [&account, reason](ObjectKind kind) {
        ++account[kind].read;
        account.Leave(kind, kind == ObjectKind::Other ? LeftOut::NotTranslated : reason);
    };
    const bool isPointOrSymbol = objects.isPoint || objects.isSymbol;
    if (isPointOrSymbol) leave(ObjectKind::Point);
    if (objects.isLine) leave(ObjectKind::LineString);
    if (objects.isArc) leave(ObjectKind::Arc);
    if (objects.isText) leave(ObjectKind::TextObject);
    if (!isPointOrSymbol && !objects.isLine && !objects.isArc && !objects.isText) leave(ObjectKind::Other);
}

void SettleObject(ObjectAccount& account, ObjectKind kind, std::optional<LeftOut> reason) {
    if (reason) {
        account.Leave(kind, *reason);
    } else {
        ++account[kind].kept;
    }
}

std::int32_t AddImportedPoint(Drawing& drawing, const PointRec& point) {
    PointRec& added = drawing.Points.Append(point);
    const std::int32_t index = drawing.Points.UpperBound();
    added.PointNo = index;
    drawing.PointIndex.Set(index, index);
    if (drawing.Code(added).NeverFilled()) {
        drawing.SetCode(added, TextView(u"100"));
        drawing.SetDescription(added, TextView(u"Onbekend Object"));
    }
    return index;
}

bool ReadGeometryGroup(ImportRun& run, TextView kind) {
    run.records.ReadRecordGroup(0);
    const std::string_view type = run.records.RecordType();
    if (type == "04") return true;
    Translation& translation = run.translation;
    Report(translation, {.kind = ProblemKind::NoCoordinatesRecord, .words = Text(kind)});
    ShowMessage(translation.screen, u"04 record ontbreekt", Icon::Critical);
    if (type == "03" || type == "05") LeaveObjects(translation.account, ReadObjects(run), LeftOut::MissingRecord);
    return false;
}

CodeKey KeyOf(std::string_view code) {
    CodeKey key;
    key.Assign(code);
    return key;
}

}  // namespace korvande
