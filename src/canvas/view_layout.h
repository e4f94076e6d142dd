// How the viewport and the two scroll bars share the main window's client area.
#pragma once

#include <optional>

#include "model/int16.h"

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
    Int16 Maximum;  // negative where the image is smaller than the viewport
    bool Visible;
};

struct ViewLayout {
    ViewRect Viewport;
    ScrollBarLayout Horizontal, Vertical;
};

// The viewport fills the client area but for the room of both bars. A bar shows when the image is
// larger than the viewport; a bar that has no hidden bar beside it lies along the viewport, one
// beside a hidden bar along the image. Nothing when a scroll bar's maximum would not fit 16 bits.
std::optional<ViewLayout> Lay_out_view(ViewSize client, ViewSize image, int bar_thickness);

}  // namespace tidemark
