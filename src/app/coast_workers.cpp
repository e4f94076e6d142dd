#include "app/coast_workers.h"

#include <system_error>
#include <utility>

namespace tidemark {

CoastWorkers::CoastWorkers(unsigned threads, Work work, Tell tell)
    : work_(std::move(work)), tell_(std::move(tell)) {
    try {
        while (threads_.size() < threads) threads_.emplace_back([this] { Run(); });
    } catch (const std::system_error&) {  // the system has no more of them
        if (threads_.empty()) throw;
    }
}

CoastWorkers::~CoastWorkers() {
    {
        const std::lock_guard lock(turn_);
        is_over_ = true;
    }
    is_given_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

void CoastWorkers::Give(std::vector<CellWork> batch) {
    std::unique_lock lock(turn_);
    is_taken_.wait(lock, [this] { return next_ == batch_.size(); });
    before_ += batch_.size();
    batch_ = std::move(batch);
    next_ = 0;
    is_given_.notify_all();
}

void CoastWorkers::Run() {
    std::unique_lock lock(turn_);
    for (;;) {
        is_given_.wait(lock, [this] { return next_ < batch_.size() || is_over_; });
        if (next_ == batch_.size()) return;
        const std::size_t number = before_ + next_;
        const CellWork cell = std::move(batch_[next_++]);
        if (next_ == batch_.size()) is_taken_.notify_one();
        lock.unlock();
        CellReport report = work_(cell);
        {
            const std::lock_guard telling(telling_);
            untold_.emplace(number, std::move(report));
            for (auto ready = untold_.begin(); ready != untold_.end() && ready->first == told_;
                 ready = untold_.erase(ready), ++told_)
                tell_(ready->second);
        }
        lock.lock();
    }
}

}  // namespace tidemark
