#include "SVGFigurerApp/SVGFigurerDocument.h"

#include <algorithm>

namespace SVGFigurerApp {

const std::string_view defaultDocumentSVG =
    "<svg xmlns=\"http://www.w3.org/2000/svg\"\n"
    "     viewBox=\"0 0 100 100\">\n"
    "  <rect x=\"10\" y=\"10\"\n"
    "        width=\"80\" height=\"80\"\n"
    "        fill=\"gold\" stroke=\"blue\"\n"
    "        stroke-width=\"4\" />\n"
    "</svg>\n";

DocumentEnvironment DocumentEnvironment::shared() {
  return DocumentEnvironment{&CoreS::defaultLogger(),
                             &ConfigurationDefaults::shared(),
                             &PendingDocumentQueue::shared(),
                             {}};
}

SVGFigurerDocument::SVGFigurerDocument(DocumentEnvironment environment)
    : SVGFigurerDocument(std::string(defaultDocumentSVG), std::string(), std::move(environment)) {}

SVGFigurerDocument::SVGFigurerDocument(std::string svg, std::string swift,
                                       DocumentEnvironment environment)
    : log_(environment.log),
      environment_(std::move(environment)),
      config_(environment_.defaults->defaultConfiguration()),
      svgString_(std::move(svg)),
      swift_(std::move(swift)) {
  auto pending = environment_.pending->takeFront();
  if (!pending) {
    if (!svgString_.empty() && swift_.empty()) rebuild();
    return;
  }
  // The record's settings are not adopted: the document keeps the default ones, and its text
  // is the record's, without a header comment.
  setSVGString(std::move(pending->svg));
  write(generatedSwift_, pending->swift, Property::generatedSwift);
  write(swift_, std::move(pending->swift), Property::swift);
}

SVGFigurerDocument::SVGFigurerDocument(Opened, Snapshot snapshot, DocumentEnvironment environment)
    : log_(environment.log),
      environment_(std::move(environment)),
      config_(environment_.defaults->defaultConfiguration()),
      svgString_(std::move(snapshot.svg)),
      swift_(std::move(snapshot.swift)) {
  // A fresh generation decides whether the stored source counts as edited; the rebuild rule
  // does not run, so the stored source is kept whatever it holds.
  auto generated = generateSwift(svgString_, config_, *log_, environment_.report);
  generatedSwift_ = std::move(generated.text);
  rebuildFailed_ = generated.failed;
}

SVGFigurerDocument::OpenResult SVGFigurerDocument::open(const FileReadRequest& request,
                                                        DocumentEnvironment environment) {
  auto read = readSnapshot(request, environment.defaults->defaultConfiguration(), *environment.log,
                           environment.report);
  if (auto* error = std::get_if<FileReadError>(&read)) return *error;
  return std::unique_ptr<SVGFigurerDocument>(new SVGFigurerDocument(
      Opened{}, std::move(std::get<Snapshot>(read)), std::move(environment)));
}

void SVGFigurerDocument::setSVGString(std::string svg) {
  const std::string old = svgString_;
  write(svgString_, std::move(svg), Property::svgString);
  if (svgString_ != old) rebuild();
}

void SVGFigurerDocument::setConfig(const SVGFigurerConfiguration& config) {
  const SVGFigurerConfiguration old = config_;
  write(config_, config, Property::config);
  if (config_ == old) return;
  rebuild();
  environment_.defaults->setDefaultConfiguration(config_);
}

void SVGFigurerDocument::setSwift(std::string swift) {
  write(swift_, std::move(swift), Property::swift);
}

void SVGFigurerDocument::applyGeneratedSwift(UndoRegistrar* undo) {
  std::string old = swift_;
  write(swift_, std::string(generatedSwift_), Property::swift);
  if (undo == nullptr) return;
  undo->registerUndo(
      *this, [old = std::move(old)](SVGFigurerDocument& document) { document.setSwift(old); });
}

void SVGFigurerDocument::rebuild() {
  const bool unedited = swift_ == generatedSwift_;
  write(isRebuilding_, true, Property::isRebuilding);
  write(generatedSwift_, std::string(), Property::generatedSwift);
  // Copies: an observer of the writes below may change the document under us.
  const std::string svg = svgString_;
  const SVGFigurerConfiguration config = config_;
  auto generated = generateSwift(svg, config, *log_, environment_.report);
  write(generatedSwift_, std::move(generated.text), Property::generatedSwift);
  write(rebuildFailed_, generated.failed, Property::rebuildFailed);
  if (unedited) {
    log_->log("Swift was not modified, pushing to instance");
    write(swift_, std::string(generatedSwift_), Property::swift);
  } else {
    log_->log("Swift was modified, do not auto-apply new generated content");
  }
  write(isRebuilding_, false, Property::isRebuilding);
}

SVGFigurerDocument::ObserverID SVGFigurerDocument::addObserver(Observer observer) {
  const ObserverID id = nextObserverID_++;
  observers_.push_back({id, std::make_shared<Observer>(std::move(observer))});
  return id;
}

void SVGFigurerDocument::removeObserver(ObserverID id) {
  std::erase_if(observers_, [id](const ObserverEntry& entry) { return entry.id == id; });
}

void SVGFigurerDocument::publish(Property property) {
  if (observers_.empty()) return;
  // Observers may add or remove observers while being told; tell the ones present now.
  std::vector<std::shared_ptr<Observer>> current;
  current.reserve(observers_.size());
  for (const auto& entry : observers_) current.push_back(entry.observer);
  for (const auto& observer : current) (*observer)(*this, property);
}

}  // namespace SVGFigurerApp
