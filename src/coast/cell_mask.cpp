#include "coast/cell_mask.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tidemark {

namespace {

// Every bit becomes the parity of itself and all lower ones.
std::uint64_t Parities(std::uint64_t word) {
    for (const unsigned shift : {1U, 2U, 4U, 8U, 16U, 32U}) word ^= word << shift;
    return word;
}

std::int64_t Divided_up(std::int64_t dividend, int divisor) {  // the divisor is positive
    return dividend >= 0 ? (dividend + divisor - 1) / divisor : -(-dividend / divisor);
}

}  // namespace

CellMask::CellMask(const Outline& outline) {
    for (std::size_t i = 0; i < outline.size(); ++i)
        Toggle_right_of(outline[i], outline[i + 1 == outline.size() ? 0 : i + 1]);
    for (Row& row : rows_) {
        if (row == Row{}) continue;
        std::uint64_t carry = 0;
        for (std::uint64_t& word : row) {
            word = Parities(word) ^ carry;
            carry = (word >> 63U) != 0 ? ~std::uint64_t{0} : 0;
        }
        row.back() &= ~std::uint64_t{0} >> (64 * Words - MaskSize);
    }
}

// Marks in every row that the edge passes the first centre that is not west of it. In half units a
// row's centres have y = 2 row + 1 and x = 2 column + 1.
void CellMask::Toggle_right_of(CellPoint a, CellPoint b) {
    if (a.Y == b.Y) return;
    if (a.Y > b.Y) std::swap(a, b);
    const std::int64_t dx = int{b.X} - int{a.X};
    const int dy = int{b.Y} - int{a.Y};
    const int last = std::min<int>(b.Y, MaskSize);
    for (int row = std::max<int>(a.Y, 0); row < last; ++row) {
        // 2 column + 1 >= 2 a.X + (2 row + 1 - 2 a.Y) * dx / dy
        const std::int64_t over =
            (2 * (row - int{a.Y}) + 1) * dx + (2 * std::int64_t{int{a.X}} - 1) * dy;
        const std::int64_t column = std::max<std::int64_t>(Divided_up(over, 2 * dy), 0);
        if (column >= MaskSize) continue;
        const auto bit = static_cast<std::size_t>(column);
        rows_[static_cast<std::size_t>(row)][bit / 64] ^= std::uint64_t{1} << bit % 64;
    }
}

int CellMask::Area() const {
    int area = 0;
    for (const Row& row : rows_)
        for (const std::uint64_t word : row) area += std::popcount(word);
    return area;
}

int CellMask::Common_area(const CellMask& other) const {
    int area = 0;
    for (std::size_t row = 0; row < rows_.size(); ++row)
        for (std::size_t word = 0; word < Words; ++word)
            area += std::popcount(rows_[row][word] & other.rows_[row][word]);
    return area;
}

CellMask& CellMask::operator|=(const CellMask& other) {
    for (std::size_t row = 0; row < rows_.size(); ++row)
        for (std::size_t word = 0; word < Words; ++word) rows_[row][word] |= other.rows_[row][word];
    return *this;
}

}  // namespace tidemark
