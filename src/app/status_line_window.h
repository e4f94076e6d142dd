// The status bar: what was said last, and at its right end how full the project is, where the
// pointer is, and how far it is from the selected point.
#pragma once

#include <QLabel>
#include <QStatusBar>

#include "georef/geo_position.h"
#include "model/session.h"

namespace tidemark {

class StatusLine : public QObject {
    Q_OBJECT

  public:
    // Adds the labels to the bar, which owns them.
    explicit StatusLine(QStatusBar& bar);

    void Say(const std::string& text);
    // Says what an empty remark takes back, unless something else was said since.
    void Remark(const QString& text);

    void Show_counts(const Project& project);
    // Of the session's cursor; nothing as long as the map has no place in the world.
    void Show_place(const Project& project, const Session& session);

  private:
    QStatusBar& bar_;
    QString remark_;  // the last one
    QLabel* CountsLabel_;
    QLabel* PlaceLabel_;
    QLabel* DistanceLabel_;
};

}  // namespace tidemark
