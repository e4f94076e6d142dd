#include "coast/cell_pieces.h"

#include <algorithm>
#include <array>

namespace tidemark {

namespace {

constexpr int SideLength = 2 * LastCellUnit;  // half units

// The corners in clockwise order, each at the end of a side that begins at the one before it.
constexpr std::array<CellPoint, 4> Corners{
    {{LastCellUnit, 0}, {LastCellUnit, LastCellUnit}, {0, LastCellUnit}, {0, 0}}};

// Half units along the boundary, clockwise from the north-west corner.
int Way_to(EdgeType side, int half_units) {
    switch (side) {
        case EdgeType::Top:
            return half_units;
        case EdgeType::Right:
            return SideLength + half_units;
        case EdgeType::Bottom:
            return 3 * SideLength - half_units;
        default:
            return 4 * SideLength - half_units;
    }
}

int Way_to(CellPoint place) {
    if (place.Y == 0) return Way_to(EdgeType::Top, 2 * int{place.X});
    if (place.Y == LastCellUnit) return Way_to(EdgeType::Bottom, 2 * int{place.X});
    return Way_to(place.X == 0 ? EdgeType::Left : EdgeType::Right, 2 * int{place.Y});
}

// The boundary from one place to another, clockwise, with the corners on the way.
Outline Boundary_between(CellPoint from, CellPoint to) {
    Outline run{from};
    const int start = Way_to(from);
    int end = Way_to(to);
    if (end <= start) end += 4 * SideLength;
    for (int corner = start / SideLength + 1; corner * SideLength < end; ++corner)
        run.push_back(Corners[static_cast<std::size_t>(corner - 1) % Corners.size()]);
    run.push_back(to);
    return run;
}

// Whether the outline has the run among its vertices, which it may begin in the middle of.
bool Has_run(const Outline& outline, const Outline& run) {
    if (run.size() > outline.size()) return false;
    for (std::size_t start = 0; start < outline.size(); ++start) {
        std::size_t k = 0;
        while (k < run.size() && outline[(start + k) % outline.size()] == run[k]) ++k;
        if (k == run.size()) return true;
    }
    return false;
}

}  // namespace

CellPieces::CellPieces(const SurveyedCell& cell) : pieces_(Distinct_pieces(cell.Candidates)) {
    std::vector<CellPoint> crossings;
    for (const BoundaryPoint& point : cell.Crossings) crossings.push_back(point.Place);
    fit_ = Assign(std::move(crossings));
}

bool CellPieces::Assign(std::vector<CellPoint> crossings) {
    if (crossings.empty()) return pieces_.size() == 1;
    std::sort(crossings.begin(), crossings.end(),
              [](CellPoint a, CellPoint b) { return Way_to(a) < Way_to(b); });
    std::vector<int> parities(pieces_.size(), -1);
    for (std::size_t i = 0; i < crossings.size(); ++i) {
        const Outline run =
            Boundary_between(crossings[i], crossings[i + 1 == crossings.size() ? 0 : i + 1]);
        const auto has_run = [&](const Outline& piece) { return Has_run(piece, run); };
        const auto piece = std::find_if(pieces_.begin(), pieces_.end(), has_run);
        if (piece == pieces_.end()) return false;
        const auto number = static_cast<std::size_t>(piece - pieces_.begin());
        const int parity = static_cast<int>(i % 2);
        if (parities[number] == 1 - parity) return false;
        parities[number] = parity;
        stretches_.push_back({Way_to(crossings[i]), number});
    }
    if (std::find(parities.begin(), parities.end(), -1) != parities.end()) return false;
    parities_.assign(parities.begin(), parities.end());
    return true;
}

std::size_t CellPieces::Piece_after(CellPoint crossing) const {
    const int way = Way_to(crossing);
    const auto found = std::find_if(stretches_.begin(), stretches_.end(),
                                    [=](const Stretch& stretch) { return stretch.Start == way; });
    return found == stretches_.end() ? 0 : found->Piece;
}

std::size_t CellPieces::Piece_at(EdgeType side, int half_units) const {
    if (stretches_.empty()) return 0;
    const auto next =
        std::upper_bound(stretches_.begin(), stretches_.end(), Way_to(side, half_units),
                         [](int way, const Stretch& stretch) { return way < stretch.Start; });
    return (next == stretches_.begin() ? stretches_.back() : *(next - 1)).Piece;
}

}  // namespace tidemark
