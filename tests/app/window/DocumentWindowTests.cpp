// The real window, driven as a person would: typing, clicking, dropping, saving.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QUrl>

#include "FigurerUtilities/CodeEditor.h"
#include "FigurerUtilities/SVGPreview.h"
#include "FigurerUtilities/SVGWebView.h"
#include "SVGFigurerApp/ExampleCatalogue.h"
#include "SVGFigurerWindow/DocumentWindow.h"
#include "SVGFigurerWindow/SourcePane.h"
#include "SVGFigurerWindow/WindowManager.h"
#include "SVGFigurerWindow/WindowPreferences.h"
#include "app/AppTestSupport.h"

namespace {

using namespace SVGFigurerWindow;
using SVGFigurerApp::SVGFigurerDocument;

class DocumentWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    WindowDialogs dialogs;
    dialogs.askToSaveChanges = [this](QWidget*, const QString&) { return closeAnswer; };
    dialogs.openFileName = [this](QWidget*) { return fileAnswer; };
    dialogs.saveFileName =
        dialogs.exportFileName = [this](QWidget*, const QString&) { return fileAnswer; };
    dialogs.chooseFont = [](QWidget*, const QFont&) { return std::optional<QFont>(); };
    dialogs.showError = [this](QWidget*, const QString&, const QString& text) { errors << text; };
    dialogs.beep = [this] { ++beeps; };
    dialogs.openURL = [this](const QString& url) { openedURLs << url; };
    manager = std::make_unique<WindowManager>(
        SVGFigurerApp::DocumentEnvironment{&fixture.log, &fixture.defaults, &fixture.pending, {}},
        std::move(dialogs), nullptr);
  }
  void TearDown() override {
    closeAnswer = UnsavedChangesChoice::discard;
    manager->closeAll();
  }

  std::filesystem::path path(const std::string& name) const { return fixture.folder.path() / name; }
  QString qpath(const std::string& name) const {
    return QString::fromStdString(path(name).string());
  }

  AppTest::Fixture fixture;
  std::unique_ptr<WindowManager> manager;
  UnsavedChangesChoice closeAnswer = UnsavedChangesChoice::cancel;
  QString fileAnswer;
  QStringList errors;
  QStringList openedURLs;
  int beeps = 0;
};

void typeAt(FigurerUtilities::CodeEditor& editor, int position, const QString& text) {
  QTextCursor cursor = editor.textCursor();
  cursor.setPosition(position);
  editor.setTextCursor(cursor);
  QTest::keyClicks(&editor, text);
}

TEST_F(DocumentWindowTest, TypingSVGUpdatesSourceAndPreviewAtEachKeystroke) {
  DocumentWindow* window = manager->newDocument();
  SVGFigurerDocument& document = window->document();
  const std::string before = document.swift();
  const int end = static_cast<int>(QString::fromStdString(document.svgString()).indexOf("</svg>"));
  typeAt(window->svgEditor(), end, "<circle r=\"5\"/>");

  EXPECT_NE(document.svgString().find("<circle r=\"5\"/>"), std::string::npos);
  EXPECT_NE(document.swift(), before);
  EXPECT_FALSE(document.isEdited());
  EXPECT_EQ(window->swiftEditor().source(), document.swift());
  EXPECT_EQ(window->preview().page(), FigurerUtilities::previewPage(document.svgString()));
  EXPECT_FALSE(window->isBannerVisible());
}

TEST_F(DocumentWindowTest, EditedSourceShowsBannerAndDroppingEditsUndoesAndRedoes) {
  DocumentWindow* window = manager->newDocument();
  SVGFigurerDocument& document = window->document();
  typeAt(window->swiftEditor(), 0, "// mine ");
  const std::string edited = document.swift();
  ASSERT_TRUE(document.isEdited());
  EXPECT_TRUE(window->isBannerVisible());
  EXPECT_TRUE(window->isDropChangesAvailable());

  // An SVG change now reaches the generated text only.
  document.setSVGString(document.svgString() + " ");
  EXPECT_EQ(document.swift(), edited);

  QTest::mouseClick(window->findChild<QPushButton*>("applyGeneratedSwift"), Qt::LeftButton);
  EXPECT_FALSE(window->isBannerVisible());
  EXPECT_FALSE(window->isDropChangesAvailable());
  EXPECT_EQ(window->swiftEditor().source(), document.generatedSwift());

  window->action("editUndo")->trigger();
  EXPECT_EQ(document.swift(), edited);
  EXPECT_TRUE(window->isBannerVisible());
  window->action("editRedo")->trigger();
  EXPECT_FALSE(document.isEdited());
}

