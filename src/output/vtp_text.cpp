#include "output/vtp_text.h"

#include <algorithm>
#include <array>
#include <vector>

#include "model/cell_frame.h"
#include "model/drawing_modes.h"
#include "model/rounding.h"
#include "model/segments.h"
#include "model/text_forms.h"
#include "output/assembler_text.h"

namespace tidemark {

namespace {

// A texture's id is its place in this table; the drawing mode fixes it. Layers have the numbers of
// the clear codes.
struct Texture {
    int Code;  // drawing mode
    int Layer;
    std::string_view Name;
};

constexpr std::array<Texture, 8> Textures{{
    {SandWithWaves, ClearCoastlines, "1029"},
    {SandNoWaves, ClearCoastlines, "1062"},
    {IceWithWaves, ClearCoastlines, "1031"},
    {RiverCoast, ClearCoastlines, "1116"},
    {Stream, ClearRivers, "1024"},
    {DirtRoad, ClearMinorRoads, "1040"},
    {OneLane, ClearMajorRoads, "1158"},
    {TwoLanes, ClearMajorRoads, "1134"},
}};
static_assert(Covers_modes(Textures, Adds::Point, PlainSegment),
              "every drawing mode but the plain edge, which is not written, has a texture");

constexpr std::array Layers{ClearCoastlines, ClearRivers, ClearMinorRoads, ClearMajorRoads};

// The most points that one VTPPolyMethod2 line can announce; the rest goes to a second line.
constexpr int LongestPolyMethod = 31;

// In the file an LOD13 cell is 255 units wide: position 255 of one cell is position 0 of the next.
struct FilePoint {
    Int16 X, Y;
};

FilePoint File_point(const Project& p, int i) {
    const Int16 column = Cell_offset(p.VTPPoint(i, 0) - p.AreaLeftVTP) + p.BGLOD13tlX;
    const Int16 row = Cell_offset(p.VTPPoint(i, 1) - p.AreaTopVTP) + p.BGLOD13tlY;
    return {p.VTPPoint(i, 0) - column, p.VTPPoint(i, 1) - row};
}

// The extra point that each segment carries close to its first and its last one.
FilePoint Near_point(FilePoint end, FilePoint neighbour) {
    const auto near = [](int at_end, int at_neighbour) {
        return Round_half_even(0.95 * at_end + 0.05 * at_neighbour);
    };
    return {near(end.X, neighbour.X), near(end.Y, neighbour.Y)};
}

class VTPText {
  public:
    VTPText(const Project& project, const std::vector<Segment>& segments)
        : p(project), segments_(segments) {}

    std::string Bytes() {
        Header();
        Cleared_cells();
        for (const int layer : Layers) Layer(layer);
        Trailer();
        return lines_.Take_bytes();
    }

  private:
    template <class... Piece>
    void Line(const Piece&... pieces) {
        lines_.Write_line(pieces...);
    }

    void Lines(std::initializer_list<std::string_view> texts) {
        for (const std::string_view text : texts) Line(text);
    }

    int Segment_count(int mode) const {
        return static_cast<int>(std::count_if(segments_.begin(), segments_.end(),
                                              [&](const Segment& s) { return s.Mode == mode; }));
    }

    void Header() {
        Write_assembler_header(
            lines_, p,
            "; ###        This ASM file contains Vector Terrain Polygon data only        ###",
            "TerrainHeaderStart, VTPHeader");
        Lines({"VTPHeader   label   word",
               "    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd", BlankLine,
               "VTPStart        label   word", "    datamark_v0 label   word", BlankLine});
    }

    void Cleared_cells() {
        for (int k = 1; k <= p.KillCount; ++k) {
            Line("  VTPDataArea 1, 0, ", Int_text(p.KillCell(k, 0)), ", ",
                 Int_text(p.KillCell(k, 1)));
            Line("     VTPLayer ", Int_text(p.KillType(k)), ", 1");
            Line("     VTPNumTexturesInLayer 0, 0");
            Line(BlankLine);
        }
    }

    void Layer(int layer) {
        const auto in_use = [&](const Texture& texture) {
            return texture.Layer == layer && Segment_count(texture.Code) > 0;
        };
        const auto count = std::count_if(Textures.begin(), Textures.end(), in_use);
        if (count == 0) return;
        Line(BlankLine);
        Line("  VTPDataArea 1, 1, 0, 0");
        Line("    VTPLayer ", Int_text(layer), ", 1");
        Line("    VTPNumTexturesInLayer ", Int_text(count), ", 0");
        Line(BlankLine);
        for (const Texture& texture : Textures)
            if (in_use(texture)) Segments_of(texture);
    }

