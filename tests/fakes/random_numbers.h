// Random numbers, the same ones for the same seed.
#pragma once

#include <random>
#include <vector>

namespace tidemark {

class RandomNumbers {
  public:
    explicit RandomNumbers(unsigned seed) : random_(seed) {}

    int Number(int lowest, int highest) {
        return std::uniform_int_distribution(lowest, highest)(random_);
    }
    bool One_in(int times) { return Number(1, times) == 1; }

    template <class List>
    const auto& One_of(const List& list) {
        return list[static_cast<typename List::size_type>(
            Number(0, static_cast<int>(list.size()) - 1))];
    }

    // A place in a list of weights, the heavier the more often.
    std::size_t Weighted(const std::vector<int>& weights) {
        return std::discrete_distribution<std::size_t>(weights.begin(), weights.end())(random_);
    }

  private:
    std::mt19937 random_;
};

}  // namespace tidemark
