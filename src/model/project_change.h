// What one step of the user changed of a project: only that, so that a long history stays small.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "model/project.h"
#include "model/records.h"

namespace tidemark {

// From entry number At on (counted from 1), the entries Before were replaced by the entries After.
template <class Record>
struct Splice {
    int At = 1;
    std::vector<Record> Before, After;

    bool Is_empty() const { return Before.empty() && After.empty(); }
};

// A value that is no entry of a table, by its place in the order of the project file.
struct ValueChange {
    using Value = std::variant<Int16, float, bool, std::string>;
    std::size_t Place;
    Value Before, After;
};

class ProjectChange {
  public:
    // Takes `before` to `after`. Left out are the position that the polygon builder looked at last
    // (PointInCellX, PointInCellY), which is a by-product and no work of the user's, and
    // ProjectFile, which saving under another name changes between the steps.
    ProjectChange(const Project& before, const Project& after);

    bool Is_empty() const;

    // On a project that is as `before` (`after`) was: makes it as `after` (`before`). Everything
    // comes back to the bit; a value that did not change is not touched.
    void Apply(Project& project) const;
    void Revert(Project& project) const;

    std::size_t Bytes() const;  // of memory, outside the object itself

  private:
    std::vector<ValueChange> values_;
    Splice<VTPRecord> points_;
    Splice<KillRecord> cells_;
    Splice<LWMRecord> polygons_;
};

}  // namespace tidemark
