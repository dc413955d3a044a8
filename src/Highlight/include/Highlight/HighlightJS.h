// The highlighter: highlight.js running in a script engine on its own serial worker thread.
// Every script call runs there, in the order scheduled; results come back on the executor the
// caller names.
#pragma once

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "CoreS/Logger.h"
#include "Highlight/HighlightJSTheme.h"
#include "Highlight/StyledText.h"

namespace Highlight {

using Task = std::function<void()>;
// Where a completion runs: the Qt main thread for the editors, anything a test likes.
using Executor = std::function<void(Task)>;

// Posts to the thread of the Qt application object; runs the task at once if there is none.
Executor mainThreadExecutor();
// Runs the task on the calling thread.
Executor inlineExecutor();

// A scheduled highlight. Cancelling one that has not started keeps it from running (its
// completion is never called); one that has started runs to its end.
class WorkItem {
 public:
  void cancel() { cancelled_ = true; }
  bool isCancelled() const { return cancelled_; }

 private:
  std::atomic<bool> cancelled_ = false;
};

using Completion = std::function<void(std::optional<StyledText>)>;

// What a text storage needs of a highlighter.
class Highlighter {
 public:
  virtual ~Highlighter() = default;
  // No language (or an empty one) lets highlight.js detect it.
  virtual std::shared_ptr<WorkItem> highlight(std::u16string text,
                                              std::optional<std::string> language,
                                              std::shared_ptr<const HighlightJSTheme> theme,
                                              Executor completionQueue, Completion completion) = 0;
};

class HighlightJS final : public Highlighter {
 public:
  struct Options {
    // The script; absent means the copy built into the program's resources.
    std::optional<std::string> scriptPath;
    // Where the log lines go; null means the default logger.
    CoreS::Logger* logger = nullptr;
    // Where the language list is stored; absent means mainThreadExecutor().
    Executor mainQueue;
  };

  // Loads the script and starts listing its languages; null (with a log line) on failure.
  static std::shared_ptr<HighlightJS> load(Options options);
  // The process-wide instance, loaded on first use; null if loading failed.
  static std::shared_ptr<HighlightJS> shared();
  // The resource path of the built-in script.
  static std::string bundledScriptPath();

  ~HighlightJS() override;

  std::shared_ptr<WorkItem> highlight(std::u16string text, std::optional<std::string> language,
                                      std::shared_ptr<const HighlightJSTheme> theme,
                                      Executor completionQueue, Completion completion) override;

  // Blocks until the result is there. Never call it from a completion run on the worker.
  std::optional<StyledText> highlightAndWait(std::u16string text,
                                             std::optional<std::string> language,
                                             std::shared_ptr<const HighlightJSTheme> theme);

  // Lower-cased language names; empty until the listing has reached the main queue.
  std::set<std::string> languages() const;
  // Blocks until every task scheduled so far on the worker has run.
  void waitUntilIdle();

  struct Impl;
  explicit HighlightJS(std::unique_ptr<Impl> impl);

 private:
  std::unique_ptr<Impl> impl_;
};

}  // namespace Highlight
