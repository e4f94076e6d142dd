// How the viewport and the two scroll bars share the main window's client area.
#pragma once

#include <optional>

namespace tidemark {

// All lengths are pixels.
struct ViewSize {
    int Width, Height;
};

struct ViewRect {
    int Left, Top, Width, Height;
    bool operator==(const ViewRect&) const = default;
};

struct ScrollBarLayout {
    ViewRect Place;
    int Maximum;  // negative where the image is smaller than the viewport
    bool Visible;
};

struct ViewLayout {
    ViewRect Viewport;
    ScrollBarLayout Horizontal, Vertical;
};

// The viewport fills the client area except the room of both bars. A bar shows when the map is
// larger than the viewport; a bar that has no hidden bar beside it lies along the viewport, one
// beside a hidden bar along the map. `map` is the size at which the map is shown.
ViewLayout Lay_out_map(ViewSize client, ViewSize map, int bar_thickness);

// The same for an image at its own size, which is what limits the size of an image: nothing when a
// scroll bar's maximum would not fit 16 bits.
std::optional<ViewLayout> Lay_out_view(ViewSize client, ViewSize image, int bar_thickness);

}  // namespace tidemark
