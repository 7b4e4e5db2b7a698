#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/modKORVANDE.h"
#include "nensuf/Overflow.h"
#include "nensuf/RecordReader.h"
#include "project/CodeTables.h"
#include "translation/Mode.h"
#include "translation/ObjectAccount.h"

namespace korvande {

class UnknownCodeTally;
struct Translation;

// A rectangle that limits what is imported; its edges belong to it. Metres.
struct SelectionRectangle {
    bool isOn = false;
    double minX = 0;
    double maxX = 0;
    double minY = 0;
    double maxY = 0;

    bool Contains(const PointRec& point) const noexcept {
        return minX <= point.East && point.East <= maxX && minY <= point.North && point.North <= maxY;
    }
    bool Excludes(const PointRec& point) const noexcept { return isOn && !Contains(point); }
};

// How the whole numbers in coordinate fields become metres, from the 02 record.
struct CoordinateFrame {
    double scale = 0;    // by which x and y are multiplied, once for the header's factor too
    double originX = 0;  // metres
    double originY = 0;
    double originZ = 0;
    double scaleZ = 0;

    // Metres of a field's value; error 6 on overflow.
    double X(const GroupField& field) const { return Metres(field, scale, originX); }
    double Y(const GroupField& field) const { return Metres(field, scale, originY); }
    double Z(const GroupField& field) const { return Metres(field, scaleZ, originZ); }

 private:
    static double Metres(const GroupField& field, double factor, double origin) {
        return WithoutOverflow(factor * NumberOf(field) + origin);
    }
};

// What a 03 or 05 group names: its code and the objects to be read from it, at most one of each kind.
struct GroupObjects {
    std::string ObjectCode;  // the LKI code, trimmed
    std::string placement;   // the value of the F field, nine characters
    bool isPoint = false;
    bool isLine = false;
    bool isArc = false;
    bool isSymbol = false;
    bool isText = false;

    // It adds no object to those of its neighbours: a 03 group without a G field heads the 05 group behind it, a 05
    // group without a code places the object of the 03 group before it.
    bool isPart = false;

    bool namesKind = false;  // it has a G or F field

    std::int64_t line = 0;            // of the input, of its first record
    bool isMarked = false;            // as to be deleted or changed
    std::int64_t secondCodeLine = 0;  // where it has another code of the same field; 0: it has one at most
};

// The row of a table that an object is read by, and its own code when that is unknown and kept all the same.
struct ObjectRow {
    std::int32_t number = 0;
    std::optional<CodeKey> ownCode;
};

// The LISCAD code that such an object gets.
inline const CodeKey& LiscadCodeOf(const CodeTable& table, const ObjectRow& row) {
    return row.ownCode ? *row.ownCode : table.rows[static_cast<std::size_t>(row.number)].LiscadCode;
}

// The codes and descriptions of a table's rows as points or line strings have them: each comes into the drawing with
// the first object of its row, and is only a number for the others.
template <class Record>
class RowKinds {
 public:
    RowKinds(Drawing& itsDrawing, const CodeTable& itsTable)
        : drawing(itsDrawing), table(itsTable), kinds(table.rows.size(), 0) {}

    void Mark(Record& record, const ObjectRow& row) {
        KeptNumber& kind = kinds[static_cast<std::size_t>(row.number)];
        if (kind != 0) return Drawing::SetKind(record, kind);
        drawing.SetCode(record, LiscadCodeOf(table, row).View());
        drawing.SetDescription(record, table.rows[static_cast<std::size_t>(row.number)].Description.View());
        if (!row.ownCode) kind = Drawing::KindOf(record);
    }

 private:
    Drawing& drawing;
    const CodeTable& table;
    std::vector<KeptNumber> kinds;  // 0: not in the drawing yet
};

// What the group readers of one import share.
struct ImportRun {
    ImportRun(Translation& itsTranslation, LineReader& file);

    Translation& translation;
    UnknownCodeTally* unknowns;  // null: none are tallied
    RecordReader records;
    Variant NenMode;                // of the file: that of the mode, until a person answers otherwise
    GroupObjects group;             // the group being imported
    bool afterGeometry = false;     // behind a 03 group with a G field, which 05 groups without a code belong to
    bool isTold = false;            // that the object read last did not come across whole
    bool isPlaced = false;          // it is a point or symbol, which 05 records without a code belong to
    bool mayBeDescribed = false;    // it is a point or symbol, which a 06 record describes
    std::int64_t mayCloseLine = 0;  // of the record passed over last, when it is the closing record if nothing follows
    CoordinateFrame frame;
    SelectionRectangle selection;
    bool withUnknowns;  // chkImportUnknowns

    ObjectSource source{};                      // that the last 03 group told of its objects
    std::string sourceFields;                   // where it stood
    ObjectSources::Number sourceOfHead = 0;     // its number in the drawing
    ObjectSources::Number sourceOfObjects = 0;  // that of the group's objects

    RowKinds<PointRec> pointKinds;
    RowKinds<PointRec> vertexKinds;  // points of line strings, from the table of lines
    RowKinds<LineRec> lineKinds;
    RowKinds<LineRec> textLineKinds;  // line strings below texts, from the table of texts
    KeptNumber straight;              // the line types that are made
    KeptNumber arcByCentre;
};

// The objects of the group read last, of type 03 or 05.
GroupObjects ReadObjects(ImportRun& run);

// Accounts for objects that no group reader is called for, and tells of them.
void LeaveObjects(ImportRun& run, const GroupObjects& objects, LeftOut reason);

// Accounts for an object of the current group that counts as read already: why it was left out, or nothing when it is
// in the drawing.
void SettleObject(ImportRun& run, ObjectKind kind, std::optional<LeftOut> reason);

// Appends a point and returns its index, which becomes its number. A point whose code was never filled gets the code
// "100" and the description "Onbekend Object".
std::int32_t AddImportedPoint(Drawing& drawing, const PointRec& point);

// Reads the 04 group that must follow. When another one does, the log book ("FOUT:  " and the object's kind) and a
// message tell so, and the result is false; that other group is lost.
bool ReadGeometryGroup(ImportRun& run, TextView kind);

CodeKey KeyOf(std::string_view code);

// The row that an object of this code is read by; when it is the unknown row and unknown codes are kept, with the code
// itself.
ObjectRow RowFor(const ImportRun& run, std::int32_t row, const CodeKey& code);

}  // namespace korvande