TEST_F(DocumentWindowTest, OverlaysAndReportLinesFollowTheDocument) {
  DocumentWindow* window = manager->newDocument();
  SVGFigurerDocument& document = window->document();
  QString duringRebuild;
  document.addObserver([&](const SVGFigurerDocument& d, SVGFigurerDocument::Property p) {
    if (p == SVGFigurerDocument::Property::isRebuilding && d.isRebuilding())
      duringRebuild = window->sourcePane().visibleOverlayText();
  });

  document.setSVGString("this is not SVG");
  EXPECT_EQ(duringRebuild, "Loading ...");
  EXPECT_EQ(window->sourcePane().visibleOverlayText(), "Could not parse SVG?");
  document.setSVGString(std::string(SVGFigurerApp::defaultDocumentSVG));
  EXPECT_EQ(window->sourcePane().visibleOverlayText(), "");
  window->swiftEditor().selectAll();
  QTest::keyClick(&window->swiftEditor(), Qt::Key_Delete);
  EXPECT_EQ(document.swift(), "");
  EXPECT_EQ(window->sourcePane().visibleOverlayText(), "Could not generate Swift?");

  // The report lines of each rebuild are listed, and only those.
  document.setSVGString(
      "<svg xmlns=\"http://www.w3.org/2000/svg\"><foo/><path d=\"M 0 0 L\"/></svg>");
  EXPECT_GE(window->sourcePane().issueCount(), 1);
  document.setSVGString(std::string(SVGFigurerApp::defaultDocumentSVG));
  EXPECT_EQ(window->sourcePane().issueCount(), 0);
}

TEST_F(DocumentWindowTest, SettingsControlsRebuildAndSteppersStopAtTheirLimits) {
  DocumentWindow* window = manager->newDocument();
  auto config = window->document().config();
  config.maximumFractionDigits = 13;
  window->document().setConfig(config);
  QTest::mouseClick(window->findChild<QAbstractButton*>("maximumFractionDigitsStepUp"),
                    Qt::LeftButton);
  EXPECT_EQ(beeps, 1);
  EXPECT_EQ(window->document().config().maximumFractionDigits, 13);

  QTest::mouseClick(window->findChild<QAbstractButton*>("maximumFractionDigitsStepDown"),
                    Qt::LeftButton);
  EXPECT_EQ(window->document().config().maximumFractionDigits, 12);
  // The settings of the document last touched become the default for new documents.
  EXPECT_EQ(fixture.defaults.defaultConfiguration().maximumFractionDigits, 12);
}

TEST_F(DocumentWindowTest, SamplesGoIntoTheFocusedDocumentOrANewOne) {
  const auto ellipse = *SVGFigurerApp::exampleNamed("Simple Ellipse");
  DocumentWindow* window = manager->newDocument();
  window->action("sampleSimple Ellipse")->trigger();
  EXPECT_EQ(window->document().svgString(), ellipse.svg);
  EXPECT_EQ(manager->windows().size(), 1u);

  manager->pickSample(ellipse.svg, nullptr);
  ASSERT_EQ(manager->windows().size(), 2u);
  EXPECT_EQ(manager->windows().back()->document().svgString(), ellipse.svg);
  EXPECT_TRUE(fixture.pending.empty());

  window->action("sampleOpenIconMonstr")->trigger();
  EXPECT_EQ(openedURLs, QStringList{iconMonstrURL});
}

