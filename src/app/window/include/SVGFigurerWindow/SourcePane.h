// The generated-source pane: the source editor, or one of the texts that stand in for it
// while there is nothing to edit, and under it the rebuild's diagnostics.
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLabel;
class QListWidget;
class QStackedLayout;
class QToolButton;

namespace SVGFigurerWindow {

// Which text covers the editor, by precedence: a failed parse, an empty source, a rebuild in
// progress; otherwise none.
enum class SourceOverlay { none, couldNotParse, couldNotGenerate, loading };
SourceOverlay sourceOverlay(bool rebuildFailed, bool swiftIsEmpty, bool isRebuilding);
// The text shown for an overlay; empty for `none`.
QString overlayText(SourceOverlay overlay);

class SourcePane : public QWidget {
  Q_OBJECT

 public:
  SourcePane(QWidget* editor, QWidget* parent = nullptr);

  void setOverlay(SourceOverlay overlay);
  SourceOverlay overlay() const { return overlay_; }
  QString visibleOverlayText() const;

  // The report lines of the last rebuild.
  void setIssues(const std::vector<std::string>& lines);
  int issueCount() const;
  bool issuesExpanded() const;
  void setIssuesExpanded(bool expanded);

 Q_SIGNALS:
  void issueCountChanged(int count);

 private:
  void updateIssuesHeader();

  QStackedLayout* stack_;
  QLabel* overlayLabel_;
  QToolButton* issuesHeader_;
  QListWidget* issuesList_;
  SourceOverlay overlay_ = SourceOverlay::none;
};

}  // namespace SVGFigurerWindow
