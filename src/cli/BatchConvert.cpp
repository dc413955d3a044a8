#include "BatchConvert.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <sstream>
#include <thread>
#include <unordered_map>
#include <unordered_set>

#include "AppSupport.h"
#include "CoreS/Logger.h"
#include "Input.h"
#include "SVGConverter/IDPool.h"
#include "SVGFigurerApp/AtomicFile.h"
#include "SVGFigurerApp/Generation.h"

namespace svgfigurer::cli {

namespace {

using Clock = std::chrono::steady_clock;
using SVGFigurerApp::SVGFigurerConfiguration;

struct FileResult {
  std::size_t bytes = 0;
  double seconds = 0;
  std::string failure;  // empty for a converted file
};

// Collects a conversion's log lines so that they reach standard error in one piece, never
// mixed with the lines of a conversion running beside it.
class BufferStream final : public CoreS::WritableByteStreamType {
 public:
  explicit BufferStream(std::string& out) : out_(out) {}
  std::optional<Error> write(std::initializer_list<std::string_view> buffers) override {
    for (const std::string_view buffer : buffers) out_ += buffer;
    return std::nullopt;
  }

 private:
  std::string& out_;
};

std::string secondsText(double seconds) {
  std::ostringstream text;
  text << seconds;
  return text.str();
}

// A path as one TSV field.
std::string field(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n'; }, ' ');
  return text;
}

// One disk flush for the whole batch: a flush per file would cost more than the conversions.
std::optional<std::string> flushFolder(const std::filesystem::path& folder) {
  const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool ok = fd >= 0 && ::syncfs(fd) == 0;
  const int error = errno;
  if (fd >= 0) ::close(fd);
  if (ok) return std::nullopt;
  return "cannot flush " + folder.string() + ": " + std::strerror(error);
}

struct ProcessUsage {
  long peakResidentKilobytes = 0;
  double cpuSeconds = 0;  // user and system, all threads
};

ProcessUsage processUsage() {
  struct rusage usage {};
  if (::getrusage(RUSAGE_SELF, &usage) != 0) return {};
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return {usage.ru_maxrss, seconds(usage.ru_utime) + seconds(usage.ru_stime)};
}

class Batch {
 public:
  Batch(const BatchRequest& request, const SVGFigurerConfiguration& config)
      : request_(request),
        config_(config),
        stems_(outputStems(request.files)),
        results_(request.files.size()),
        done_(request.files.size(), false),
        showProgress_(::isatty(STDERR_FILENO) == 1) {}

  int run() {
    const auto started = Clock::now();
    const std::size_t total = request_.files.size();
    const unsigned jobs = static_cast<unsigned>(
        std::clamp<std::size_t>(request_.jobs, 1, std::max<std::size_t>(total, 1)));
    running_ = std::make_unique<Running[]>(jobs);
    std::thread watchdog;
    if (request_.timeoutSeconds > 0) watchdog = startThread([this, jobs] { watch(jobs); });
    std::vector<std::thread> workers;
    for (unsigned worker = 1; worker < jobs; ++worker) {
      std::thread thread = startThread([this, worker] { work(worker); });
      if (!thread.joinable()) break;  // fewer threads than asked: the others share the work
      workers.push_back(std::move(thread));
    }
    work(0);
    for (auto& worker : workers) worker.join();
    {
      std::lock_guard guard(lock_);
      allDone_ = true;
    }
    wake_.notify_all();
    if (watchdog.joinable()) watchdog.join();

    int status = 0;
    if (auto error = flushFolder(request_.folder)) {
      printError(*error);
      status = 1;
    }
    const double wall = std::chrono::duration<double>(Clock::now() - started).count();
    if (!request_.timingsFile.empty()) {
      if (auto error = SVGFigurerApp::writeFileAtomically(request_.timingsFile,
                                                          timingsText(std::nullopt, jobs, wall))) {
        printError(*error);
        status = 2;
      }
    }
    std::vector<std::string> failed;
    for (std::size_t i = 0; i < total; ++i) {
      if (!results_[i].failure.empty()) failed.push_back(request_.files[i]);
    }
    if (failed.empty()) return status;
    std::string summary = "svgfigurer: " + std::to_string(failed.size()) + " of " +
                          std::to_string(total) + " inputs failed:\n";
    for (const auto& path : failed) summary += "  " + path + '\n';
    std::cerr << summary << std::flush;
    return std::max(status, 1);
  }

