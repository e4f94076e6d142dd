#include "big_coast.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <random>
#include <shapefil.h>
#include <vector>

namespace tidemark {
namespace {

constexpr int Islands = 2000;
constexpr int IslandPositions = 1000;
constexpr int ContinentPositions = 1000000;

struct Ring {
    std::vector<double> X, Y;
};

// Clockwise around its centre, at a distance that wanders about the radius.
Ring Wandering_ring(std::mt19937& random, double x, double y, double radius, int positions) {
    Ring ring;
    double distance = 1;
    for (int at = 0; at < positions; ++at) {
        const double step = static_cast<double>(random() % 2001) / 1000 - 1;
        distance = std::clamp(distance + step / 2000, 0.99, 1.01);
        const double angle = -2 * std::numbers::pi * at / positions;
        ring.X.push_back(x + radius * distance * std::cos(angle));
        ring.Y.push_back(y + radius / 2 * distance * std::sin(angle));
    }
    ring.X.push_back(ring.X.front());
    ring.Y.push_back(ring.Y.front());
    return ring;
}

template <class Take_ring>
void For_each_ring(Take_ring take) {
    std::mt19937 random(1);
    take(Wandering_ring(random, -80, 38, 40, ContinentPositions));
    for (int island = 0; island < Islands; ++island) {
        const double x = static_cast<double>(random() % 340) - 170;
        const double y = static_cast<double>(random() % 160) - 80;
        take(Wandering_ring(random, x, y, 1.5, IslandPositions));
    }
}

void Append(std::string& text, double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, 7)
                         .ptr;
    text.append(digits.data(), end);
}

}  // namespace

void Write_big_geojson(const std::string& path) {
    std::ofstream file(path, std::ios::binary);
    file << "{\"type\":\"FeatureCollection\",\"features\":[";
    const char* separator = "\n";
    For_each_ring([&](const Ring& ring) {
        std::string text = separator;
        text +=
            R"({"type":"Feature","properties":{},"geometry":{"type":"Polygon","coordinates":[[)";
        for (std::size_t at = 0; at < ring.X.size(); ++at) {
            text += at == 0 ? "[" : ",[";
            Append(text, ring.X[at]);
            text += ',';
            Append(text, ring.Y[at]);
            text += ']';
        }
        file << text << "]]}}";
        separator = ",\n";
    });
    file << "\n]}\n";
}

void Write_big_shapefile(const std::string& path) {
    SHPInfo* const file = SHPCreate(path.c_str(), SHPT_POLYGON);
    For_each_ring([&](const Ring& ring) {
        SHPObject* const shape = SHPCreateSimpleObject(
            SHPT_POLYGON, static_cast<int>(ring.X.size()), ring.X.data(), ring.Y.data(), nullptr);
        SHPWriteObject(file, -1, shape);
        SHPDestroyObject(shape);
    });
    SHPClose(file);
}

}  // namespace tidemark
