#include "geopackage/Styles.h"

#include <array>

#include "core/Picture.h"
#include "geopackage/Database.h"
#include "geopackage/Schema.h"
#include "picture/DrawPicture.h"
#include "picture/SvgCanvas.h"

namespace korvande {

namespace {

struct StyledLayer {
    char16_t table;
    std::string_view name;
};
constexpr std::array<StyledLayer, 3> styledLayers = {
    {{u'P', layers::points}, {u'L', layers::lines}, {u'T', layers::texts}}};

std::string Entry(std::string_view name, std::string_view value, std::string_view type = "QString") {
    return "<Option name=\"" + std::string(name) + R"(" value=")" + std::string(value) + R"(" type=")" +
           std::string(type) + "\"/>";
}

// A property that follows from an expression, written for XML.
std::string Property(std::string_view name, std::string_view expression) {
    return "<Option name=\"" + std::string(name) + R"(" type="Map">)" + Entry("active", "true", "bool") +
           Entry("expression", expression) + Entry("type", "3", "int") + "</Option>";
}

std::string Properties(const std::string& element, const std::string& properties) {
    return "<" + element + "><Option type=\"Map\">" + Entry("name", "") + R"(<Option name="properties" type="Map">)" +
           properties + "</Option>" + Entry("type", "collection") + "</Option></" + element + ">";
}

std::string ColourText(Colour colour) {
    const auto part = [colour](int shift) { return std::to_string(colour >> shift & 0xFFU); };
    return part(16) + "," + part(8) + "," + part(0) + ",255";
}

std::string_view MarkerOf(PointShape shape) {
    switch (shape) {
        case PointShape::Rotated:
            return "arrow";
        case PointShape::ControlPoint:
            return "triangle";
        case PointShape::Symbol:
            return "cross";
        default:
            return "circle";
    }
}

std::string MarkerLayer(const PictureCode& code, const CodeStyle& style) {
    const bool isSmall = code.isKnown && (code.shape == PointShape::Plain || code.shape == PointShape::NotWritten);
    std::string layer = R"(<layer class="SimpleMarker" enabled="1" pass="0" locked="0"><Option type="Map">)";
    layer += Entry("color", ColourText(style.colour)) + Entry("name", MarkerOf(code.shape)) +
             Entry("outline_color", ColourText(style.colour)) + Entry("outline_width", "0.2") +
             Entry("outline_width_unit", "MM") + Entry("size", isSmall ? "1.2" : "2.4") + Entry("size_unit", "MM");
    layer += "</Option>";
    if (code.shape == PointShape::Rotated || code.shape == PointShape::Symbol) {
        layer += Properties("data_defined_properties", Property("angle", "coalesce(&quot;richting&quot;, 0)"));
    }
    return layer + "</layer>";
}

std::string LineLayer(const CodeStyle& style) {
    std::string layer = R"(<layer class="SimpleLine" enabled="1" pass="0" locked="0"><Option type="Map">)";
    layer += Entry("line_color", ColourText(style.colour)) + Entry("line_style", style.isDashed ? "dash" : "solid") +
             Entry("line_width", "0.3") + Entry("line_width_unit", "MM") + Entry("capstyle", "round") +
             Entry("joinstyle", "round");
    return layer + "</Option></layer>";
}

std::string Symbol(int number, const PictureCode& code) {
    const bool isLine = code.table == u'L';
    const CodeStyle style = StyleOf(code, {});
    return "<symbol type=\"" + std::string(isLine ? "line" : "marker") + "\" name=\"" + std::to_string(number) +
           R"(" alpha="1" clip_to_extent="1" force_rhr="0">)" + (isLine ? LineLayer(style) : MarkerLayer(code, style)) +
           "</symbol>\n";
}

std::string Category(int number, TextView code, TextView label) {
    return "<category symbol=\"" + std::to_string(number) + "\" value=\"" + XmlText(code) + "\" label=\"" +
           XmlText(label) + "\" render=\"true\" type=\"string\"/>\n";
}

constexpr std::string_view head =
    "<!DOCTYPE qgis PUBLIC 'http://mrcc.com/qgis.dtd' 'SYSTEM'>\n"
    "<qgis version=\"3.22\" styleCategories=\"Symbology|Labeling\" labelsEnabled=\"";

