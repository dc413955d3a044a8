// Content waiting for the next new document. Opening an untitled document takes no argument,
// so whoever wants one with given content (the service, a file handed to the app, the sample
// menu) appends a snapshot here first, and the document constructor takes the front one.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>

#include "SVGFigurerApp/Snapshot.h"

namespace SVGFigurerApp {

// Confined to the main thread, like the documents that read it.
class PendingDocumentQueue {
 public:
  static PendingDocumentQueue& shared();

  void append(Snapshot snapshot) { records_.push_back(std::move(snapshot)); }
  std::optional<Snapshot> takeFront();
  std::size_t size() const { return records_.size(); }
  bool empty() const { return records_.empty(); }

 private:
  std::deque<Snapshot> records_;
};

}  // namespace SVGFigurerApp