 private:
  // What one worker is converting, for the watchdog.
  struct Running {
    std::mutex lock;
    std::optional<Clock::time_point> since;
    std::size_t index = 0;
  };

  template <class F>
  static std::thread startThread(F&& body) {
    try {
      return std::thread(std::forward<F>(body));
    } catch (const std::system_error&) {
      return {};
    }
  }

  void work(std::size_t worker) {
    Running& running = running_[worker];
    for (;;) {
      const std::size_t index = next_.fetch_add(1);
      if (index >= request_.files.size()) return;
      {
        std::lock_guard guard(running.lock);
        running.since = Clock::now();
        running.index = index;
      }
      std::string messages;
      FileResult result = convert(index, messages);
      {
        std::lock_guard guard(running.lock);
        running.since.reset();
      }
      std::lock_guard guard(lock_);
      results_[index] = std::move(result);
      done_[index] = true;
      ++finished_;
      if (showProgress_) {
        messages += "[" + std::to_string(finished_) + "/" + std::to_string(request_.files.size()) +
                    "] " + request_.files[index] + '\n';
      }
      std::cerr << messages << std::flush;
    }
  }

  FileResult convert(std::size_t index, std::string& messages) {
    const std::string& path = request_.files[index];
    const auto started = Clock::now();
    FileResult result;
    try {
      result.failure = convertInto(path, stems_[index], result.bytes, messages);
    } catch (const std::bad_alloc&) {
      result.failure = "out of memory";
    } catch (const std::exception& error) {
      result.failure = std::string("internal error: ") + error.what();
    } catch (...) {
      result.failure = "internal error";
    }
    result.seconds = std::chrono::duration<double>(Clock::now() - started).count();
    if (!result.failure.empty()) messages += "svgfigurer: " + path + ": " + result.failure + '\n';
    return result;
  }

  // Converts one input into the folder; gives the reason it failed, or an empty text.
  std::string convertInto(const std::string& path, const std::string& stem, std::size_t& bytes,
                          std::string& messages) const {
    if (path == "-") return "standard input has no name to write a file for";
    std::string text;
    if (auto error = readFileInto(path, text)) return "cannot read: " + *error;
    bytes = text.size();
    CoreS::Console2 log(std::make_unique<BufferStream>(messages),
                        std::make_unique<BufferStream>(messages), CoreS::defaultLogLevel());
    const SVGParser::Report report([&messages](std::string_view line) {
      messages += line;
      messages += '\n';
    });
    SVGFigurerConfiguration fileConfig = config_;
    if (fileConfig.rootViewName.empty()) fileConfig.rootViewName = rootViewNameForStem(stem);
    const auto generated = SVGFigurerApp::generateSwift(text, fileConfig, log, report);
    if (generated.failed) return "could not parse SVG";
    if (auto error =
            SVGFigurerApp::writeFileAtomically(request_.folder / (stem + ".swift"), generated.text,
                                               SVGFigurerApp::FlushToDisk::deferred)) {
      return *error;
    }
    return {};
  }

  // A conversion cannot be stopped from outside, so a file that takes too long ends the whole
  // process; the files already written are whole thanks to the atomic writes.
  void watch(unsigned jobs) {
    const auto limit = std::chrono::duration<double>(request_.timeoutSeconds);
    const auto tick = std::min<Clock::duration>(
        std::chrono::milliseconds(100), std::chrono::duration_cast<Clock::duration>(limit / 4));
    std::unique_lock guard(lock_);
    while (!wake_.wait_for(guard, tick, [this] { return allDone_; })) {
      const auto now = Clock::now();
      for (unsigned worker = 0; worker < jobs; ++worker) {
        std::lock_guard runningGuard(running_[worker].lock);
        const auto& since = running_[worker].since;
        if (!since || now - *since <= limit) continue;
        const std::size_t index = running_[worker].index;
        std::error_code error;
        const auto bytes = std::filesystem::file_size(request_.files[index], error);
        results_[index] = {error ? 0 : static_cast<std::size_t>(bytes),
                           std::chrono::duration<double>(now - *since).count(),
                           "took longer than " + secondsText(request_.timeoutSeconds) + " s"};
        done_[index] = true;
        std::cerr << "svgfigurer: " + request_.files[index] + ": " + results_[index].failure + '\n'
                  << std::flush;
        if (!request_.timingsFile.empty()) {
          SVGFigurerApp::writeFileAtomically(request_.timingsFile,
                                             timingsText(index, jobs, std::nullopt));
        }
        std::fflush(nullptr);
        std::_Exit(batchTimeoutExitCode);
      }
    }
  }

