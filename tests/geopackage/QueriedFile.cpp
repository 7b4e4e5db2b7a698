#include "tests/geopackage/QueriedFile.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>

#include "core/Picture.h"

namespace korvande::testing {

namespace {

// Takes the bytes of a geometry apart.
class GeometryReader {
 public:
    explicit GeometryReader(const std::string& itsBytes) : bytes(itsBytes) {}

    std::string Read() {
        if (bytes.size() < 8 || bytes.compare(0, 3, std::string("GP\0", 3)) != 0) return "?";
        const int flags = bytes[3];
        at = 4;
        std::string text = std::to_string(static_cast<std::int32_t>(Number()));
        if (flags == 3) {
            text += " [";
            for (int i = 0; i < 4; ++i) text += (i > 0 ? " " : "") + FormatPicture(Real(), "0.000");
            text += "]";
        } else if (flags != 1) {
            return "?";
        }
        text += " " + Geometry();
        return isBroken || at != bytes.size() ? "?" : text;
    }

 private:
    std::uint32_t Number() {
        std::uint32_t value = 0;
        Take(&value, sizeof value);
        return value;
    }
    double Real() {
        double value = 0;
        Take(&value, sizeof value);
        return value;
    }
    // The machines of the tests have the low byte first too.
    void Take(void* value, std::size_t size) {
        isBroken = isBroken || at + size > bytes.size();
        if (isBroken) return;
        std::memcpy(value, bytes.data() + at, size);
        at += size;
    }

    std::string Vertices(std::uint32_t count, bool hasHeights) {
        std::string text;
        for (std::uint32_t i = 0; i < count && !isBroken; ++i) {
            text += i > 0 ? ", " : "";
            text += FormatPicture(Real(), "0.000");
            text += " " + FormatPicture(Real(), "0.000");
            if (hasHeights) text += " " + FormatPicture(Real(), "0.000");
        }
        return text;
    }

    // NOLINTNEXTLINE(misc-no-recursion): geometries are three deep
    std::string Geometry() {
        char order = 0;
        Take(&order, 1);
        const std::uint32_t kind = Number();
        const bool hasHeights = kind > 1000;
        const char* const heights = hasHeights ? " Z (" : " (";
        isBroken = isBroken || order != 1;
        switch (kind % 1000) {
            case 1:
                return std::string("POINT") + heights + Vertices(1, hasHeights) + ")";
            case 2:
                return std::string("LINESTRING") + heights + Vertices(Number(), hasHeights) + ")";
            case 5:
                return std::string("MULTILINESTRING") + heights + Members() + ")";
            case 8:
                return std::string("CIRCULARSTRING") + heights + Vertices(Number(), hasHeights) + ")";
            case 9:
                return std::string("COMPOUNDCURVE") + heights + Members() + ")";
            case 11:
                return std::string("MULTICURVE") + heights + Members() + ")";
            default:
                isBroken = true;
                return "?";
        }
    }

    // NOLINTNEXTLINE(misc-no-recursion): the same
    std::string Members() {
        const std::uint32_t count = Number();
        std::string text;
        for (std::uint32_t i = 0; i < count && !isBroken; ++i) text += (i > 0 ? ", " : "") + Geometry();
        return text;
    }

    const std::string& bytes;
    std::size_t at = 0;
    bool isBroken = false;
};

std::string ValueText(sqlite3_stmt* row, int column) {
    switch (sqlite3_column_type(row, column)) {
        case SQLITE_NULL:
            return "-";
        case SQLITE_FLOAT:
            return FormatPicture(sqlite3_column_double(row, column), "0.000##");
        case SQLITE_BLOB: {
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, column));
            return GeometryText(std::string(static_cast<const char*>(sqlite3_column_blob(row, column)), size));
        }
        default: {
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, column));
            std::string text(size, '\0');
            if (size > 0) std::memcpy(text.data(), sqlite3_column_text(row, column), size);
            return text;
        }
    }
}

// A number of a point, at this place in its bytes.
template <int Offset>
void NumberOfPoint(sqlite3_context* context, int, sqlite3_value** values) {
    double number = std::numeric_limits<double>::quiet_NaN();
    if (sqlite3_value_bytes(values[0]) >= Offset + 8) {
        std::memcpy(&number, static_cast<const char*>(sqlite3_value_blob(values[0])) + Offset, sizeof number);
    }
    sqlite3_result_double(context, number);
}

void IsEmptyPoint(sqlite3_context* context, int, sqlite3_value**) { sqlite3_result_int(context, 0); }

}  // namespace

std::string GeometryText(const std::string& bytes) { return GeometryReader(bytes).Read(); }

void QueriedFile::Closer::operator()(sqlite3* opened) const noexcept { sqlite3_close(opened); }

QueriedFile::QueriedFile(const std::string& path) {
    sqlite3* opened = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK) << path;
    handle.reset(opened);
}

std::string QueriedFile::Rows(const std::string& sql) {
    sqlite3_stmt* prepared = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle.get(), sql.c_str(), -1, &prepared, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle.get());
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> row(prepared, sqlite3_finalize);
    std::string text;
    int result = SQLITE_DONE;
    while (row && (result = sqlite3_step(row.get())) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(row.get()); ++column) {
            text += (column > 0 ? "|" : "") + ValueText(row.get(), column);
        }
        text += "\n";
    }
    EXPECT_EQ(result, SQLITE_DONE) << sqlite3_errmsg(handle.get());
    return text;
}

void QueriedFile::KnowPoints() {
    constexpr int x = 13;  // behind the header of 8 bytes, an order of bytes and a kind
    constexpr int y = x + 8;
    const auto make = [this](const char* name, void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        EXPECT_EQ(sqlite3_create_function(handle.get(), name, 1, SQLITE_UTF8, nullptr, function, nullptr, nullptr),
                  SQLITE_OK);
    };
    make("ST_IsEmpty", IsEmptyPoint);
    make("ST_MinX", NumberOfPoint<x>);
    make("ST_MaxX", NumberOfPoint<x>);
    make("ST_MinY", NumberOfPoint<y>);
    make("ST_MaxY", NumberOfPoint<y>);
}

}  // namespace korvande::testing
