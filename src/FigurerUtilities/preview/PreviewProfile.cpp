#include "PreviewProfile.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include "CoreS/Logger.h"
#include "PreviewRequestGuard.h"
#include "PreviewScheme.h"

namespace FigurerUtilities {
namespace {

void lockDown(QWebEngineSettings& settings) {
  using S = QWebEngineSettings;
  for (S::WebAttribute off :
       {S::JavascriptEnabled, S::JavascriptCanOpenWindows, S::JavascriptCanAccessClipboard,
        S::JavascriptCanPaste, S::LocalContentCanAccessFileUrls, S::LocalContentCanAccessRemoteUrls,
        S::PluginsEnabled, S::LocalStorageEnabled, S::HyperlinkAuditingEnabled, S::ErrorPageEnabled,
        S::FullScreenSupportEnabled, S::ScreenCaptureEnabled, S::WebGLEnabled,
        S::AutoLoadIconsForPage, S::TouchIconsEnabled, S::AllowRunningInsecureContent,
        S::AllowGeolocationOnInsecureOrigins, S::AllowWindowActivationFromJavaScript,
        S::DnsPrefetchEnabled, S::PdfViewerEnabled, S::NavigateOnDropEnabled,
        S::LinksIncludedInFocusChain,
        // Loading on every keystroke must not pull the focus away from the editor.
        S::FocusOnNavigationEnabled}) {
    settings.setAttribute(off, false);
  }
  settings.setAttribute(S::WebRTCPublicInterfacesOnly, true);
  settings.setUnknownUrlSchemePolicy(S::DisallowUnknownUrlSchemes);
}

QPointer<QWebEngineProfile> profile;
PreviewEngine engine{};

}  // namespace

PreviewEngine* existingPreviewEngine() {
  return profile ? &engine : nullptr;
}

PreviewEngine& previewEngine() {
  if (profile) return engine;

  if (!previewURLSchemeRegistered()) {
    CoreS::defaultLogger().error(
        "preview scheme not registered before the application was created; previews stay empty");
  }
  // No storage name: off the record, nothing written to disk.
  profile = new QWebEngineProfile(QCoreApplication::instance());
  profile->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
  profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
  profile->setSpellCheckEnabled(false);
  lockDown(*profile->settings());
  auto* pages = new PreviewSchemeHandler(profile);
  profile->installUrlSchemeHandler(kPreviewScheme, pages);
  auto* guard = new PreviewRequestGuard(*pages, profile);
  profile->setUrlRequestInterceptor(guard);
  engine = {profile, pages, guard};
  return engine;
}

}  // namespace FigurerUtilities
