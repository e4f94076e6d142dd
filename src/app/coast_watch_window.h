// Keeps the coast check current while the project changes.
#pragma once

#include <QObject>
#include <QTimer>

#include "coast/finding.h"
#include "model/document.h"

namespace tidemark {

// Checks once after all that one turn of the event loop has changed, so that no command waits.
class CoastWatch : public QObject {
    Q_OBJECT

  public:
    explicit CoastWatch(const Document& document, QObject* parent = nullptr);

    // The project may be another one than it was.
    void Notice();
    // The findings of the project as the last step has left it; checks it when that is still due.
    const Findings& Current();

  Q_SIGNALS:
    void Checked();  // the findings may be others

  private:
    const Document& document_;
    QTimer timer_;
    std::uint64_t state_;  // that was checked last
    Findings findings_;
};

}  // namespace tidemark