TEST_F(DocumentWindowTest, DropsTakeSVGFilesAndTextAndRefuseTheRest) {
  DocumentWindow* window = manager->newDocument();
  SVGFigurerDocument& document = window->document();
  const std::string ellipse(SVGFigurerApp::exampleNamed("Simple Ellipse")->svg);
  AppTest::writeFile(path("drop.svg"), ellipse);

  QMimeData file, notUTF8, other, text;
  file.setUrls({QUrl::fromLocalFile(qpath("drop.svg"))});
  window->handleDrop(file);
  EXPECT_EQ(document.svgString(), ellipse);
  notUTF8.setData("image/svg+xml", QByteArray("<svg>\xff\xfe</svg>"));
  window->handleDrop(notUTF8);
  other.setData("application/x-other", "<svg/>");
  window->handleDrop(other);
  EXPECT_EQ(document.svgString(), ellipse);
  text.setText("<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
  window->handleDrop(text);
  EXPECT_EQ(document.svgString(), "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
}

TEST_F(DocumentWindowTest, LayoutFlipPersistsAndFollowsTheStore) {
  DocumentWindow* window = manager->newDocument();
  EXPECT_TRUE(window->stacksVertically());
  window->action("toolbarLayout")->trigger();
  EXPECT_FALSE(window->stacksVertically());
  EXPECT_FALSE(useVerticalUI(fixture.store()));
  EXPECT_FALSE(manager->newDocument()->stacksVertically());

  // Another process flips it back: the folder watch brings it here.
  manager->startObservingStore();
  SVGFigurerApp::DefaultsStore elsewhere(fixture.store().folder());
  setUseVerticalUI(elsewhere, true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->stacksVertically(); }, 5000));

  window->action("toolbarSidebar")->trigger();
  EXPECT_FALSE(window->isSidebarVisible());
}

TEST_F(DocumentWindowTest, SaveReopenExportAndClosePrompts) {
  DocumentWindow* window = manager->newDocument();
  typeAt(window->swiftEditor(), 0, "// kept ");
  EXPECT_TRUE(window->hasUnsavedChanges());
  EXPECT_FALSE(window->close());  // cancelled
  fileAnswer = qpath("saved");
  window->action("fileSave")->trigger();
  EXPECT_FALSE(window->hasUnsavedChanges());
  EXPECT_EQ(window->origin().documentPath, fileAnswer + ".svgfigurer");
  EXPECT_TRUE(window->windowTitle().startsWith("saved.svgfigurer"));
  const auto snapshot = window->document().snapshot();

  fileAnswer = qpath("View");
  ASSERT_TRUE(window->exportSwift());
  EXPECT_EQ(AppTest::readFile(path("View.swift")), snapshot.swift);
  EXPECT_TRUE(window->close());

  DocumentWindow* reopened = manager->openFile(qpath("saved.svgfigurer"));
  ASSERT_NE(reopened, nullptr);
  EXPECT_EQ(reopened->document().svgString(), snapshot.svg);
  EXPECT_EQ(reopened->document().swift(), snapshot.swift);
  EXPECT_EQ(manager->recentDocuments().value(0), reopened->origin().documentPath);
}

TEST_F(DocumentWindowTest, ImportedSVGIsSavedAsANewDocumentNeverOverTheSVG) {
  const std::string ellipse(SVGFigurerApp::exampleNamed("Simple Ellipse")->svg);
  AppTest::writeFile(path("art.svg"), ellipse);
  DocumentWindow* window = manager->openFile(qpath("art.svg"));
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->origin().documentPath.isEmpty());
  fileAnswer = qpath("art.svgfigurer");
  window->action("fileSave")->trigger();
  EXPECT_EQ(AppTest::readFile(path("art.svg")), ellipse);
  EXPECT_EQ(window->origin().documentPath, fileAnswer);

  EXPECT_EQ(manager->openFile(qpath("missing.svgfigurer")), nullptr);
  EXPECT_EQ(errors.size(), 1);
}

TEST_F(DocumentWindowTest, FontStepsAndCopy) {
  DocumentWindow* window = manager->newDocument();
  window->setFocus();
  const qreal size = window->editorFont().pointSizeF();
  window->action("viewBigger")->trigger();
  EXPECT_EQ(window->editorFont().pointSizeF(), size + 1);
  EXPECT_EQ(window->swiftEditor().font().pointSizeF(), size + 1);
  window->action("viewSmaller")->trigger();
  window->action("viewSmaller")->trigger();
  EXPECT_EQ(window->svgEditor().font().pointSizeF(), size - 1);

  window->action("toolbarCopy")->trigger();
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), window->document().swift());
}

}  // namespace
