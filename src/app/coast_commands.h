// The user's commands of the coast check, each one step of the document.
#pragma once

#include <optional>

#include "coast/mend.h"
#include "model/document.h"

namespace tidemark {

// Mends one finding; one that the project no longer has is left alone. Points that come to stand
// before the selected one do not take the selection from it. Sets DataChanged when anything was
// mended.
MendResult Mend_finding(Document& document, Session& session, const Finding& finding);

// The same for every finding that can be mended.
MendResult Mend_all_findings(Document& document, Session& session);

// Selects what a finding is about in its list, as a click there does. Which list that is; nothing
// when the finding is about none of their entries.
std::optional<ListKind> Select_finding(const Finding& finding, Session& session);

}  // namespace tidemark