// An anchor of 1 has the text above and to the right of it, 9 below and to the left; the places around a point are
// counted from above and left of it.
std::string TextLabels() {
    const std::string anchor = "(coalesce(&quot;anker&quot;, 1) - 1)";
    PictureCode known;
    known.table = u'T';
    known.isKnown = known.isWritten = true;
    const std::string usual = ColourText(StyleOf(known, {}).colour);
    known.isKnown = false;
    const std::string unknown = ColourText(StyleOf(known, {}).colour);
    return "<labeling type=\"simple\"><settings calloutType=\"simple\">\n"
           "<text-style fieldName=\"tekst\" isExpression=\"0\" fontSize=\"" +
           FormatPicture(textHeight, "0.0") + R"(" fontSizeUnit="MapUnit" fontWeight="50" textColor=")" + usual +
           "\" textOpacity=\"1\"/>\n"
           "<placement placement=\"1\" quadOffset=\"2\" dist=\"0\" distUnits=\"MapUnit\" xOffset=\"0\" yOffset=\"0\" "
           "offsetUnits=\"MapUnit\"/>\n"
           "<rendering displayAll=\"1\" obstacle=\"0\" drawLabels=\"1\" upsidedownLabels=\"2\"/>\n" +
           Properties(
               "dd_properties",
               Property("LabelRotation", "&quot;richting&quot; - 90") +
                   Property("OffsetQuad", "floor(" + anchor + " / 3) * 3 + 2 - " + anchor + " % 3") +
                   Property("Color", "CASE WHEN &quot;bekend&quot; THEN '" + usual + "' ELSE '" + unknown + "' END")) +
           "\n</settings></labeling>\n";
}

}  // namespace

void Styles::Add(const DisplayList& list) {
    for (const PictureCode& code : list.codes) {
        if (code.isKnown && !code.code.empty()) codes.try_emplace({code.table, code.code}, code);
    }
}

std::string Styles::Qml(char16_t table) const {
    std::string qml(head);
    if (table == u'T') {
        return qml + "1\">\n<renderer-v2 type=\"nullSymbol\"/>\n" + TextLabels() + "</qgis>\n";
    }
    std::string categories;
    std::string symbols;
    int number = 0;
    for (const auto& [key, code] : codes) {
        if (key.first != table) continue;
        const Text label = code.description.empty() ? code.code : Concat(code.code, u": ", code.description);
        categories += Category(number, code.code, label);
        symbols += Symbol(number++, code);
    }
    // Of what has no code that is known.
    categories += Category(number, {}, u"onbekend");
    PictureCode unknown;
    unknown.table = table;
    symbols += Symbol(number, unknown);
    return qml +
           "0\">\n<renderer-v2 type=\"categorizedSymbol\" attr=\"CASE WHEN &quot;bekend&quot; THEN &quot;code&quot; "
           "END\" symbollevels=\"0\" enableorderby=\"0\" forceraster=\"0\">\n<categories>\n" +
           categories + "</categories>\n<symbols>\n" + symbols + "</symbols>\n</renderer-v2>\n</qgis>\n";
}

void Styles::Write(Database& database, std::string_view moment) const {
    database.Execute(
        "CREATE TABLE layer_styles (id INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL, f_table_catalog TEXT(256), "
        "f_table_schema TEXT(256), f_table_name TEXT(256), f_geometry_column TEXT(256), styleName TEXT(30), "
        "styleQML TEXT, styleSLD TEXT, useAsDefault BOOLEAN, description TEXT, owner TEXT(30), ui TEXT(30), "
        "update_time DATETIME DEFAULT CURRENT_TIMESTAMP)");
    Statement contents(database,
                       "INSERT INTO gpkg_contents (table_name, data_type, identifier, last_change) VALUES "
                       "('layer_styles', 'attributes', 'layer_styles', ?)");
    contents.Put(moment).Run();
    Statement insert(database,
                     "INSERT INTO layer_styles (f_table_catalog, f_table_schema, f_table_name, f_geometry_column, "
                     "styleName, styleQML, styleSLD, useAsDefault, description, owner, update_time) VALUES "
                     "('', '', ?1, 'geom', ?1, ?2, '', 1, 'op code', '', ?3)");
    for (const StyledLayer& layer : styledLayers) {
        const std::string qml = Qml(layer.table);
        insert.Put(layer.name).Put(qml).Put(moment).Run();
    }
}

}  // namespace korvande
