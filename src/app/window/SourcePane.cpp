#include "SVGFigurerWindow/SourcePane.h"

#include <QLabel>
#include <QListWidget>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace SVGFigurerWindow {

SourceOverlay sourceOverlay(bool rebuildFailed, bool swiftIsEmpty, bool isRebuilding) {
  if (rebuildFailed) return SourceOverlay::couldNotParse;
  if (swiftIsEmpty) return SourceOverlay::couldNotGenerate;
  if (isRebuilding) return SourceOverlay::loading;
  return SourceOverlay::none;
}

QString overlayText(SourceOverlay overlay) {
  switch (overlay) {
    case SourceOverlay::couldNotParse:
      return QStringLiteral("Could not parse SVG?");
    case SourceOverlay::couldNotGenerate:
      return QStringLiteral("Could not generate Swift?");
    case SourceOverlay::loading:
      return QStringLiteral("Loading ...");
    case SourceOverlay::none:
      break;
  }
  return {};
}

SourcePane::SourcePane(QWidget* editor, QWidget* parent) : QWidget(parent) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);

  auto* stackHolder = new QWidget(this);
  stack_ = new QStackedLayout(stackHolder);
  stack_->addWidget(editor);
  overlayLabel_ = new QLabel(stackHolder);
  overlayLabel_->setObjectName(QStringLiteral("sourceOverlay"));
  overlayLabel_->setAlignment(Qt::AlignCenter);
  QFont large = overlayLabel_->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  overlayLabel_->setFont(large);
  stack_->addWidget(overlayLabel_);
  column->addWidget(stackHolder, 1);

  issuesHeader_ = new QToolButton(this);
  issuesHeader_->setObjectName(QStringLiteral("issuesHeader"));
  issuesHeader_->setCheckable(true);
  issuesHeader_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  issuesHeader_->setAutoRaise(true);
  issuesHeader_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  column->addWidget(issuesHeader_);

  issuesList_ = new QListWidget(this);
  issuesList_->setObjectName(QStringLiteral("issuesList"));
  issuesList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  issuesList_->setMaximumHeight(160);
  issuesList_->setVisible(false);
  column->addWidget(issuesList_);

  connect(issuesHeader_, &QToolButton::toggled, this, &SourcePane::setIssuesExpanded);
  updateIssuesHeader();
}

void SourcePane::setOverlay(SourceOverlay overlay) {
  if (overlay == overlay_) return;
  overlay_ = overlay;
  overlayLabel_->setText(overlayText(overlay));
  stack_->setCurrentIndex(overlay == SourceOverlay::none ? 0 : 1);
}

QString SourcePane::visibleOverlayText() const {
  return stack_->currentIndex() == 1 ? overlayLabel_->text() : QString();
}

void SourcePane::setIssues(const std::vector<std::string>& lines) {
  const int before = issueCount();
  issuesList_->clear();
  for (const std::string& line : lines) issuesList_->addItem(QString::fromStdString(line));
  updateIssuesHeader();
  if (before != issueCount()) Q_EMIT issueCountChanged(issueCount());
}

int SourcePane::issueCount() const { return issuesList_->count(); }

bool SourcePane::issuesExpanded() const { return issuesHeader_->isChecked(); }

void SourcePane::setIssuesExpanded(bool expanded) {
  if (issuesHeader_->isChecked() != expanded) issuesHeader_->setChecked(expanded);
  issuesList_->setVisible(expanded);
  updateIssuesHeader();
}

void SourcePane::updateIssuesHeader() {
  const int count = issueCount();
  issuesHeader_->setArrowType(issuesExpanded() ? Qt::DownArrow : Qt::RightArrow);
  issuesHeader_->setText(count == 0 ? tr("Issues: none")
                                    : (count == 1 ? tr("Issues: 1") : tr("Issues: %1").arg(count)));
}

}  // namespace SVGFigurerWindow