  // One line per finished input, in input order, then the run's figures as "#name<TAB>value".
  std::string timingsText(std::optional<std::size_t> timedOut, unsigned jobs,
                          std::optional<double> wall) const {
    std::string text;
    char seconds[32];
    for (std::size_t i = 0; i < results_.size(); ++i) {
      if (!done_[i]) continue;
      const FileResult& result = results_[i];
      std::snprintf(seconds, sizeof seconds, "%.6f", result.seconds);
      text += field(request_.files[i]) + '\t' + std::to_string(result.bytes) + '\t' + seconds +
              '\t' + (result.failure.empty() ? "ok" : "failed: " + field(result.failure)) + '\n';
    }
    text += "#jobs\t" + std::to_string(jobs) + '\n';
    if (wall) {
      std::snprintf(seconds, sizeof seconds, "%.6f", *wall);
      text += "#wall-seconds\t" + std::string(seconds) + '\n';
    }
    if (timedOut) text += "#timed-out\t" + field(request_.files[*timedOut]) + '\n';
    const ProcessUsage usage = processUsage();
    std::snprintf(seconds, sizeof seconds, "%.3f", usage.cpuSeconds);
    text += "#cpu-seconds\t" + std::string(seconds) + '\n';
    text += "#peak-rss-kb\t" + std::to_string(usage.peakResidentKilobytes) + '\n';
    return text;
  }

  const BatchRequest& request_;
  const SVGFigurerConfiguration& config_;
  const std::vector<std::string> stems_;
  std::atomic<std::size_t> next_{0};
  std::unique_ptr<Running[]> running_;

  std::mutex lock_;  // guards what follows and the writing of standard error
  std::condition_variable wake_;
  std::vector<FileResult> results_;
  std::vector<bool> done_;
  std::size_t finished_ = 0;
  bool allDone_ = false;
  const bool showProgress_;
};

}  // namespace

int runBatch(const BatchRequest& request, const SVGFigurerConfiguration& config) {
  return Batch(request, config).run();
}

std::vector<std::string> outputStems(const std::vector<std::string>& files) {
  std::vector<std::string> stems;
  stems.reserve(files.size());
  std::unordered_set<std::string> taken;
  std::unordered_map<std::string, std::size_t> nextSuffix;
  for (const auto& path : files) {
    if (path == "-") {
      stems.emplace_back();
      continue;
    }
    const std::string stem = std::filesystem::path(path).stem().string();
    std::string name = stem;
    if (!taken.insert(name).second) {
      // Resuming from the last suffix given keeps thousands of equal stems linear.
      std::size_t& suffix = nextSuffix.try_emplace(stem, 2).first->second;
      do {
        name = stem + "-" + std::to_string(suffix++);
      } while (!taken.insert(name).second);
    }
    stems.push_back(std::move(name));
  }
  return stems;
}

// Words of ASCII letters and digits, each begun with a capital, then the converter's own rule
// for names that do not begin with a letter. Other characters only separate words.
std::string rootViewNameForStem(const std::string& stem) {
  std::string name;
  bool wordStart = true;
  for (const char c : stem) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x80 || !std::isalnum(byte)) {
      wordStart = true;
      continue;
    }
    name += wordStart ? static_cast<char>(std::toupper(byte)) : c;
    wordStart = false;
  }
  return SwiftUIModel::identifierFromName(name, SwiftUIModel::NameCase::type);
}

}  // namespace svgfigurer::cli
