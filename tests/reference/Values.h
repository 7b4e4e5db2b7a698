#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

// What the reference translator works on. It is a second program with the same meaning, written from docs/formats and
// not from the sources, as slow and as plain as can be: all texts are Windows-1252 bytes, filled with blanks to their
// width where they have one.
namespace korvande::reference {

enum class Format { Idex, Nen1878, Suf2 };
enum class Answer { Yes, No, Cancel };

// A row of a code table.
struct Row {
    std::string liscad;       // 7
    std::string lki;          // 7
    std::string type;         // 7
    std::string description;  // 43
    int p = 0;
    int i = 0;
    int b = 0;
    int uses = 0;
};
using Table = std::vector<Row>;  // row 0 stands for every code that no other row has

struct Rectangle {
    double minX = 0;
    double maxX = 0;
    double minY = 0;
    double maxY = 0;
};

struct Date {
    int year = 0;
    int month = 0;
    int day = 0;
};

enum class DateFrom { File, Today, Project };

struct Settings {
    bool acceptUnknown = false;
    bool importsToNorth = false;
    std::optional<Rectangle> rectangle;
    Answer answer = Answer::Yes;  // to every question

    bool includeUnknown = false;
    bool namesAsField = false;
    bool namesAsText = false;
    bool heights = false;
    bool heightsAsText = false;
    bool exportsToNorth = false;
    std::string nameCode;
    std::string heightCode;
    DateFrom dateFrom = DateFrom::File;
    std::string projectDate;
    int sourceKind = 0;

    Date today;
    std::string nameLong;
    std::string nameShort;
    std::string street;
    std::string number;
    std::string suffix;
    std::string zipCode;
    std::string town;
    std::string source;

    Table points;
    Table lines;
    Table texts;
};

struct Point {
    double east = 0;
    double north = 0;
    double height = 0;
    double direction = 0;
    std::int32_t number = 0;
    std::string name;         // 9
    std::string code;         // 7
    std::string description;  // 80
    double doubt = 0;         // by which its place may be another, metres: arithmetic ends somewhere
};

// One in a gap of numbers has empty texts.
struct Line {
    std::string code;         // 7
    std::string description;  // 53
    std::int32_t flags1 = 0;
    std::int32_t flags2 = 0;
};

// Its points by their place in the drawing; 0: none.
struct Edge {
    std::int32_t line = 0;
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::string type;  // 12
};

struct Label {
    std::int32_t anchor = 0;  // the point's number
    float direction = 0;
    int position = 0;
    std::string code;  // 7
    std::string text;  // 47
};

// Element 0 of each is no object of the drawing.
struct Drawing {
    std::vector<Point> points{1};
    std::vector<Line> lines{1};
    std::vector<Edge> edges{1};
    std::vector<Label> labels{1};
    std::map<std::int32_t, std::int32_t> placeOfNumber;
    std::string date;  // the fieldwork date
    std::string projectName;
    Date projectDate;
};

// What a translation comes to.
struct Result {
    Drawing drawing;
    std::vector<std::string> log;  // problems, questions and answers
    bool isOfTheFormat = true;     // and not cancelled: there is an output
    std::string output;
    bool lacksLayers = false;  // before DATABASE: an IDEX file of an instrument, perhaps
};

// An error that ends a reader or a writer.
class Error : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

}  // namespace korvande::reference
