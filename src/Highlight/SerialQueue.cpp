#include "SerialQueue.h"

namespace Highlight {

SerialQueue::SerialQueue() : thread_([this] { run(); }) {}

SerialQueue::~SerialQueue() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void SerialQueue::schedule(std::function<void()> task) {
  {
    std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
  }
  wake_.notify_one();
}

void SerialQueue::run() {
  for (;;) {
    std::function<void()> task;
    {
      std::unique_lock lock(mutex_);
      wake_.wait(lock, [this] { return stopping_ || !tasks_.empty(); });
      if (tasks_.empty()) return;
      task = std::move(tasks_.front());
      tasks_.pop_front();
    }
    try {
      task();
    } catch (...) {
      // A failing task must not take the queue, or the process, down with it.
    }
  }
}

}  // namespace Highlight
