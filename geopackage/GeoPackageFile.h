#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/Text.h"
#include "geopackage/Database.h"
#include "geopackage/DrawingRows.h"
#include "geopackage/Styles.h"
#include "host/modFileHandling.h"

namespace korvande {

struct GeoPackageChoice {
    bool isLocal = false;     // without a coordinate system
    bool isStraight = false;  // arcs are made of straight lines
    bool replaces = false;    // an earlier file
    bool namesOwner = false;  // the control table tells whose the IDEX drawings are
};

// A file beside the one that it is to become; removed with this object when it did not.
class FileBeside {
 public:
    // Makes an empty one. A run-time error when that cannot be done.
    explicit FileBeside(TextView itsName);
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside();

    const Text& Name() const noexcept { return temporary; }

    // To be called when it is closed: has it reach the disk and puts it in its place. A run-time error when it cannot
    // go there, also because there is one already that it does not replace.
    void PutInPlace(Replace replace);

 private:
    Text name;
    Text temporary;
    std::string temporaryPath;  // by which the system removes it, also when there is no memory to find it again
};

// A GeoPackage of the layers "punten", "lijnen" and "teksten", of any number of drawings: of each everything that is in
// its picture, with what its file says of itself as metadata. Points stand with the heights that they have.
//
// It is written beside its place, where nothing remains of it unless it is finished. What it takes in memory does not
// grow with the number of drawings, but for the codes that they have. Whatever cannot be written is a run-time error.
class GeoPackageFile {
 public:
    GeoPackageFile(TextView itsName, const GeoPackageChoice& itsChoice);

    // Adds the drawing of a translation as a whole, in one go. `onRows` is called now and then, and may throw; then
    // nothing but leaving the file alone is left to do.
    RowCounts Add(const Translation& translation, const DisplayList& list, const std::function<void()>& onRows = {});

    // What all drawings have is put in its place.
    void Finish();

 private:
    void WriteLayers();

    GeoPackageChoice choice;
    std::string moment;
    FileBeside file;
    Database database;
    std::unique_ptr<DrawingRows> rows;
    Styles styles;
};

}  // namespace korvande
