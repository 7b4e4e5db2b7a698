#include "nensuf/ImportRun.h"

#include "core/Numbers.h"
#include "core/modScreen.h"
#include "nensuf/ImportProblems.h"
#include "translation/CodeLookups.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

KeptNumber LineTypeOf(Drawing& drawing, std::string_view name) {
    FixedBytes<12> lineType{};
    lineType.Assign(name);
    return drawing.LineTypes.NumberOf(lineType);
}

SelectionRectangle SelectionOf(const Options& options) {
    const auto number = [](const Text& text) { return LeadingNumber(ToWindows1252(text)); };
    return {options.chkSelectXY, number(options.txtMinX), number(options.txtMaxX), number(options.txtMinY),
            number(options.txtMaxY)};
}

}  // namespace

ImportRun::ImportRun(Translation& itsTranslation, LineReader& file)
    : translation(itsTranslation),
      unknowns(TallyOf(itsTranslation)),
      records(itsTranslation, file),
      NenMode(itsTranslation.mode.variant),
      selection(SelectionOf(itsTranslation.options)),
      withUnknowns(itsTranslation.options.chkImportUnknowns),
      pointKinds(itsTranslation.drawing, itsTranslation.codes.points),
      vertexKinds(itsTranslation.drawing, itsTranslation.codes.lines),
      lineKinds(itsTranslation.drawing, itsTranslation.codes.lines),
      textLineKinds(itsTranslation.drawing, itsTranslation.codes.texts),
      straight(LineTypeOf(itsTranslation.drawing, "STRAIGHT")),
      arcByCentre(LineTypeOf(itsTranslation.drawing, "ARC_CENT")) {}

namespace {

// Takes a code; where the same field brings a second one, the end of a group before it was lost.
class CodeTaker {
 public:
    void Take(GroupObjects& objects, const GroupField& field) {
        const std::string_view code = Trim(field.Value);
        objects.ObjectCode = code;
        if (code.empty()) return;
        if (key == field.Key && objects.secondCodeLine == 0) objects.secondCodeLine = field.Line;
        key = field.Key;
    }

 private:
    char key = 0;
};

// The kind in the first two characters of a G field; 0 when they are no whole number.
int KindIn(std::string_view value) {
    const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
    if (isDigit(value[0]) && isDigit(value[1])) return 10 * (value[0] - '0') + (value[1] - '0');
    return static_cast<int>(LeadingNumber(value.substr(0, 2)));
}

// In the value of a G field, behind the kind of geometry: how the object was measured, and its status.
constexpr std::size_t sourceKindPlace = 4;
constexpr std::size_t statusPlace = 5;

void TakeKind(ObjectSource& source, std::string_view value) {
    source.kind.bytes[0] = value[sourceKindPlace];
    source.status.bytes[0] = value[statusPlace];
}

// What a field of a 03 group says of where the object comes from: G; D, a blank and the date; B, five characters. A
// text has blanks in place of the G field's letter and kind.
void TakeField(ObjectSource& source, const GroupField& field) {
    constexpr std::size_t dateLength = 8;
    constexpr std::size_t nameLength = 5;
    switch (field.Key) {
        case 'G':
            TakeKind(source, field.Value);
            break;
        case 'D':
            source.date.Assign(field.Value.substr(1, dateLength));
            break;
        case 'B':
            source.name.Assign(field.Value.substr(0, nameLength));
            break;
        case ' ':
            if (Trim(field.Value.substr(0, sourceKindPlace)).empty()) TakeKind(source, field.Value);
            break;
        default:
            break;
    }
}

// Most groups say the same as the one before.
void TakeSource(ImportRun& run) {
    const std::string_view fields = run.records.BehindFirstField();
    if (fields != run.sourceFields) {
        run.sourceFields = fields;
        run.source = {};
        for (const GroupField& field : run.records.GroupFields()) TakeField(run.source, field);
        run.sourceOfHead = run.translation.drawing.Sources.NumberOf(run.source);
    }
    run.sourceOfObjects = run.sourceOfHead;
}

// A placement may have a status of its own.
void TakeStatus(ImportRun& run, char status) {
    run.sourceOfObjects = run.sourceOfHead;
    if (status == run.source.status.bytes[0]) return;
    ObjectSource source = run.source;
    source.status.bytes[0] = status;
    run.sourceOfObjects = run.translation.drawing.Sources.NumberOf(source);
}

// A 03 group: M holds the code (nine characters), G the kind of geometry in its first two and the status in its sixth.
void ReadGeometryFields(ImportRun& run, GroupObjects& objects) {
    CodeTaker codes;
    run.afterGeometry = false;
    TakeSource(run);
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'M') {
            codes.Take(objects, field);
        } else if (field.Key == 'G') {
            objects.namesKind = true;
            objects.isMarked = objects.isMarked || MarksMutation(field.Value[statusPlace]);
            const int kind = KindIn(field.Value);
            objects.isPoint = objects.isPoint || kind == 1;
            objects.isLine = objects.isLine || kind == 3 || kind == 5 || kind == 12;
            objects.isArc = objects.isArc || kind == 4 || kind == 13;
            run.afterGeometry = true;
        } else if (field.Key == 'X') {
            // A head has no coordinates; these are of a record that was taken for one.
            Tell(run.translation, {.kind = ProblemKind::PointsPassedOver, .line = field.Line});
        }
    }
    objects.isPart = !run.afterGeometry && run.records.NextIs("05");
}

