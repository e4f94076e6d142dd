#include "app/coast_watch_window.h"

#include "coast/check.h"

namespace tidemark {

CoastWatch::CoastWatch(const Document& document, QObject* parent)
    : QObject(parent), document_(document), state_(document.State()) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { Current(); });
}

void CoastWatch::Notice() {
    if (document_.State() != state_) timer_.start(0);
}

// A box in the middle of a step lets the timer run out; what is settled is whole even then.
const Findings& CoastWatch::Current() {
    timer_.stop();
    if (document_.State() == state_) return findings_;
    state_ = document_.State();
    findings_ = Check_coast(document_.Settled());
    Q_EMIT Checked();
    return findings_;
}

}  // namespace tidemark
