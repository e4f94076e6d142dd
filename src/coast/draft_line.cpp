#include "coast/draft_line.h"

#include <algorithm>
#include <iterator>

namespace tidemark {

namespace {

template <class T>
auto At(std::vector<T>& all, std::size_t number) {
    return all.begin() + static_cast<std::ptrdiff_t>(number);
}

template <class T>
std::vector<T> Take_out(std::vector<T>& all, std::size_t first, std::size_t end) {
    std::vector<T> part(At(all, first), At(all, end));
    all.erase(At(all, first), At(all, end));
    return part;
}

template <class T>
void Exchange(std::vector<T>& one, std::size_t at, std::vector<T>& other, std::size_t other_at) {
    const std::vector<T> tail = Take_out(one, at + 1, one.size());
    const std::vector<T> other_tail = Take_out(other, other_at + 1, other.size());
    one.insert(one.end(), other_tail.begin(), other_tail.end());
    other.insert(other.end(), tail.begin(), tail.end());
}

template <class T>
void Insert_ring(std::vector<T>& line, std::size_t at, std::vector<T>& ring, std::size_t ring_at) {
    std::rotate(ring.begin(), At(ring, ring_at + 1), ring.end());
    line.insert(At(line, at + 1), ring.begin(), ring.end());
    ring.clear();
}

}  // namespace

double Twice_area(const std::vector<MapPoint>& points) {
    double sum = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const MapPoint a = points[i], b = points[i + 1 == points.size() ? 0 : i + 1];
        sum += a.X * b.Y - b.X * a.Y;
    }
    return sum;
}

DraftLine Cut_loop(DraftLine& line, std::size_t first, std::size_t last) {
    return {
        {Take_out(line.Line.Points, first, last + 1), true, line.Line.LandOnLeft, line.Line.Origin},
        Take_out(line.Significances, first, last + 1),
        line.LeftOut};
}

void Exchange_tails(DraftLine& one, std::size_t at, DraftLine& other, std::size_t other_at) {
    Exchange(one.Line.Points, at, other.Line.Points, other_at);
    Exchange(one.Significances, at, other.Significances, other_at);
    one.LeftOut = other.LeftOut = one.LeftOut || other.LeftOut;
}

void Splice(DraftLine& line, std::size_t at, DraftLine& ring, std::size_t ring_at) {
    Insert_ring(line.Line.Points, at, ring.Line.Points, ring_at);
    Insert_ring(line.Significances, at, ring.Significances, ring_at);
    line.LeftOut = line.LeftOut || ring.LeftOut;
}

std::size_t Put_between(DraftLine& line, std::size_t first, std::size_t last, MapPoint one,
                        MapPoint two) {
    Take_out(line.Line.Points, first + 1, last);
    Take_out(line.Significances, first + 1, last);
    line.Line.Points.insert(At(line.Line.Points, first + 1), {one, two});
    line.Significances.insert(At(line.Significances, first + 1), 2, EndlessSignificance);
    return first + 1;
}

}  // namespace tidemark
