// How the lists of the Status panel print an LOD13 cell.
#pragma once

#include <string>

#include "model/text_forms.h"

namespace tidemark {

inline std::string Cell_text(Int16 column, Int16 row) {
    return "[ " + Int_text(column) + ", " + Int_text(row) + " ]";
}

}  // namespace tidemark
