#include "coast/finding.h"

#include <algorithm>
#include <iterator>

#include "lwm/cell_text.h"

namespace tidemark {

std::string Finding_line(const Finding& finding) {
    std::string line;
    if (finding.Cell) line = Cell_text(finding.Cell->Column, finding.Cell->Row) + " ";
    return line + (finding.IsError ? "Error: " : "Remark: ") + finding.Text;
}

Findings Of_kind(const Findings& findings, std::optional<FindingKind> kind) {
    Findings found;
    std::copy_if(findings.begin(), findings.end(), std::back_inserter(found),
                 [&](const Finding& finding) { return !kind || finding.Kind == *kind; });
    return found;
}

int Count_errors(const Findings& findings) {
    return static_cast<int>(std::count_if(findings.begin(), findings.end(),
                                          [](const Finding& f) { return f.IsError; }));
}

bool Has_remedy(const Findings& findings) {
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& f) { return f.Mending != Remedy::None; });
}

}  // namespace tidemark
