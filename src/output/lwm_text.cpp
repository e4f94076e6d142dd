#include "output/lwm_text.h"

#include "model/drawing_modes.h"
#include "model/text_forms.h"
#include "output/assembler_text.h"

namespace tidemark {

namespace {

// The most vertices that a plain LWMPoly2 line can announce. A longer polygon takes the long form,
// which says this one more and then the rest.
constexpr int LongestShortForm = 62;
constexpr int LongFormCount = LongestShortForm + 1;

std::string Polygon_line(const Project& p, int polygon) {
    const int count = p.LWMPointCount(polygon);
    const bool is_long = count > LongestShortForm;
    std::string line = is_long ? "         LWMPoly2Ex " + Int_text(LongFormCount)
                               : "         LWMPoly2 " + Int_text(count);
    line += ", 0,";
    line += p.LWMType(polygon) == WaterPolygon ? " 0," : " 1, ";
    line += Int_text(p.LWMHeight(polygon)) + ", 0";
    if (is_long) line += ", " + Int_text(count - LongFormCount);
    return line;
}

void Write_polygon(LineWriter& lines, const Project& p, int polygon) {
    lines.Write_line(BlankLine);
    lines.Write_line("       LWMDataAreaDrawPolygons 1, 3, 1, ", Int_text(p.LWMCell(polygon, 0)),
                     ", ", Int_text(p.LWMCell(polygon, 1)));
    lines.Write_line(Polygon_line(p, polygon));
    for (int k = 1; k <= p.LWMPointCount(polygon); ++k)
        lines.Write_line("           LWMPoint ", Int_text(p.LWMPoint(polygon, k, 0)), ", ",
                         Int_text(p.LWMPoint(polygon, k, 1)));
}

}  // namespace

std::string LWM_file_bytes(const Project& project) {
    LineWriter lines;
    const auto write_spaced = [&](std::initializer_list<std::string_view> texts) {
        for (const std::string_view text : texts) {
            lines.Write_line(text);
            lines.Write_line(BlankLine);
        }
    };
    const std::string cell = Cell_name(project);

    Write_assembler_header(
        lines, project,
        "; ###       This ASM file contains Land/Water Mask polygon data only        ###",
        "LWMHeader, TerrainHeaderStart");
    write_spaced({"LWMHeader   label   word",
                  "    LWMFileHeader 513, LWMIndexStart, LWMStart, LWMEnd",
                  "LWMStart    label   word"});
    lines.Write_line("    datamark_0  label   word");

    for (int polygon = 1; polygon <= project.LWMCount; ++polygon)
        Write_polygon(lines, project, polygon);

    write_spaced({"    datamark_1  label   word",
                  "    " + cell + "    EQU  LWMCellID 0, 0, 3, " + LOD8_cell(project),
                  "    LWMIndexStart   label   word", "        LWMIndexHeader 1, LWMIndexData",
                  "    LWMIndexData    label   word",
                  "        LWMIndexEntry " + cell + ", LWMStart, datamark_0, datamark_1",
                  "LWMEnd  label   word"});
    lines.Write_line("; End of LWM file");
    return lines.Take_bytes();
}

}  // namespace tidemark
