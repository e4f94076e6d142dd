#include "output/assembler_text.h"

#include <algorithm>

#include "model/text_forms.h"

namespace tidemark {

namespace {

constexpr int BannerWidth = 79;
constexpr std::string_view AuthorLine =
    "; ###        Made with Tidemark V1.1, by the Tidemark developers, 2026      ###";
constexpr std::string_view ContactLine =
    "; ###        Please send bug reports to: bugs@tidemark.example              ###";
static_assert(AuthorLine.size() == BannerWidth && ContactLine.size() == BannerWidth);
static_assert(AuthorLine.starts_with(AssemblerFileStart));

constexpr int MarginDegrees = 2;

std::string BGL_limits(const Project& project) {
    const int latitude = project.CellLatitude;
    const int longitude = project.CellLongitude;
    const int north = std::min(latitude + MarginDegrees, 90);
    const int south = std::max(latitude - MarginDegrees, -90);
    const int east = std::min(longitude + MarginDegrees, 180);
    const int west = std::max(longitude - MarginDegrees, -180);
    return Int_text(north) + ", " + Int_text(south) + ", " + Int_text(east) + ", " + Int_text(west);
}

}  // namespace

std::string Cell_name(const Project& project) {
    return "Cellv_" + Int_text(project.BGLOD8X) + "_" + Int_text(project.BGLOD8Y);
}

std::string LOD8_cell(const Project& project) {
    return Int_text(project.BGLOD8X) + ", " + Int_text(project.BGLOD8Y);
}

void Write_assembler_header(LineWriter& lines, const Project& project, std::string_view contents,
                            std::string_view labels) {
    lines.Write_line(AuthorLine);
    lines.Write_line(ContactLine);
    lines.Write_line(contents);
    lines.Write_line(BlankLine);
    lines.Write_line(
        "; The following two files (by Orrin Vale) must be in the same folder as BGLC.EXE for "
        "successful compilation");
    lines.Write_line("include TDFMacros.inc");
    lines.Write_line("include TDFHeaders.inc");
    lines.Write_line(BlankLine);
    lines.Write_line("; In next line, BGLHeader N, S, E, W limits of BGL (set by Tidemark)");
    lines.Write_line("BGLHeader ", BGL_limits(project), ", ", labels);
    lines.Write_line(BlankLine);
}

}  // namespace tidemark
