#include "tests/reference/Translate.h"

#include <algorithm>
#include <cstdio>

#include "tests/reference/ExchangeReader.h"
#include "tests/reference/ExchangeWriter.h"
#include "tests/reference/IdexReader.h"
#include "tests/reference/IdexWriter.h"
#include "tests/reference/Texts.h"

namespace korvande::reference {

namespace {

std::string Number(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", number == 0 ? 0 : number);
    return text;
}

std::string Whole(long long number) { return " " + std::to_string(number); }

}  // namespace

Result ReadDrawing(const std::string& file, Direction direction, Format format, Settings& settings) {
    Result result;
    if (IsUtf16(file)) {
        result.log.emplace_back("FOUT:  Het bestand is UTF-16; sla het op als Windows-1252 of UTF-8");
        result.isOfTheFormat = false;
    } else if (direction == Direction::ToIdex) {
        ReadExchange(file, format, settings, result);
    } else {
        ReadIdex(file, settings, result);
    }
    return result;
}

void WriteDrawing(Result& result, Direction direction, Format format, Settings& settings) {
    if (!result.isOfTheFormat) return;
    try {
        if (direction == Direction::ToIdex) {
            result.output = WriteIdex(result.drawing);
        } else {
            WriteExchange(format, settings, result);
        }
    } catch (const Error& error) {
        result.log.push_back("FOUT:  " + std::string(error.what()));
        result.isOfTheFormat = false;
    }
}

std::string Dump(const Drawing& drawing) {
    const std::string blanks(" \0", 2);  // a text that was never filled holds characters 0
    std::string text;
    for (std::size_t i = 1; i < drawing.points.size(); ++i) {
        const Point& point = drawing.points[i];
        text += "point" + Whole(static_cast<long long>(i)) + Whole(point.number) + " [" + point.name + "][" +
                point.code + "][" + point.description + "] " + Number(point.east) + " " + Number(point.north) + " " +
                Number(point.height) + " " + Number(point.direction) + "\n";
    }
    text += "lines" + Whole(static_cast<long long>(drawing.lines.size()) - 1) + "\n";
    for (std::size_t i = 1; i < drawing.lines.size(); ++i) {
        const Line& line = drawing.lines[i];
        // A gap of numbers may have a million of them.
        const bool isBlank = (line.code + line.description).find_first_not_of(blanks) == std::string::npos;
        if (isBlank && line.flags1 == 0 && line.flags2 == 0) continue;
        text += "line" + Whole(static_cast<long long>(i)) + " [" + line.code + "][" + line.description + "]" +
                Whole(line.flags1) + Whole(line.flags2) + "\n";
    }
    for (std::size_t i = 1; i < drawing.edges.size(); ++i) {
        const Edge& edge = drawing.edges[i];
        text += "edge" + Whole(static_cast<long long>(i)) + Whole(edge.line) + Whole(edge.start) + Whole(edge.end) +
                " [" + edge.type + "]\n";
    }
    for (std::size_t i = 1; i < drawing.labels.size(); ++i) {
        const Label& label = drawing.labels[i];
        text += "text" + Whole(static_cast<long long>(i)) + Whole(label.anchor) + Whole(label.position) + " " +
                Number(label.direction) + " [" + label.code + "][" + label.text + "]\n";
    }
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

}  // namespace korvande::reference
