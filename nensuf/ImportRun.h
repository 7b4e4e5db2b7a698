#pragma once

#include <cstdint>
#include <string>

#include "core/modKORVANDE.h"
#include "nensuf/RecordReader.h"
#include "project/CodeTables.h"

namespace korvande {

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
    double X(std::string_view value) const { return Metres(value, scale, originX); }
    double Y(std::string_view value) const { return Metres(value, scale, originY); }
    double Z(std::string_view value) const { return Metres(value, scaleZ, originZ); }

 private:
    static double Metres(std::string_view value, double factor, double origin);
};

// What the group readers of one import share.
struct ImportRun {
    explicit ImportRun(LineReader& file) : records(file) {}

    RecordReader records;
    std::string ObjectCode;  // the LKI code of the current group, trimmed
    std::string placement;   // the value of its F field, nine characters
    CoordinateFrame frame;
    SelectionRectangle selection;
    bool withUnknowns = false;  // chkImportUnknowns
};

// Appends a point and returns its index, which becomes its number. A point whose code was never filled gets the code
// "100" and the description "Onbekend Object".
std::int32_t AddImportedPoint(const PointRec& point);

// The group readers. Each reads the records that follow its group.
void ImportPointGroup(ImportRun& run);
void ImportLineGroup(ImportRun& run);
void ImportArcGroup(ImportRun& run);
void ImportSymbolGroup(ImportRun& run);
void ImportTextGroup(ImportRun& run);

// Reads the 04 group that must follow. When another one does, the log book ("FOUT:  " and the object's kind) and a
// message tell so, and the result is false; that other group is lost.
bool ReadGeometryGroup(ImportRun& run, TextView kind);

CodeKey KeyOf(std::string_view code);

// Of points that share a number (PointID) the first keeps it and every later one loses it.
void CleanUpPointNumbers();

}  // namespace korvande
