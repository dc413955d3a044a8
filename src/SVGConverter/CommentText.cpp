#include "SVGConverter/CommentText.h"

namespace SVGConverter {

// Read left to right, each mark taking its two characters. Every mark holds a '*', so the scan
// jumps from star to star (a vectorised search) and looks at the characters around each.
bool breaksBlockComment(std::string_view text) {
  int depth = 1;
  std::size_t next = 0;  // the first character no mark has taken
  for (std::size_t star; (star = text.find('*', next)) != std::string_view::npos;) {
    if (star > next && text[star - 1] == '/') {
      ++depth;
      next = star + 1;
    } else if (star + 1 < text.size() && text[star + 1] == '/') {
      if (--depth == 0) return true;
      next = star + 2;
    } else {
      next = star + 1;
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
