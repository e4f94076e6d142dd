// What the project looks like, as operations on the drawing surface.
#include "canvas/refresh_graphics.h"

#include "fakes/rules_test.h"

namespace tidemark {

// Writes down what it is asked for, an operation a line.
class RecordingSurface : public DrawingSurface {
  public:
    std::ostringstream Operations;

    void Erase() override { Operations << "erase\n"; }
    void Pen_width(int pixels) override { Operations << "width " << pixels << '\n'; }
    void Pen_colour(Colour c) override { Operations << "colour " << Text(c) << '\n'; }
    void Line(CanvasPoint from, CanvasPoint to) override {
        Operations << "line " << Text(from) << " to " << Text(to) << '\n';
    }
    void Circle(CanvasPoint centre, double radius, Colour c) override {
        Operations << "circle " << Text(centre) << " r" << radius << ' ' << Text(c) << '\n';
    }

  private:
    static std::string Text(Colour c) {
        return testing::PrintToString(std::array<int, 3>{c.Red, c.Green, c.Blue});
    }
    static std::string Text(CanvasPoint p) { return testing::PrintToString(std::pair(p.X, p.Y)); }
};

// The whole LOD8 cell at half a pixel to the VTP unit across and one down.
class RefreshGraphicsTest : public testing::Test {
  protected:
    RefreshGraphicsTest() {
        Place_area(p, 0, 0, 31, 31);
        p.ScaleX = 0.5F;
    }

    std::string Drawn(int selected = -1) {
        RecordingSurface surface;
        Refresh_Graphics(p, selected, surface, messages);
        return surface.Operations.str();
    }

    Project p;
    RecordingMessages messages;
};

// A mode or code that is unknown keeps the pen, and the size, of the one before.
TEST_F(RefreshGraphicsTest, EveryKindOfThingInOrder) {
    EXPECT_EQ(Drawn(0), "erase\nwidth 3\n");
    Add_polygon(p, 1, 0, 10, 20, 3);
    Add_polygon(p, 1, 0, 11, 20, 1);
    for (const int mode : {0, 1, 2, 3, 4, 5, 6, 7, 9, 8, -1})
        Add_segment(p, mode, 80, {{4180 + 20 * mode, 4080}, {4190, 4181}});
    Add_segment(p, 7, 80, {{4280, 4080}, {4281, 4081}, {4380, 4081}});
    for (const int code : {9, 8, 31, 32, 7, 16}) Add_cleared_cell(p, 0, 0, code);
    EXPECT_EQ(Drawn(23), Source_file("tests/canvas/data/every-kind.txt"));
    EXPECT_EQ(messages.Said(), "Tidemark: Unknown case encountered.");
    EXPECT_EQ(Drawn(25), Drawn(-1));  // no such point
}

TEST_F(RefreshGraphicsTest, WhatLiesTooFarAwayForSixteenBitsIsLeftOut) {
    Add_polygon(p, 200, 0, 10, 20, 3);
    Add_segment(p, 5, 80, {{4080, 4080}, {-30000, 4080}, {4082, 4080}, {4084, 4080}});
    Add_cleared_cell(p, 0, 200, 16);
    EXPECT_EQ(Drawn(1),
              "erase\nwidth 3\ncolour { 0, 0, 255 }\nwidth 2\ncolour { 0, 255, 255 }\n"
              "line (1, 0) to (2, 0)\nwidth 2\ncolour { 0, 0, 128 }\nwidth 2\n");
}

}  // namespace tidemark
