#include "canvas/key_cross.h"

#include <algorithm>
#include <cmath>

#include "canvas/map_frame.h"
#include "model/cell_frame.h"

namespace tidemark {

namespace {

// One axis of the map as it is shown.
struct Axis {
    double Zoom, Ratio;
    int Start, Seen;    // of the viewport on the zoomed map, pixels
    int Length, Image;  // of the zoomed map and of the image
};

Axis Across(const ShownMap& map) {
    return {map.Scale.Zoom(),
            map.Ratio,
            map.Scale.Left(),
            map.Viewport.Width,
            map.Scale.Shown_size(map.Image).Width,
            map.Image.Width};
}

Axis Down(const ShownMap& map) {
    return {map.Scale.Zoom(),
            map.Ratio,
            map.Scale.Top(),
            map.Viewport.Height,
            map.Scale.Shown_size(map.Image).Height,
            map.Image.Height};
}

// Of the zoomed map, in pixels, to a canvas pixel; no further than the last pixel of the screen
// that shows the map.
double On_map(double place, const Axis& axis) {
    return std::clamp(place, 0.0, std::max(axis.Length - 1 / axis.Ratio, 0.0)) / axis.Zoom;
}

double Next_pixel(double from, int way, const Axis& axis) {
    const double pixel = std::floor(from * axis.Zoom * axis.Ratio + 0.5) + way;
    const double to = On_map(pixel / axis.Ratio, axis);
    return way > 0 ? std::max(to, from) : to;  // a unit's middle can lie beyond the last pixel
}

double Middle_of_view(const Axis& axis) {
    const double middle = axis.Start + std::min(axis.Seen, axis.Length) / 2.0;
    return On_map(std::floor(middle * axis.Ratio) / axis.Ratio, axis);
}

// The cursor is at an offset of n VTP units from n - 1 to n of them; at 0 only on the very border.
std::optional<double> Place_of_offset(int offset, float scale, int image) {
    if (offset < 0) return std::nullopt;
    const double place = std::max(offset - 0.5, 0.0) * double{scale};
    return place < image ? std::optional(place) : std::nullopt;
}

double Moved(double from, int way, CrossStep step, int offset, float scale, const Axis& axis) {
    if (way == 0) return from;
    if (step == CrossStep::Pixel) return Next_pixel(from, way, axis);
    const int units = step == CrossStep::Cell ? CellSizeVTP : 1;
    return Place_of_offset(offset + way * units, scale, axis.Image).value_or(from);
}

bool Is_seen(CanvasPoint place, const ShownMap& map) {
    const ScreenPoint at = map.Scale.To_screen(place);
    return at.X >= 0 && at.X < map.Viewport.Width && at.Y >= 0 && at.Y < map.Viewport.Height;
}

}  // namespace

CanvasPoint Start_of_cross(const Project& project, int selected, const ShownMap& map) {
    if (selected >= 0 && selected < project.VTPCount) {
        const auto point = Cross_at(project, project.VTPPoint(selected + 1, 0),
                                    project.VTPPoint(selected + 1, 1), map.Image);
        if (point && Is_seen(*point, map)) return *point;
    }
    return {Middle_of_view(Across(map)), Middle_of_view(Down(map))};
}

CanvasPoint Moved_cross(CanvasPoint from, CrossMove move, const Project& project,
                        const ShownMap& map) {
    Session at;
    const bool has_position =
        Move_cursor(project, at, static_cast<float>(from.X), static_cast<float>(from.Y))
            .has_value();
    if (!has_position && move.Step != CrossStep::Pixel) return from;
    return {Moved(from.X, move.Across, move.Step, at.CursorOffsetX, project.ScaleX, Across(map)),
            Moved(from.Y, move.Down, move.Step, at.CursorOffsetY, project.ScaleY, Down(map))};
}

std::optional<CanvasPoint> Cross_at(const Project& project, Int16 x, Int16 y, ViewSize image) {
    if (!Has_scale(project)) return std::nullopt;
    const auto across =
        Place_of_offset(int{x} - int{project.AreaLeftVTP}, project.ScaleX, image.Width);
    const auto down =
        Place_of_offset(int{y} - int{project.AreaTopVTP}, project.ScaleY, image.Height);
    if (!across || !down) return std::nullopt;
    return CanvasPoint{*across, *down};
}

CanvasPoint Kept_on_map(CanvasPoint place, const ShownMap& map) {
    const auto kept = [](double at, const Axis& axis) {
        return at < axis.Image ? at : On_map(at * axis.Zoom, axis);
    };
    return {kept(place.X, Across(map)), kept(place.Y, Down(map))};
}

}  // namespace tidemark
