// The web engine configuration of the previews, created once per process: an off-the-record
// profile of its own with script, plugins, storage and outside access switched off, the page
// server and the request guard.
#pragma once

class QWebEngineProfile;

namespace FigurerUtilities {

class PreviewSchemeHandler;
class PreviewRequestGuard;

struct PreviewEngine {
  QWebEngineProfile* profile;
  PreviewSchemeHandler* pages;
  PreviewRequestGuard* guard;
};

// Needs the QApplication; the engine lives as long as it does.
PreviewEngine& previewEngine();
// The engine if it was created and still lives, without creating it.
PreviewEngine* existingPreviewEngine();

}  // namespace FigurerUtilities
