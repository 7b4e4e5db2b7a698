#include "geopackage/GeoPackageFile.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "core/Clock.h"
#include "core/LineReader.h"
#include "core/NativePath.h"
#include "core/Picture.h"
#include "core/RuntimeError.h"
#include "geopackage/Metadata.h"
#include "geopackage/Schema.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

// The moment of writing, in UTC; a moment that is fixed is that already.
std::string MomentOfWriting() {
    const bool isFixed = std::getenv("SOURCE_DATE_EPOCH") != nullptr;
    const DateTime now = isFixed ? Now() : UtcTime(std::time(nullptr));
    const auto two = [](int value) { return FormatPicture(value, "00"); };
    return FormatPicture(now.year, "0000") + "-" + two(now.month) + "-" + two(now.day) + "T" + two(now.hour) + ":" +
           two(now.minute) + ":" + two(now.second) + ".000Z";
}

std::int32_t SystemOf(const GeoPackageChoice& choice) { return choice.isLocal ? systems::unknown : systems::rdNew; }

std::string_view LineGeometryOf(const GeoPackageChoice& choice) {
    return choice.isStraight ? "MULTILINESTRING" : "MULTICURVE";
}

// An empty file, with the rights of another one; false when anything has its name already.
bool Create(TextView name, TextView rightsOf) {
    const FileHandle file(CreateNativeFile(name, rightsOf));
    return file != nullptr;
}

}  // namespace

// A name that nobody has is taken by somebody else now and then.
FileBeside::FileBeside(TextView itsName) : name(itsName) {
    do {
        temporary = TemporaryNameBeside(name);
        temporaryPath = NativePath(temporary);
    } while (!Create(temporary, name));
}

FileBeside::~FileBeside() {
    if (!temporary.empty() && !DeleteFileAt(temporary)) std::remove(temporaryPath.c_str());
}

void FileBeside::PutInPlace(Replace replace) {
    FlushToDisk(FileHandle(OpenNativeFile(temporary, OpenMode::Append)).get());
    PutFileAt(temporary, name, replace);
    const Text folder = FolderOf(temporary);
    temporary.clear();
    FlushFolderToDisk(folder);
}

GeoPackageFile::GeoPackageFile(TextView itsName, const GeoPackageChoice& itsChoice)
    : choice(itsChoice), moment(MomentOfWriting()), file(itsName), database(file.Name()) {
    database.Execute("BEGIN");
    MakeTables(database, LineGeometryOf(choice));
    database.Execute("COMMIT");
    rows = std::make_unique<DrawingRows>(database, RowChoice{SystemOf(choice), choice.isStraight, choice.namesOwner});
}

RowCounts GeoPackageFile::Add(const Translation& translation, const DisplayList& list,
                              const std::function<void()>& onRows) {
    database.Execute("BEGIN");
    const RowCounts counts = rows->Add(translation, list, FileNameIn(FileNameOf(InputName(translation))), onRows);
    AddMetadataOf(database, MetadataOf(translation, counts, choice.namesOwner), moment);
    database.Execute("COMMIT");
    styles.Add(list);
    return counts;
}

void GeoPackageFile::WriteLayers() {
    const LayerTotal totals[] = {
        {layers::points, "Punten", "POINT", rows->Points().Extent()},
        {layers::lines, "Lijnen", LineGeometryOf(choice), rows->Lines().Extent()},
        {layers::texts, "Teksten", "POINT", rows->Texts().Extent()},
    };
    for (const LayerTotal& layer : totals) RegisterLayer(database, layer, SystemOf(choice), moment);
    if (!choice.isStraight) RegisterKind(database, layers::lines, "MULTICURVE");
    if (rows->HasArcs()) RegisterKind(database, layers::lines, "CIRCULARSTRING");
    if (rows->HasCompounds()) RegisterKind(database, layers::lines, "COMPOUNDCURVE");
}

void GeoPackageFile::Finish() {
    database.Execute("BEGIN");
    WriteLayers();
    styles.Write(database, moment);
    database.Execute("COMMIT");
    rows.reset();
    database.Close();
    file.PutInPlace(choice.replaces ? Replace::Yes : Replace::No);
}

}  // namespace korvande
