#include "canvas/map_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tidemark {

namespace {

constexpr std::array Levels{SmallestLevel, 1.0 / 6, 1.0 / 4, 1.0 / 3, 1.0 / 2,
                            2.0 / 3,       1.0,     3.0 / 2, 2.0,     3.0,
                            4.0,           6.0,     8.0,     12.0,    LargestLevel};

int Round_to_pixel(double position) {
    return static_cast<int>(std::floor(position + 0.5));
}

int Shown_length(int length, double zoom) {
    // A third of 300 is 100 pixels, whatever the last bit of the product says.
    constexpr double last_bits = 1e-6;
    return static_cast<int>(std::ceil(length * zoom - last_bits));
}

// How far to scroll, along one axis, for a place of the screen to come inside.
int Way_to_reveal(double at, int length, int margin) {
    const double least = std::min<double>(margin, length / 2.0);
    if (at < least) return static_cast<int>(std::floor(at - least));
    return static_cast<int>(std::ceil(std::max(at - (length - least), 0.0)));
}

}  // namespace

std::string MapScale::Percent() const {
    const int tenths = static_cast<int>(std::lround(zoom_ * 1000));
    const std::string fraction = tenths % 10 ? "." + std::to_string(tenths % 10) : "";
    return std::to_string(tenths / 10) + fraction + " %";
}

void MapScale::Scroll_to(int left, int top) {
    left_ = left;
    top_ = top;
}

CanvasPoint MapScale::To_canvas(ScreenPoint at) const {
    return {(at.X + left_) / zoom_, (at.Y + top_) / zoom_};
}

ScreenPoint MapScale::To_screen(CanvasPoint pixel) const {
    return {pixel.X * zoom_ - left_, pixel.Y * zoom_ - top_};
}

ViewSize MapScale::Shown_size(ViewSize image) const {
    return {Shown_length(image.Width, zoom_), Shown_length(image.Height, zoom_)};
}

void MapScale::Put(CanvasPoint pixel, ScreenPoint at) {
    Scroll_to(Round_to_pixel(pixel.X * zoom_ - at.X), Round_to_pixel(pixel.Y * zoom_ - at.Y));
}

void MapScale::Reveal(CanvasPoint pixel, ViewSize viewport, int margin) {
    const ScreenPoint at = To_screen(pixel);
    Scroll_to(left_ + Way_to_reveal(at.X, viewport.Width, margin),
              top_ + Way_to_reveal(at.Y, viewport.Height, margin));
}

void MapScale::Zoom_to(double zoom, ScreenPoint fixed) {
    const CanvasPoint pixel = To_canvas(fixed);
    zoom_ = zoom;
    Put(pixel, fixed);
}

double Next_level(double zoom) {
    const auto* const next = std::ranges::upper_bound(Levels, zoom);
    return next == Levels.end() ? zoom : *next;
}

double Previous_level(double zoom) {
    const auto* const at = std::ranges::lower_bound(Levels, zoom);
    return at == Levels.begin() ? zoom : *(at - 1);
}

double Nearest_level(double zoom) {
    return *std::ranges::min_element(
        Levels, {}, [zoom](double level) { return std::abs(std::log(level / zoom)); });
}

double Zoom_of_whole(ViewSize image, ViewSize viewport) {
    return std::min({static_cast<double>(viewport.Width) / image.Width,
                     static_cast<double>(viewport.Height) / image.Height, LargestLevel});
}

}  // namespace tidemark
