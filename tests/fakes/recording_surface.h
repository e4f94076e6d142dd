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

    void Erase() override { Operations.push_back("erase"); }
    void Pen_width(int pixels) override { Operations.push_back("width " + std::to_string(pixels)); }
    void Pen_colour(Colour colour) override { Operations.push_back(Text(colour)); }
    void Line(CanvasPoint from, CanvasPoint to) override {
        Operations.push_back("line " + Text(from) + " " + Text(to));
    }
    void Circle(CanvasPoint centre, double radius, Colour colour) override {
        std::ostringstream text;
        text << "circle " << Text(centre) << " r" << radius << " " << Text(colour);
        Operations.push_back(text.str());
    }

  private:
    static std::string Text(Colour c) {
        return "colour " + std::to_string(c.Red) + " " + std::to_string(c.Green) + " " +
               std::to_string(c.Blue);
    }
    static std::string Text(CanvasPoint point) {
        std::ostringstream text;
        text << point.X << "," << point.Y;
        return text.str();
    }
};

}  // namespace tidemark