    void Segments_of(const Texture& texture) {
        Line("    VTPTextureId ", Int_text(&texture - Textures.data()), ", 0");
        Line("    VTPPolyCount ", Int_text(Segment_count(texture.Code)), ", 0");
        Line(BlankLine);
        for (const Segment& segment : segments_)
            if (segment.Mode == texture.Code) Polygon_record(segment);
    }

    void Polygon_record(const Segment& segment) {
        const FilePoint first = File_point(p, segment.First);
        const FilePoint last = File_point(p, segment.Last);
        Poly_method(segment.Last - segment.First + 5);
        Point_line(first, true);
        Line("        VTPWidePointWidth 1");
        Point_line(first, true);
        Line("        VTPWidePointWidth ", Int_text(segment.Width));
        Point_line(Near_point(first, File_point(p, segment.First + 1)), false);
        for (int i = segment.First + 1; i < segment.Last; ++i) Point_line(File_point(p, i), false);
        Point_line(Near_point(last, File_point(p, segment.Last - 1)), false);
        Point_line(last, false);
        Point_line(last, true);
        Line("        VTPWidePointWidth 0");
        Line(BlankLine);
    }

    void Poly_method(int point_count) {
        const int announced = std::min(point_count, LongestPolyMethod);
        Line("      VTPPolyMethod2", Blank_text(Int16(announced)), ", 1, 0");
        if (point_count > announced)
            Line("      VTPPolyMethod2Ex", Blank_text(Int16(point_count - announced)));
    }

    void Point_line(FilePoint point, bool flag) {
        Line("        VTPWidePoint", Blank_text(point.X), flag ? ", 1," : ", 0,",
             Blank_text(point.Y), ", 0");
    }

    void Trailer() {
        const std::string separator = "; " + std::string(104, '=');
        const std::string cell = Cell_name(p);
        Lines({"    datamark_v1  label word", separator,
               "; In next line, VTPCellID set by Tidemark"});
        Line(cell, "    EQU  VTPCellID 0, ", LOD8_cell(p));
        Lines({BlankLine, separator, "    VTPIndexStart   label   word",
               "  VTPIndexHeader 1, VTPIndexData, VTPStart", "    VTPIndexData    label   word"});
        Line("    VTPIndexEntry ", cell, ", VTPStart, datamark_v0, datamark_v1");
        Lines({BlankLine, separator, BlankLine, "TextureStart    label   word",
               "    VTPTextureListHeader 8, TextureIndexStart, TextureDataStart, TextureDataEnd",
               BlankLine, "TextureIndexStart   label   word"});
        Texture_list();
        Lines({"TextureDataEnd  label   word", separator, BlankLine, "VTPEnd      label   word",
               BlankLine, "; End of VTP file"});
    }

    void Texture_list() {
        const auto mark = [](std::size_t id) { return "texturemark_" + std::to_string(id); };
        for (std::size_t id = 0; id < Textures.size(); ++id)
            Line("    VTPTextureListEntry TextureDataStart, ", mark(id), ", ", mark(id + 1));
        Lines({BlankLine, "TextureDataStart    label   word"});
        for (std::size_t id = 0; id < Textures.size(); ++id) {
            Line("    ", mark(id), "   label   word");
            Line("        VTPTextureName \"", Textures[id].Name, "\"");
            Line("        VTPTextureType 2, 0, 0, 4");
        }
        Line("    ", mark(Textures.size()), "   label   word");
    }

    const Project& p;
    const std::vector<Segment>& segments_;
    LineWriter lines_;
};

}  // namespace

int Written_segment_count(const std::vector<Segment>& segments) {
    return static_cast<int>(std::count_if(segments.begin(), segments.end(),
                                          [](const Segment& s) { return s.Mode > PlainSegment; }));
}

std::string VTP_file_bytes(const Project& project, const std::vector<Segment>& segments) {
    return VTPText(project, segments).Bytes();
}

std::string VTP_file_bytes(const Project& project) {
    return VTP_file_bytes(project, Segments(project));
}

}  // namespace tidemark
