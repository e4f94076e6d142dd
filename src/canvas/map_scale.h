// Which part of the map the screen shows, and how large: zoom and scroll position as one value.
//
// A screen position is in the viewport's own pixels, (0, 0) at its top-left corner, a canvas pixel
// as in map_frame.h. Everything that turns one into the other asks here.
#pragma once

#include <string>

#include "canvas/view_layout.h"
#include "platform/drawing_surface.h"

namespace tidemark {

struct ScreenPoint {
    double X, Y;
    bool operator==(const ScreenPoint&) const = default;
};

class MapScale {
  public:
    // Screen pixels to one canvas pixel: 1 at 100 %.
    double Zoom() const { return zoom_; }
    bool Is_natural() const { return zoom_ == 1; }
    std::string Percent() const;  // such as "100 %", "16.7 %"

    // The scroll position: the place of the viewport's corner on the zoomed map, whole pixels.
    int Left() const { return left_; }
    int Top() const { return top_; }
    void Scroll_to(int left, int top);

    CanvasPoint To_canvas(ScreenPoint at) const;
    ScreenPoint To_screen(CanvasPoint pixel) const;

    // The size of the whole map on the screen; a last pixel that shows in part counts.
    ViewSize Shown_size(ViewSize image) const;

    // Scrolls so that a canvas pixel lies at a place of the screen, to within half a pixel.
    void Put(CanvasPoint pixel, ScreenPoint at);
    // Scrolls no further than it takes to have a canvas pixel at least `margin` pixels inside a
    // viewport, or in its middle when that is too small.
    void Reveal(CanvasPoint pixel, ViewSize viewport, int margin);
    // Another zoom, above 0; what lies at `fixed` stays there as far as Put can.
    void Zoom_to(double zoom, ScreenPoint fixed);

    bool operator==(const MapScale&) const = default;

  private:
    double zoom_ = 1;
    int left_ = 0, top_ = 0;
};

inline constexpr double SmallestLevel = 1.0 / 8, LargestLevel = 16;

// The usual levels are 12.5 to 1600 %. The next of them above or below a zoom, which may lie
// between two of them or beyond; the zoom itself when there is none.
double Next_level(double zoom);
double Previous_level(double zoom);
// The one that a zoom is nearest to, by their ratio.
double Nearest_level(double zoom);

// At which the whole image shows in the viewport; not above the largest level, but a large image in
// a small viewport can take less than the smallest. Both sizes are above 0.
double Zoom_of_whole(ViewSize image, ViewSize viewport);

}  // namespace tidemark
