// One worker thread running tasks strictly in the order they were scheduled.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace Highlight {

class SerialQueue {
 public:
  SerialQueue();
  // Runs the tasks already scheduled, then stops the thread.
  ~SerialQueue();
  SerialQueue(const SerialQueue&) = delete;
  SerialQueue& operator=(const SerialQueue&) = delete;

  void schedule(std::function<void()> task);
  bool isCurrentThread() const { return std::this_thread::get_id() == thread_.get_id(); }

 private:
  void run();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<std::function<void()>> tasks_;
  bool stopping_ = false;
  std::thread thread_;
};

}  // namespace Highlight
