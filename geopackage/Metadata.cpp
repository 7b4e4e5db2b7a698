#include "geopackage/Metadata.h"

#include "geopackage/Database.h"
#include "geopackage/LineShape.h"
#include "host/modFileHandling.h"
#include "picture/SvgCanvas.h"
#include "translation/Translation.h"

namespace korvande {

namespace {

void Put(std::string& xml, const std::string& element, TextView value) {
    const TextView trimmed = Trim(value);
    if (!trimmed.empty()) xml += "<" + element + ">" + XmlText(trimmed) + "</" + element + ">\n";
}

// An IDEX file has its name between quotes, which the drawing keeps.
TextView WithoutQuotes(TextView name) {
    name = Trim(name);
    const bool isQuoted = name.size() > 1 && name.front() == u'"' && name.back() == u'"';
    return isQuoted ? name.substr(1, name.size() - 2) : name;
}

}  // namespace

std::string MetadataOf(const Translation& translation, const RowCounts& counts, bool namesOwner) {
    const bool isFromIdex = translation.mode.direction == Direction::FromIdex;
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<metadata xmlns:dc=\"http://purl.org/dc/elements/1.1/\">\n";
    Put(xml, "dc:title",
        isFromIdex ? WithoutQuotes(translation.drawing.DrawingName) : TextView(translation.ProjectName));
    Put(xml, "dc:date", FromUtf8(DateOf(translation)));
    const auto& owner = translation.owner.NameLong;
    if (!isFromIdex) Put(xml, "dc:creator", translation.OwnerName);
    if (isFromIdex && namesOwner && !owner.NeverFilled()) Put(xml, "dc:creator", owner.View());
    Put(xml, "dc:source", FileNameOf(InputName(translation)));
    Put(xml, "dc:format", NameOf(InputFormat(translation.mode)));
    Put(xml, "dc:description",
        Concat(counts.points, u" punten, ", counts.lineStrings, u" lijnstrings, ", counts.texts, u" teksten, ",
               counts.unknown, u" onbekende objecten"));
    return xml + "</metadata>\n";
}

void AddMetadataOf(Database& database, const std::string& metadata, const std::string& moment) {
    Statement insert(database,
                     "INSERT INTO gpkg_metadata (md_scope, md_standard_uri, mime_type, metadata) VALUES ('dataset', "
                     "'http://purl.org/dc/elements/1.1/', 'text/xml', ?)");
    insert.Put(metadata).Run();
    Statement reference(database,
                        "INSERT INTO gpkg_metadata_reference (reference_scope, timestamp, md_file_id) VALUES "
                        "('geopackage', ?, last_insert_rowid())");
    reference.Put(moment).Run();
}

std::string FileNameIn(TextView name) {
    Text clean;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto isHigh = [](char16_t c) { return c >= 0xD800 && c < 0xDC00; };
        const auto isLow = [](char16_t c) { return c >= 0xDC00 && c < 0xE000; };
        if (isHigh(name[i]) && i + 1 < name.size() && isLow(name[i + 1])) {
            clean.append(name.substr(i++, 2));
        } else {
            clean.push_back(isHigh(name[i]) || isLow(name[i]) ? u'?' : name[i]);
        }
    }
    return ToUtf8(clean);
}

}  // namespace korvande
