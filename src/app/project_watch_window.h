// Watches the file that a project is saved to: another program may change it or take it away.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>

namespace tidemark {

class ProjectWatch : public QObject {
    Q_OBJECT

  public:
    explicit ProjectWatch(QObject* parent = nullptr);

    // From now on watches this file as it is now; an empty path: none.
    void Watch(const QString& path);
    const QString& Watched() const { return path_; }

  Q_SIGNALS:
    void Changed(const QString& path);   // its content may be another's
    void Vanished(const QString& path);  // there is no such file any more

  private:
    // By what a file is known to be as it was.
    struct FileState {
        bool IsThere = false;
        qint64 Size = 0;
        QDateTime Modified;
        bool operator==(const FileState&) const = default;
    };

    FileState State_now() const;
    void Look();

    QFileSystemWatcher watcher_;
    QString path_;
    FileState state_;
};

}  // namespace tidemark
