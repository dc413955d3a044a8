// Bytes that are not valid UTF-8, NUL bytes, and valid but awkward Unicode in the places where
// the engine makes names and string literals from the input.
#include <string>

#include "HostileSupport.h"

namespace {

using Hostile::convert;
using namespace std::string_literals;

// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isValidUTF8(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    const auto byte = static_cast<unsigned char>(text[i]);
    std::size_t length = 0;
    unsigned lowest = 0, value = 0;
    if (byte < 0x80) {
      ++i;
      continue;
    } else if ((byte & 0xE0) == 0xC0) {
      length = 2, lowest = 0x80, value = byte & 0x1F;
    } else if ((byte & 0xF0) == 0xE0) {
      length = 3, lowest = 0x800, value = byte & 0x0F;
    } else if ((byte & 0xF8) == 0xF0) {
      length = 4, lowest = 0x10000, value = byte & 0x07;
    } else {
      return false;
    }
    if (i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k) {
      const auto next = static_cast<unsigned char>(text[i + k]);
      if ((next & 0xC0) != 0x80) return false;
      value = value << 6 | (next & 0x3F);
    }
    if (value < lowest || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) return false;
    i += length;
  }
  return true;
}

struct EncodingCase {
  const char* name;
  std::string text;
  bool converts;
};

class Encoding : public testing::TestWithParam<EncodingCase> {};

TEST_P(Encoding, ConvertsToValidTextOrIsRefused) {
  const auto& row = GetParam();
  // Whole, and fed one byte at a time so that every multi-byte sequence is split.
  for (const std::size_t chunk : {std::size_t{0}, std::size_t{1}}) {
    SCOPED_TRACE("chunk size " + std::to_string(chunk));
    const auto outcome = convert(row.text, {.chunkSize = chunk});
    EXPECT_EQ(outcome.converted(), row.converts) << outcome.allLines();
    if (!outcome.converted()) continue;
    ASSERT_NO_FATAL_FAILURE(Hostile::expectCompleteFile(outcome));
    EXPECT_TRUE(isValidUTF8(outcome.swift)) << outcome.swift;
    for (const auto& line : outcome.lines) EXPECT_TRUE(isValidUTF8(line)) << line;
  }
}

const std::string root = "<svg xmlns=\"http://www.w3.org/2000/svg\">";

// Malformed bytes are an XML error wherever they stand; a document that declares a one-byte
// encoding has no malformed bytes and reaches the engine as valid UTF-8.
const EncodingCase encodingCases[] = {
    {"badByteInElementName",
     root + "<re\xFF"
            "ct width=\"1\"/></svg>",
     false},
    {"badByteInAttributeName", root + "<rect wi\xC3\x28th=\"1\"/></svg>", false},
    {"badByteInAttributeValue", root + "<rect id=\"a\xFE\" width=\"1\"/></svg>", false},
    {"badByteInText",
     root + "<text>ab\x80"
            "cd</text></svg>",
     false},
    {"badByteInStyle", root + "<style>.a{fill:\xC0\xAF}</style></svg>", false},
    {"overlongSlash", root + "<text>\xC0\xAF</text></svg>", false},
    {"surrogate", root + "<text>\xED\xA0\x80</text></svg>", false},
    {"aboveUnicode", root + "<text>\xF4\x90\x80\x80</text></svg>", false},
    {"truncatedAtEnd", root + "<text>x</text></svg>\xE2\x82", false},
    {"badByteInFragment", "<path d=\"M0 0\xFF\"/>", false},
    {"nulInText", root + "<text>a\0b</text></svg>"s, false},
    {"nulInAttribute", root + "<rect id=\"a\0b\"/></svg>"s, false},
    {"nulFirst", "\0<svg/>"s, false},
    {"nulLast", root + "</svg>\0"s, false},
    {"onlyNul", "\0"s, false},
    {"latin1Declared",
     "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + root +
         "<text id=\"caf\xE9\">na\xEFve \xFF</text><rect id=\"\xE9\xE9\" width=\"1\" "
         "height=\"1\"/></svg>",
     true},
    {"utf8ByteOrderMark", "\xEF\xBB\xBF" + root + "<text>\xE2\x82\xAC</text></svg>", true},
    {"fragmentWithByteOrderMark", "\xEF\xBB\xBF<rect id=\"\xC3\xA9\" width=\"2\"/>", true},
    // Names made of characters that cannot start or appear in an identifier.
    {"idsWithoutIdentifierCharacters",
     root + "<g id=\"\xCC\x81\xCC\x81\"><rect id=\"\xF0\x9F\x98\x80\" width=\"1\"/></g>" +
         "<circle id=\"1\xE2\x80\x8B\" r=\"1\"/><path id=\"-\" d=\"M0 0L1 1\"/>" +
         "<ellipse id=\"\xD8\xA7\xD9\x84\" rx=\"1\" ry=\"1\"/></svg>",
     true},
    {"textWithCombiningMarksAndQuotes",
     root + "<text>e\xCC\x81\xCC\x81\xCC\x81 \"\\\" \xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x92\xBB"
            "\r\n\t</text></svg>",
     true},
    {"controlCharacterReference", root + "<text>&#x1;&#x7F;&#x85;</text></svg>", false},
    {"nonCharacterReference", root + "<text>&#xFFFE;</text></svg>", false},
    {"largestCharacterReference", root + "<text>&#x10FFFF;</text></svg>", true},
};

INSTANTIATE_TEST_SUITE_P(Hostile, Encoding, testing::ValuesIn(encodingCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
