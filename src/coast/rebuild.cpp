#include "coast/rebuild.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "coast/cell_mask.h"
#include "coast/coast_survey.h"

namespace tidemark {

namespace {

// Half of the one or half of the other.
bool Has_much_in_common(const Outline& a, const Outline& b) {
    constexpr int twice_cell = 2 * MaskSize * MaskSize;
    const std::int64_t area_a = std::abs(Twice_area(a)), area_b = std::abs(Twice_area(b));
    const std::int64_t least = std::min(area_a, area_b);
    const bool must_overlap = 2 * (area_a + area_b - twice_cell) >= least;
    return must_overlap || std::int64_t{4} * CellMask(a).Common_area(CellMask(b)) >= least;
}

// Nine tenths of the larger one.
bool Are_alike(const Outline& a, const Outline& b) {
    const std::int64_t largest = std::max(std::abs(Twice_area(a)), std::abs(Twice_area(b)));
    return std::int64_t{20} * CellMask(a).Common_area(CellMask(b)) >= 9 * largest;
}

}  // namespace

bool Is_built_as(const Outline& polygon, const Outline& piece) {
    if (Same_outline(polygon, piece)) return true;
    if (piece.size() != polygon.size() + 1) return false;
    for (std::size_t i = 0; i < piece.size(); ++i) {  // the vertex that may be the closing one
        const std::size_t next = i + 1 == piece.size() ? 0 : i + 1;
        if (piece[i] != piece[next]) continue;
        Outline closed = piece;
        closed.erase(closed.begin() + static_cast<std::ptrdiff_t>(i));
        if (Same_outline(polygon, closed)) return true;
    }
    return false;
}

std::optional<Outline> Rebuilt(const Outline& polygon, const std::vector<Outline>& candidates) {
    const std::vector<Outline> pieces = Distinct_pieces(candidates);
    // The one piece may be an island inside a polygon that was around it, or the whole cell of a
    // polygon whose coastline is gone.
    if (pieces.size() == 1)
        return Are_alike(polygon, pieces.front()) ? pieces.front() : std::optional<Outline>();
    std::optional<Outline> found;
    for (const Outline& piece : pieces) {
        if (!Has_much_in_common(polygon, piece)) continue;
        if (found) return std::nullopt;
        found = piece;
    }
    return found;
}

std::vector<std::optional<Outline>> Rebuilt_together(const std::vector<Outline>& polygons,
                                                     const std::vector<Outline>& candidates) {
    std::vector<std::optional<Outline>> pieces;
    std::vector<bool> is_right;
    for (const Outline& polygon : polygons) {
        const auto right =
            std::find_if(candidates.begin(), candidates.end(),
                         [&](const Outline& piece) { return Is_built_as(polygon, piece); });
        is_right.push_back(right != candidates.end());
        if (is_right.back())
            pieces.emplace_back(*right);
        else
            pieces.push_back(polygon.size() < 3 ? std::nullopt : Rebuilt(polygon, candidates));
    }
    std::vector<std::optional<Outline>> given;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const auto takers = std::count_if(pieces.begin(), pieces.end(), [&](const auto& piece) {
            return piece && pieces[i] && Same_outline(*piece, *pieces[i]);
        });
        given.push_back(is_right[i] || takers == 1 ? pieces[i] : std::nullopt);
    }
    return given;
}

}  // namespace tidemark
