#include "SVGFigurerApp/PendingDocumentQueue.h"

namespace SVGFigurerApp {

PendingDocumentQueue& PendingDocumentQueue::shared() {
  static PendingDocumentQueue queue;
  return queue;
}

std::optional<Snapshot> PendingDocumentQueue::takeFront() {
  if (records_.empty()) return std::nullopt;
  Snapshot front = std::move(records_.front());
  records_.pop_front();
  return front;
}

}  // namespace SVGFigurerApp