// A 05 group: Q or K holds the code, F the placement, whose second character is the status and whose third tells texts
// from symbols.
void ReadPlacementFields(ImportRun& run, GroupObjects& objects) {
    CodeTaker codes;
    char status = 0;
    for (const GroupField& field : run.records.GroupFields()) {
        if (field.Key == 'Q' || field.Key == 'K') {
            codes.Take(objects, field);
        } else if (field.Key == 'F') {
            objects.namesKind = true;
            objects.isMarked = objects.isMarked || MarksMutation(field.Value[1]);
            objects.placement = field.Value;
            status = field.Value[1];
            objects.isText = objects.isText || field.Value[2] == '1';
            objects.isSymbol = objects.isSymbol || field.Value[2] == '2';
        }
    }
    const bool hasCode = !objects.ObjectCode.empty();
    objects.isPart = run.afterGeometry && !hasCode && !objects.isText;
    if (hasCode) run.afterGeometry = false;
    if (hasCode && status != 0) TakeStatus(run, status);
}

}  // namespace

GroupObjects ReadObjects(ImportRun& run) {
    GroupObjects objects;
    objects.line = run.records.GroupOrigin().line;
    if (run.records.RecordType() == "03") {
        ReadGeometryFields(run, objects);
    } else {
        ReadPlacementFields(run, objects);
    }
    run.translation.drawing.Sources.Begin(objects.line, run.sourceOfObjects);
    return objects;
}

namespace {

// A group that is of no kind which is read: it names another one, or none at all, which no good file does.
void LeaveOther(Translation& translation, const GroupObjects& objects) {
    constexpr ObjectKind kind = ObjectKind::Other;
    ++translation.account[kind].read;
    if (objects.namesKind) return LeaveOut(translation, kind, LeftOut::NotTranslated, objects.line);
    translation.account.Leave(kind, LeftOut::NotTranslated);
    Tell(translation, {.kind = ProblemKind::GroupWithoutCode, .object = kind, .line = objects.line});
}

}  // namespace

void LeaveObjects(ImportRun& run, const GroupObjects& objects, LeftOut reason) {
    if (objects.isPart) return;
    run.isTold = true;
    Translation& translation = run.translation;
    const auto leave = [&translation, &objects, reason](ObjectKind kind) {
        ++translation.account[kind].read;
        LeaveOut(translation, kind, reason, objects.line);
    };
    const bool isPointOrSymbol = objects.isPoint || objects.isSymbol;
    if (isPointOrSymbol) leave(ObjectKind::Point);
    if (objects.isLine) leave(ObjectKind::LineString);
    if (objects.isArc) leave(ObjectKind::Arc);
    if (objects.isText) leave(ObjectKind::TextObject);
    if (!isPointOrSymbol && !objects.isLine && !objects.isArc && !objects.isText) LeaveOther(translation, objects);
}

void SettleObject(ImportRun& run, ObjectKind kind, std::optional<LeftOut> reason) {
    Translation& translation = run.translation;
    const GroupObjects& group = run.group;
    if (reason) {
        LeaveOut(translation, kind, *reason, group.line);
        run.isTold = true;
        return;
    }
    ++translation.account[kind].kept;
    if (group.isMarked) Tell(translation, {.kind = ProblemKind::MutationStatus, .object = kind, .line = group.line});
}

std::int32_t AddImportedPoint(Drawing& drawing, const PointRec& point) {
    PointRec& added = drawing.Points.Append(point);
    const std::int32_t index = drawing.Points.UpperBound();
    added.PointNo = index;
    drawing.PointIndex.Set(index, index);
    if (drawing.CodeBytes(added).NeverFilled()) {
        PointKind unknown{};
        unknown.code.Assign(std::string_view("100"));
        unknown.description.Assign(std::string_view("Onbekend Object"));
        Drawing::SetKind(added, drawing.PointKinds.NumberOf(unknown));
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
    if (type == "03" || type == "05") {
        LeaveObjects(run, ReadObjects(run), LeftOut::MissingRecord);
    } else if (type != "06" && type != "99") {
        PassOver(run);
    }
    return false;
}

CodeKey KeyOf(std::string_view code) {
    CodeKey key;
    key.Assign(code);
    return key;
}

ObjectRow RowFor(const ImportRun& run, std::int32_t row, const CodeKey& code) {
    if (row != 0 || !run.translation.keepsUnknownCodes) return {.number = row, .ownCode = {}};
    return {.number = row, .ownCode = code};
}

}  // namespace korvande
