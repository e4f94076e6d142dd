#include "coast/simplify.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tidemark {

namespace {

// A stretch between two points that are kept, and what the least significant of its ends has.
struct Stretch {
    std::size_t First, Last;
    double Most;
};

std::size_t Farthest_from_first(std::span<const MapPoint> points) {
    std::size_t farthest = 0;
    double most = -1;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double distance = std::hypot(points[i].X - points[0].X, points[i].Y - points[0].Y);
        if (distance <= most) continue;
        most = distance;
        farthest = i;
    }
    return farthest;
}

}  // namespace

std::vector<double> Significances(std::span<const MapPoint> points, bool is_ring) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    std::vector<double> significances(points.size(), 0);
    if (points.empty()) return significances;
    const auto at = [&](std::size_t i) { return points[i % points.size()]; };
    const std::size_t last = is_ring ? points.size() : points.size() - 1;
    std::vector<Stretch> stretches;
    if (is_ring) {
        const std::size_t farthest = Farthest_from_first(points);
        significances[farthest] = endless;
        stretches = {{0, farthest, endless}, {farthest, last, endless}};
    } else {
        stretches = {{0, last, endless}};
    }
    significances[0] = significances[last % points.size()] = endless;
    while (!stretches.empty()) {
        const auto [first, end, most] = stretches.back();
        stretches.pop_back();
        double greatest = -1;
        std::size_t middle = first;
        for (std::size_t i = first + 1; i < end; ++i) {
            const double distance = Square_to_segment(points[i], at(first), at(end));
            if (distance <= greatest) continue;
            greatest = distance;
            middle = i;
        }
        if (middle == first) continue;
        greatest = std::sqrt(greatest);
        // Never more than the points have without which this one would not be asked for.
        significances[middle] = std::min(greatest, most);
        stretches.push_back({first, middle, significances[middle]});
        stretches.push_back({middle, end, significances[middle]});
    }
    return significances;
}

}  // namespace tidemark
