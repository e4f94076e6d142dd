#include "app/project_watch_window.h"

#include <utility>

#include <QFileInfo>

namespace tidemark {

ProjectWatch::ProjectWatch(QObject* parent) : QObject(parent) {
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &ProjectWatch::Look);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &ProjectWatch::Look);
}

// The folder too: a file that is replaced or comes back is a new one to the system.
void ProjectWatch::Watch(const QString& path) {
    const QStringList watched = watcher_.files() + watcher_.directories();
    if (!watched.isEmpty()) watcher_.removePaths(watched);
    path_ = path;
    state_ = State_now();
    if (path_.isEmpty()) return;
    watcher_.addPath(QFileInfo(path_).absolutePath());
    if (state_.IsThere) watcher_.addPath(path_);
}

ProjectWatch::FileState ProjectWatch::State_now() const {
    const QFileInfo file(path_);
    if (path_.isEmpty() || !file.exists()) return {};
    return {true, file.size(), file.lastModified()};
}

void ProjectWatch::Look() {
    const FileState before = std::exchange(state_, State_now());
    if (state_ == before) return;
    if (!state_.IsThere) {
        Q_EMIT Vanished(path_);
        return;
    }
    if (!watcher_.files().contains(path_)) watcher_.addPath(path_);
    Q_EMIT Changed(path_);
}

}  // namespace tidemark
