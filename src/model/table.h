// Tables of a fixed size whose slots are numbered as the data are: entries from 1, slot 0 unused.
#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>

namespace tidemark {

// A table with one or more indexes; index k runs from 0 to the k-th of `Last`, both included.
// Table<Int16, 1000, 1> VTPPoint is asked as VTPPoint(i, 0). An index outside throws
// std::out_of_range; nothing is ever read or written past a slot.
template <class T, int... Last>
class Table {
  public:
    template <class... Index>
    requires(sizeof...(Index) == sizeof...(Last)) constexpr T& operator()(Index... index) {
        return slots_[Slot(static_cast<int>(index)...)];
    }

    template <class... Index>
    requires(sizeof...(Index) == sizeof...(Last)) constexpr const T& operator()(
        Index... index) const {
        return slots_[Slot(static_cast<int>(index)...)];
    }

  private:
    template <class... Index>
    static constexpr std::size_t Slot(Index... index) {
        std::size_t slot = 0;
        ((slot = slot * static_cast<std::size_t>(Last + 1) + Checked(index, Last)), ...);
        return slot;
    }

    static constexpr std::size_t Checked(int index, int last) {
        if (index < 0 || index > last) throw std::out_of_range("A table index is out of range.");
        return static_cast<std::size_t>(index);
    }

    std::array<T, (static_cast<std::size_t>(Last + 1) * ...)> slots_{};
};

}  // namespace tidemark
