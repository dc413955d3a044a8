// Every question the window asks the user, behind one seam: the program uses Qt's dialogs,
// tests answer at once without a modal loop.
#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace SVGFigurerWindow {

enum class UnsavedChangesChoice { save, discard, cancel };

struct WindowDialogs {
  // The document named `name` has unsaved changes: save, discard or cancel the close?
  std::function<UnsavedChangesChoice(QWidget* parent, const QString& name)> askToSaveChanges;
  // A file to open; empty when cancelled.
  std::function<QString(QWidget* parent)> openFileName;
  // Where to save a document, or to export source text; empty when cancelled.
  std::function<QString(QWidget* parent, const QString& suggestedPath)> saveFileName;
  std::function<QString(QWidget* parent, const QString& suggestedPath)> exportFileName;
  std::function<std::optional<QFont>(QWidget* parent, const QFont& current)> chooseFont;
  std::function<void(QWidget* parent, const QString& title, const QString& text)> showError;
  std::function<void()> beep;
  // Opens an address in the user's browser.
  std::function<void(const QString& url)> openURL;

  // Qt's standard dialogs, the system beep and the desktop's URL handler.
  static WindowDialogs standard();
};

}  // namespace SVGFigurerWindow
