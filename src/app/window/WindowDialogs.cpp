#include "SVGFigurerWindow/WindowDialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QUrl>

namespace SVGFigurerWindow {

namespace {

const QString openFilter = QStringLiteral(
    "All readable files (*.svgfigurer *.svg *.swift);;SVGFigurer documents (*.svgfigurer);;"
    "SVG images (*.svg);;Swift source (*.swift)");

}  // namespace

WindowDialogs WindowDialogs::standard() {
  WindowDialogs dialogs;
  dialogs.askToSaveChanges = [](QWidget* parent, const QString& name) {
    QMessageBox box(parent);
    box.setIcon(QMessageBox::Warning);
    box.setText(QObject::tr("Do you want to save the changes made to the document “%1”?").arg(name));
    box.setInformativeText(QObject::tr("Your changes will be lost if you don’t save them."));
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
      case QMessageBox::Save:
        return UnsavedChangesChoice::save;
      case QMessageBox::Discard:
        return UnsavedChangesChoice::discard;
      default:
        return UnsavedChangesChoice::cancel;
    }
  };
  dialogs.openFileName = [](QWidget* parent) {
    return QFileDialog::getOpenFileName(parent, QObject::tr("Open"), QString(), openFilter);
  };
  dialogs.saveFileName = [](QWidget* parent, const QString& suggested) {
    return QFileDialog::getSaveFileName(parent, QObject::tr("Save As"), suggested,
                                        QObject::tr("SVGFigurer documents (*.svgfigurer)"));
  };
  dialogs.exportFileName = [](QWidget* parent, const QString& suggested) {
    return QFileDialog::getSaveFileName(parent, QObject::tr("Export Swift"), suggested,
                                        QObject::tr("Swift source (*.swift)"));
  };
  dialogs.chooseFont = [](QWidget* parent, const QFont& current) -> std::optional<QFont> {
    bool ok = false;
    QFont font = QFontDialog::getFont(&ok, current, parent, QObject::tr("Font"),
                                      QFontDialog::MonospacedFonts);
    if (!ok) return std::nullopt;
    return font;
  };
  dialogs.showError = [](QWidget* parent, const QString& title, const QString& text) {
    QMessageBox::warning(parent, title, text);
  };
  dialogs.beep = [] { QApplication::beep(); };
  dialogs.openURL = [](const QString& url) { QDesktopServices::openUrl(QUrl(url)); };
  return dialogs;
}

}  // namespace SVGFigurerWindow
