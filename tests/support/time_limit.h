#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <iostream>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>

namespace support {

/// Ends the process when a test takes longer than the limit, whatever it is doing.
class TimeLimit {
  public:
    explicit TimeLimit(std::chrono::seconds limit)
        : limit_(limit), thread_([this](const std::stop_token& stop) { watch(stop); }) {}

    void begin(std::string test) {
        const std::lock_guard lock(mutex_);
        test_ = std::move(test);
        deadline_ = std::chrono::steady_clock::now() + limit_;
        changed_.notify_all();
    }
    void end() {
        const std::lock_guard lock(mutex_);
        deadline_.reset();
        changed_.notify_all();
    }

  private:
    void watch(const std::stop_token& stop) {
        std::unique_lock lock(mutex_);
        while (!stop.stop_requested()) {
            if (!deadline_) {
                changed_.wait(lock, stop, [this] { return deadline_.has_value(); });
            } else if (std::chrono::steady_clock::now() >= *deadline_) {
                std::cerr << test_ << " takes longer than " << limit_.count() << " s" << std::endl;
                std::_Exit(EXIT_FAILURE);
            } else {
                changed_.wait_until(lock, stop, *deadline_, [this, deadline = *deadline_] {
                    return !deadline_ || *deadline_ != deadline;
                });
            }
        }
    }

    std::chrono::seconds limit_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::string test_;
    std::optional<std::chrono::steady_clock::time_point> deadline_;
    std::jthread thread_; // the last one: it uses the others
};

} // namespace support
