#include "Highlight/HighlightJS.h"

#include <QCoreApplication>
#include <QFile>
#include <QJSEngine>
#include <QJSValue>
#include <QLoggingCategory>
#include <QMetaObject>
#include <QString>
#include <algorithm>
#include <cctype>
#include <mutex>

#include "Highlight/SpanStream.h"
#include "SerialQueue.h"

namespace Highlight {

namespace {

QString toQString(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

std::u16string_view toView(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

// The script is valid but old-fashioned JavaScript, and the engine's compiler warns about it
// (variables used before their declaration) on every load. Those lines help nobody.
QLoggingCategory::CategoryFilter previousCategoryFilter = nullptr;

void quietScriptCompiler(QLoggingCategory* category) {
  if (previousCategoryFilter) previousCategoryFilter(category);
  if (qstrcmp(category->categoryName(), "qt.qml.compiler") == 0) {
    category->setEnabled(QtWarningMsg, false);
    category->setEnabled(QtInfoMsg, false);
  }
}

void silenceScriptCompilerWarnings() {
  static std::once_flag once;
  std::call_once(
      once, [] { previousCategoryFilter = QLoggingCategory::installFilter(quietScriptCompiler); });
}

// highlight.js writes deprecation notes to `console`; the engine has none, so it gets one that
// swallows them.
constexpr const char* kConsoleScript =
    "({ log: function() {}, info: function() {}, warn: function() {}, error: function() {},"
    "   debug: function() {}, trace: function() {} })";

}  // namespace

Executor mainThreadExecutor() {
  return [](Task task) {
    QCoreApplication* app = QCoreApplication::instance();
    if (!app) {
      task();
      return;
    }
    QMetaObject::invokeMethod(app, std::move(task), Qt::QueuedConnection);
  };
}

Executor inlineExecutor() {
  return [](Task task) { task(); };
}

struct HighlightJS::Impl {
  CoreS::Logger& logger;
  Executor mainQueue;
  // Touched on the worker thread only.
  std::unique_ptr<QJSEngine> engine;
  QJSValue hljs;

  // Shared with the tasks posted to the main queue, which may run after this is gone.
  struct LanguageList {
    std::mutex mutex;
    std::set<std::string> names;
  };
  std::shared_ptr<LanguageList> languages = std::make_shared<LanguageList>();

  // Last member: destroyed first, so the worker has stopped before the rest goes away.
  std::unique_ptr<SerialQueue> queue = std::make_unique<SerialQueue>();

  Impl(CoreS::Logger& logger, Executor mainQueue)
      : logger(logger), mainQueue(std::move(mainQueue)) {}

  bool setUp(const QString& path);  // on the worker
  void tearDown() {                 // on the worker
    hljs = QJSValue();
    engine.reset();
  }
  void listLanguages();  // on the worker
  std::optional<StyledText> run(const std::u16string& text,
                                const std::optional<std::string>& language,
                                const HighlightJSTheme& theme);  // on the worker
};

bool HighlightJS::Impl::setUp(const QString& path) {
  if (!QCoreApplication::instance()) {
    // The engine needs an application object; without one it would stop the process.
    logger.error("could not setup JSContext/JSValue");
    return false;
  }
  silenceScriptCompilerWarnings();
  engine = std::make_unique<QJSEngine>();
  QJSValue window = engine->newObject();
  QJSValue console = engine->evaluate(QString::fromLatin1(kConsoleScript));
  if (!window.isObject() || !console.isObject()) {
    logger.error("could not setup JSContext/JSValue");
    return false;
  }
  engine->globalObject().setProperty(QStringLiteral("window"), window);
  engine->globalObject().setProperty(QStringLiteral("console"), console);

  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    logger.error("could not load highlight.js at:", path.toStdString());
    return false;
  }
  const QString script = QString::fromUtf8(file.readAll());
  // The script's completion value is `undefined`; only a thrown exception means failure.
  const QJSValue result = engine->evaluate(script, QStringLiteral("highlight.min.js"));
  if (result.isError()) {
    logger.error("Highlight.js script evaluation failed:", result.toString().toStdString());
    return false;
  }
  hljs = window.property(QStringLiteral("hljs"));
  if (!hljs.isObject()) {
    logger.error("could not locate Highlight.js in JSContext");
    return false;
  }
  return true;
}

void HighlightJS::Impl::listLanguages() {
  const QJSValue list =
      hljs.property(QStringLiteral("listLanguages")).callWithInstance(hljs, QJSValueList{});
  if (list.isError() || !list.isArray()) {
    logger.log("could not list highlight.js languages!");
    return;
  }
  std::vector<std::string> names;
  const int length = list.property(QStringLiteral("length")).toInt();
  for (int i = 0; i < length; ++i) {
    names.push_back(list.property(static_cast<quint32>(i)).toString().toStdString());
  }
  mainQueue([list = languages, logger = &logger, names = std::move(names)]() mutable {
    std::string joined;
    for (std::string& name : names) {
      std::transform(name.begin(), name.end(), name.begin(),
                     [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
      if (!joined.empty()) joined += ", ";
      joined += name;
    }
    {
      std::lock_guard lock(list->mutex);
      list->names = std::set<std::string>(names.begin(), names.end());
    }
    logger->log("Highlight languages:", joined);
  });
}

std::optional<StyledText> HighlightJS::Impl::run(const std::u16string& text,
                                                 const std::optional<std::string>& language,
                                                 const HighlightJSTheme& theme) {
  QJSValue result;
  if (language && !language->empty()) {
    result = hljs.property(QStringLiteral("highlight"))
                 .callWithInstance(
                     hljs, {QString::fromStdString(*language), toQString(text), QJSValue(false)});
  } else {
    result =
        hljs.property(QStringLiteral("highlightAuto")).callWithInstance(hljs, {toQString(text)});
  }
  const QJSValue value = result.isObject() && !result.isError()
                             ? result.property(QStringLiteral("value"))
                             : QJSValue(QJSValue::UndefinedValue);
  if (value.isUndefined() || value.isNull()) {
    logger.error("could not highlight code:", result.toString().toStdString());
    return std::nullopt;
  }
  const QString html = value.toString();
  if (html.isEmpty()) return std::nullopt;
  SpanStreamResult styled = styledTextFromHTML(toView(html), theme);
  if (auto* error = std::get_if<SpanStreamError>(&styled)) {
    logger.error(error->message.c_str(), error->detail);
    return std::nullopt;
  }
  return std::get<StyledText>(std::move(styled));
}

HighlightJS::HighlightJS(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}

HighlightJS::~HighlightJS() {
  Impl* impl = impl_.get();
  impl->queue->schedule([impl] { impl->tearDown(); });
  impl->queue.reset();
}

std::string HighlightJS::bundledScriptPath() {
  return ":/svgfigurer/highlight.min.js";
}

std::shared_ptr<HighlightJS> HighlightJS::load(Options options) {
  CoreS::Logger& logger = options.logger ? *options.logger : CoreS::defaultLogger();
  const QString path = QString::fromStdString(options.scriptPath.value_or(bundledScriptPath()));
  if (!QFile::exists(path)) {
    logger.log("highlight.min.js not available, no code highlighting");
    return nullptr;
  }
  auto impl = std::make_unique<Impl>(
      logger, options.mainQueue ? std::move(options.mainQueue) : mainThreadExecutor());
  Impl* raw = impl.get();
  std::promise<bool> ready;
  raw->queue->schedule([raw, &ready, path] {
    const bool ok = raw->setUp(path);
    if (!ok) raw->tearDown();
    ready.set_value(ok);
  });
  if (!ready.get_future().get()) return nullptr;
  raw->queue->schedule([raw] { raw->listLanguages(); });
  return std::make_shared<HighlightJS>(std::move(impl));
}

std::shared_ptr<HighlightJS> HighlightJS::shared() {
  // Never destroyed: the engine must not outlive the application object at exit.
  static auto* instance = new std::shared_ptr<HighlightJS>(load({}));
  return *instance;
}

std::shared_ptr<WorkItem> HighlightJS::highlight(std::u16string text,
                                                 std::optional<std::string> language,
                                                 std::shared_ptr<const HighlightJSTheme> theme,
                                                 Executor completionQueue, Completion completion) {
  auto item = std::make_shared<WorkItem>();
  if (!theme) theme = HighlightJSTheme::light();
  if (!completionQueue) completionQueue = inlineExecutor();
  Impl* impl = impl_.get();
  impl->queue->schedule([impl, item, text = std::move(text), language = std::move(language),
                         theme = std::move(theme), completionQueue = std::move(completionQueue),
                         completion = std::move(completion)]() mutable {
    if (item->isCancelled()) return;
    std::optional<StyledText> result = impl->run(text, language, *theme);
    completionQueue([completion = std::move(completion), result = std::move(result)]() mutable {
      if (completion) completion(std::move(result));
    });
  });
  return item;
}

std::optional<StyledText> HighlightJS::highlightAndWait(
    std::u16string text, std::optional<std::string> language,
    std::shared_ptr<const HighlightJSTheme> theme) {
  std::promise<std::optional<StyledText>> promise;
  auto future = promise.get_future();
  highlight(std::move(text), std::move(language), std::move(theme), inlineExecutor(),
            [&promise](std::optional<StyledText> result) { promise.set_value(std::move(result)); });
  return future.get();
}

std::set<std::string> HighlightJS::languages() const {
  std::lock_guard lock(impl_->languages->mutex);
  return impl_->languages->names;
}

void HighlightJS::waitUntilIdle() {
  if (impl_->queue->isCurrentThread()) return;
  std::promise<void> done;
  impl_->queue->schedule([&done] { done.set_value(); });
  done.get_future().wait();
}

}  // namespace Highlight
