// What a drop on the window carries, reduced to the one thing the window takes: SVG bytes,
// from an .svg file or from text. Anything else is refused without a word.
#pragma once

#include <QByteArray>
#include <optional>
#include <string>

class QMimeData;

namespace SVGFigurerWindow {

// Whether the drag may be dropped at all: an .svg file, SVG data or plain text.
bool acceptsDrop(const QMimeData& data);
// The bytes of the first acceptable item; nothing for a refused drop or an unreadable file.
std::optional<QByteArray> droppedBytes(const QMimeData& data);
// The bytes as text, when they are valid UTF-8.
std::optional<std::string> decodeDroppedText(const QByteArray& bytes);

}  // namespace SVGFigurerWindow
