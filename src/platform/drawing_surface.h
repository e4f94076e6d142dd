// What the project is drawn on: straight lines and circle outlines over the background image.
#pragma once

#include <cstdint>

namespace tidemark {

struct Colour {
    std::uint8_t Red, Green, Blue;
    bool operator==(const Colour&) const = default;
};

// A position in canvas pixels; fractions are kept.
struct CanvasPoint {
    double X, Y;
    bool operator==(const CanvasPoint&) const = default;
};

class DrawingSurface {
  public:
    virtual ~DrawingSurface() = default;

    virtual void Erase() = 0;  // all drawings; the image stays
    virtual void Pen_width(int pixels) = 0;
    virtual void Pen_colour(Colour colour) = 0;
    virtual void Line(CanvasPoint from, CanvasPoint to) = 0;
    // An outline with the pen's width in a colour of its own; the pen's colour stays.
    virtual void Circle(CanvasPoint centre, double radius, Colour colour) = 0;
};

}  // namespace tidemark
