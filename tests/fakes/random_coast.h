// Coasts of the tests' own making over a whole LOD8 cell: shores from the west to the east edge of
// the map with bays and headlands, rivers with two banks, and islands between them.
#pragma once

#include <cmath>
#include <memory>
#include <numbers>
#include <vector>

#include "coast/position.h"
#include "fakes/random_numbers.h"
#include "fakes/sample_projects.h"

namespace tidemark {

class RandomCoast {
  public:
    explicit RandomCoast(unsigned seed) : random_(seed) {
        for (double& phase : phases_) phase = random_.Number(0, 628) / 100.0;
        for (double& length : lengths_) length = random_.Number(150, 1500);
    }

    // Lines in VTP units; where one is closed the last point is the first.
    std::vector<std::vector<Position>> Lines() {
        std::vector<std::vector<Position>> lines;
        for (const int north : {1200, 3700, 6200}) {
            lines.push_back(Shore(north));
            if (random_.One_in(2)) lines.push_back(Other_bank(lines.back()));
            for (int island = random_.Number(1, 3); island > 0; --island)
                lines.push_back(Island(island * 2300 + random_.Number(-400, 400), north + 1200));
        }
        return lines;
    }

  private:
    double Bay(double x) const {
        return 300 * std::sin(x / lengths_[0] + phases_[0]) +
               140 * std::sin(x / (lengths_[1] / 4) + phases_[1]) +
               60 * std::sin(x / (lengths_[2] / 9) + phases_[2]);
    }

    std::vector<Position> Shore(int north) {
        std::vector<Position> line;
        for (int x = 0; x < 8191; x += random_.Number(25, 320))
            line.push_back(At(x, north + Bay(x + north)));
        line.push_back(At(8191, north + Bay(8191 + north)));
        return line;
    }

    std::vector<Position> Other_bank(std::vector<Position> line) {
        const int width = random_.Number(15, 60);
        for (Position& place : line) place[1] += width;
        return line;
    }

    std::vector<Position> Island(int x, int y) {
        const int size = random_.Number(200, 400), points = random_.Number(7, 25);
        std::vector<Position> ring;
        for (int k = 0; k < points; ++k) {
            const double angle = 2 * std::numbers::pi * k / points;
            const double radius = size * (1 + 0.4 * std::sin(3 * angle + phases_[0]));
            ring.push_back(At(x + radius * std::cos(angle), y + radius * std::sin(angle)));
        }
        ring.push_back(ring.front());
        return ring;
    }

    static Position At(double x, double y) {
        return {FirstVTP + static_cast<int>(std::lround(x)),
                FirstVTP + static_cast<int>(std::lround(y))};
    }

    RandomNumbers random_;
    double phases_[3], lengths_[3];
};

// The lines as coastlines, just as they are: their steps skip cells and cross edges at a slant.
inline std::unique_ptr<Project> Project_of(const std::vector<std::vector<Position>>& lines) {
    auto project = std::make_unique<Project>();
    Place_area(*project, 0, 0, LastLOD13, LastLOD13);
    for (const auto& line : lines) {
        std::vector<std::pair<int, int>> points;
        for (const auto& [x, y] : line) points.emplace_back(x, y);
        Add_segment(*project, 1, 40, points);
    }
    return project;
}

}  // namespace tidemark
