#include "app/dropped_file_window.h"

#include <QApplication>
#include <QUrl>

#include "app/import_commands.h"
#include "platform/qt_text.h"

namespace tidemark {

bool Is_project_file(const QString& path) {
    return path.endsWith(".tdm", Qt::CaseInsensitive);
}

QString Dragged_file(const QMimeData& data) {
    if (QApplication::activeModalWidget()) return {};
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) return {};
    const QString path = urls.first().toLocalFile();
    return Is_project_file(path) || Is_coast_file(From_qt(path)) ? path : QString();
}

}  // namespace tidemark
