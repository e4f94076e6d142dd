// Which line of a Status panel list is selected after the list has changed. List positions count
// from 0; -1 stands for nothing selected.
#pragma once

#include <algorithm>

#include "model/int16.h"

namespace tidemark {

// After a rebuild to `count` lines: the same position, or the last line when that is gone.
constexpr int Selected_after_refresh(int selected, int count) {
    return std::min(selected, count - 1);
}

// After the selected line was deleted and `count` are left: the line before it, or the new first.
constexpr int Selected_after_delete(int selected, int count) {
    return Selected_after_refresh(std::max(selected - 1, 0), count);
}

// The Delete key in a list of `count` entries: removes the selected one, if any, with
// remove(entry number from 1), and moves the selection on.
template <class Remove>
void Delete_selected(int& selected, const Int16& count, const Remove& remove) {
    if (selected < 0) return;
    remove(selected + 1);
    selected = Selected_after_delete(selected, count);
}

}  // namespace tidemark
