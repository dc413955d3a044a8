#include "SVGFigurerWindow/WindowPreferences.h"

#include <nlohmann/json.hpp>

namespace SVGFigurerWindow {

bool useVerticalUI(const SVGFigurerApp::DefaultsStore& store) {
  const auto data = store.data(useVerticalUIKey);
  if (!data) return true;
  return *data != "false";
}

void setUseVerticalUI(SVGFigurerApp::DefaultsStore& store, bool value) {
  store.setData(useVerticalUIKey, value ? "true" : "false");
}

QStringList recentDocuments(const SVGFigurerApp::DefaultsStore& store) {
  QStringList paths;
  const auto data = store.data(recentDocumentsKey);
  if (!data) return paths;
  const auto json = nlohmann::json::parse(*data, nullptr, /*allow_exceptions=*/false);
  if (!json.is_array()) return paths;
  for (const auto& item : json) {
    if (item.is_string() && paths.size() < maximumRecentDocuments)
      paths.append(QString::fromStdString(item.get<std::string>()));
  }
  return paths;
}

namespace {

void storeRecentDocuments(SVGFigurerApp::DefaultsStore& store, const QStringList& paths) {
  auto json = nlohmann::json::array();
  for (const QString& path : paths) json.push_back(path.toStdString());
  store.setData(recentDocumentsKey, json.dump());
}

}  // namespace

void noteRecentDocument(SVGFigurerApp::DefaultsStore& store, const QString& path) {
  QStringList paths = recentDocuments(store);
  paths.removeAll(path);
  paths.prepend(path);
  while (paths.size() > maximumRecentDocuments) paths.removeLast();
  storeRecentDocuments(store, paths);
}

void clearRecentDocuments(SVGFigurerApp::DefaultsStore& store) {
  store.removeData(recentDocumentsKey);
}

}  // namespace SVGFigurerWindow
