// The window's own preferences in the defaults store, beside the settings record: the
// layout of the editors, and the recently used documents.
#pragma once

#include <QStringList>

#include "SVGFigurerApp/DefaultsStore.h"

namespace SVGFigurerWindow {

inline constexpr std::string_view useVerticalUIKey = "UseVerticalUI";
inline constexpr std::string_view recentDocumentsKey = "RecentDocuments";
inline constexpr int maximumRecentDocuments = 10;

// True (the default) stacks the editors over each other; false puts them side by side.
bool useVerticalUI(const SVGFigurerApp::DefaultsStore& store);
void setUseVerticalUI(SVGFigurerApp::DefaultsStore& store, bool value);

// Most recent first, at most `maximumRecentDocuments`.
QStringList recentDocuments(const SVGFigurerApp::DefaultsStore& store);
void noteRecentDocument(SVGFigurerApp::DefaultsStore& store, const QString& path);
void clearRecentDocuments(SVGFigurerApp::DefaultsStore& store);

}  // namespace SVGFigurerWindow
