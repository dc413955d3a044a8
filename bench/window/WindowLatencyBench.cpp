// Keystroke to updated window, measured on the real window on the offscreen platform: one
// character typed into the SVG editor of a 100 KB document runs the whole rebuild, the source
// editor's update (about 1 MB of generated text) and the preview's reload before the key
// event returns. Highlighting arrives afterwards; its main-thread share is measured apart.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <vector>

#include "BenchSupport.h"
#include "FigurerUtilities/CodeEditor.h"
#include "FigurerUtilities/SVGWebView.h"
#include "Highlight/HighlightJS.h"
#include "SVGFigurerApp/SVGFigurerApp.h"
#include "SVGFigurerWindow/DocumentWindow.h"
#include "SVGFigurerWindow/WindowManager.h"
#include "SyntheticSVG.h"

namespace {

using namespace SVGFigurerWindow;

using bench::SilentLogger;

double percentile(std::vector<double> values, double fraction) {
  if (values.empty()) return 0;
  std::sort(values.begin(), values.end());
  const auto index = static_cast<std::size_t>(fraction * static_cast<double>(values.size() - 1));
  return values[index];
}

void BM_Window_KeystrokeOn100KBSVG(benchmark::State& state) {
  SilentLogger log;
  SVGFigurerApp::ConfigurationDefaults defaults(
      SVGFigurerApp::DefaultsStore(std::filesystem::temp_directory_path() / "svgfigurer-bench"),
      log);
  SVGFigurerApp::PendingDocumentQueue pending;
  pending.append(SVGFigurerApp::makeSnapshot(bench::iconSetSVG(), std::nullopt,
                                             defaults.defaultConfiguration()));
  WindowDialogs dialogs = WindowDialogs::standard();
  dialogs.askToSaveChanges = [](QWidget*, const QString&) { return UnsavedChangesChoice::discard; };
  WindowManager manager({&log, &defaults, &pending, {}}, dialogs, Highlight::HighlightJS::shared());
  DocumentWindow* window = manager.newDocument();
  // Reports go to the window only: standard output would time the terminal.
  window->document().setSVGString(bench::iconSetSVG() + " ");
  QApplication::processEvents();

  auto& editor = window->svgEditor();
  QTextCursor cursor = editor.textCursor();
  cursor.setPosition(editor.document()->characterCount() / 2);
  editor.setTextCursor(cursor);

  std::vector<double> keystrokes;
  std::vector<double> afterwards;
  bool forward = true;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    // A blank, then its deletion: the document alternates between two texts that both parse.
    QTest::keyClick(&editor, forward ? Qt::Key_Space : Qt::Key_Backspace);
    const auto typed = std::chrono::steady_clock::now();
    forward = !forward;
    QApplication::processEvents();
    const auto settled = std::chrono::steady_clock::now();
    keystrokes.push_back(std::chrono::duration<double, std::milli>(typed - start).count());
    afterwards.push_back(std::chrono::duration<double, std::milli>(settled - typed).count());
  }
  state.counters["p50_ms"] = percentile(keystrokes, 0.50);
  state.counters["p95_ms"] = percentile(keystrokes, 0.95);
  state.counters["max_ms"] = percentile(keystrokes, 1.0);
  state.counters["events_p95_ms"] = percentile(afterwards, 0.95);
  state.counters["swift_KB"] = static_cast<double>(window->document().swift().size()) / 1024;
  manager.closeAll();
}
BENCHMARK(BM_Window_KeystrokeOn100KBSVG)->Iterations(200)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("QTWEBENGINE_CHROMIUM_FLAGS"))
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--no-sandbox --disable-gpu");
  FigurerUtilities::SVGWebView::registerPreviewScheme();
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
