// Cells with coastlines made by chance, such as a careful user could draw: none touches itself or
// another, and each has points in the cell wherever it passes through.
#pragma once

#include <random>
#include <vector>

#include "lwm/cell_edges.h"

namespace tidemark {

using Coastline =
    std::vector<CellPoint>;  // in cell units, its ends outside the cell or on its edge

class RandomCells {
  public:
    explicit RandomCells(unsigned seed) : random_(seed) {}

    // The coastlines of the next cell: one to `most`, each with 2 to 5 points strictly inside.
    std::vector<Coastline> Next(int most);

    int Number(int lowest, int highest);
    CellPoint Click() { return {Number(1, 254), Number(1, 254)}; }

  private:
    Coastline Some_coastline();
    CellPoint Outside_of(int edge, int along);

    std::mt19937 random_;
};

}  // namespace tidemark
