// A drawing surface that writes down what it is asked for.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace tidemark {

// One line an operation: "erase", "width 3", "colour 0 0 255", "line 0,0 10,2.5",
// "circle 10,2.5 r5 colour 255 0 0".
class RecordingSurface : public DrawingSurface {
  public:
    std::vector<std::string> Operations;

    void Erase() override { Record("erase"); }
    void Pen_width(int pixels) override { Record("width ", pixels); }
    void Pen_colour(Colour c) override {
        Record("colour ", int{c.Red}, " ", int{c.Green}, " ", int{c.Blue});
    }
    void Line(CanvasPoint from, CanvasPoint to) override {
        Record("line ", from.X, ",", from.Y, " ", to.X, ",", to.Y);
    }
    void Circle(CanvasPoint centre, double radius, Colour c) override {
        Record("circle ", centre.X, ",", centre.Y, " r", radius, " colour ", int{c.Red}, " ",
               int{c.Green}, " ", int{c.Blue});
    }

  private:
    template <class... Parts>
    void Record(const Parts&... parts) {
        std::ostringstream text;
        (text << ... << parts);
        Operations.push_back(text.str());
    }
};

}  // namespace tidemark
