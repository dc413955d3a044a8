#include "SVGConverter/CommentText.h"

namespace SVGConverter {

bool breaksBlockComment(std::string_view text) {
  int depth = 1;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] == '/' && text[i + 1] == '*') {
      ++depth;
      ++i;
    } else if (text[i] == '*' && text[i + 1] == '/') {
      if (--depth == 0) return true;
      ++i;
    }
  }
  return depth != 1;
}

std::string commentSafeText(std::string_view text) {
  std::string safe;
  safe.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    safe += text[i];
    if (i + 1 < text.size() &&
        ((text[i] == '/' && text[i + 1] == '*') || (text[i] == '*' && text[i + 1] == '/'))) {
      safe += ' ';
    }
  }
  return safe;
}

}  // namespace SVGConverter
