// Files that are dragged over a window and dropped there.
#pragma once

#include <QMimeData>
#include <QString>

namespace tidemark {

bool Is_project_file(const QString& path);

// The one project or coast file that is being dragged; empty for anything else, and while a dialog
// works on the project that is there: being modal does not keep a drop away.
QString Dragged_file(const QMimeData& data);

}  // namespace tidemark
