// Reading the XML: one expat run gathers the stylesheets, finds the root and records every
// event; the tree is then built from the recording with the stylesheet already parsed. Where
// a fragment's wrapped bytes might not parse like the recording replays, the bytes are read a
// second time instead.
#include <expat.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <deque>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "ElementNames.h"
#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"

namespace SVGParser {

namespace {

struct ExpatDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ExpatDeleter>;

// Creating and freeing an expat parser costs as much as reading a small icon, so each thread
// keeps one for the next document. A run takes it (a run within a run makes its own) and gives
// it back only after small documents, so that a large one's buffers are not kept.
class ParserCache {
 public:
  static ExpatParser take() {
    if (ExpatParser parser = std::move(cached());
        parser && XML_ParserReset(parser.get(), nullptr)) {
      // A reset parser would ask the kernel for a fresh hash salt on every document; one
      // seeded generator per thread keeps the salts unpredictable without that call.
      thread_local std::mt19937_64 salts{std::random_device{}()};
      unsigned long salt = 0;
      while (salt == 0) salt = static_cast<unsigned long>(salts());
      XML_SetHashSalt(parser.get(), salt);
      return parser;
    }
    return ExpatParser(XML_ParserCreate(nullptr));
  }
  static void giveBack(ExpatParser parser, std::size_t bytesRead) {
    if (bytesRead <= keptUpTo) cached() = std::move(parser);
  }

 private:
  static constexpr std::size_t keptUpTo = 256 * 1024;
  static ExpatParser& cached() {
    thread_local ExpatParser parser;
    return parser;
  }
};

// Adapts expat's callbacks to a delegate with start, end and characters. CDATA sections
// reach neither, and an element beyond the depth limit stops the run.
template <class Delegate>
class ExpatRun {
 public:
  ExpatRun(Delegate& delegate, std::size_t maximumDepth)
      : delegate_(delegate), maximumDepth_(maximumDepth) {}

  bool run(std::string_view data, std::size_t chunkSize) {
    ExpatParser parser = ParserCache::take();
    if (!parser) return false;
    parser_ = parser.get();
    const bool ok = parse(data, chunkSize);
    parser_ = nullptr;
    ParserCache::giveBack(std::move(parser), data.size());
    return ok;
  }

  bool tooDeep() const { return tooDeep_; }

 private:
  bool parse(std::string_view data, std::size_t chunkSize) {
    XML_SetUserData(parser_, this);
    XML_SetElementHandler(parser_, &ExpatRun::onStart, &ExpatRun::onEnd);
    XML_SetCharacterDataHandler(parser_, &ExpatRun::onCharacters);
    XML_SetCdataSectionHandler(parser_, &ExpatRun::onCdataStart, &ExpatRun::onCdataEnd);
    if constexpr (requires(Delegate & d) { d.notePrologMarkup(); }) {
      XML_SetXmlDeclHandler(parser_, &ExpatRun::onXmlDeclaration);
      XML_SetStartDoctypeDeclHandler(parser_, &ExpatRun::onDoctype);
    }

    constexpr std::size_t largestChunk = INT_MAX / 2;
    if (chunkSize == 0 || chunkSize > largestChunk) chunkSize = largestChunk;
    std::size_t offset = 0;
    do {
      const std::size_t length = std::min(chunkSize, data.size() - offset);
      const bool last = offset + length == data.size();
      if (XML_Parse(parser_, data.data() + offset, static_cast<int>(length), last) !=
          XML_STATUS_OK) {
        return false;
      }
      offset += length;
    } while (offset < data.size());
    return !tooDeep_;
  }

  static void XMLCALL onStart(void* user, const XML_Char* name, const XML_Char** atts) {
    auto& self = *static_cast<ExpatRun*>(user);
    if (++self.depth_ > self.maximumDepth_) {
      self.tooDeep_ = true;
      XML_StopParser(self.parser_, XML_FALSE);
      return;
    }
    if constexpr (requires(Delegate & d) { d.start(name, atts); }) {
      self.delegate_.start(name, atts);
    } else {
      self.attributes_.clear();
      for (const XML_Char** a = atts; a[0] != nullptr; a += 2)
        self.attributes_.emplace_back(a[0], a[1]);
      self.delegate_.start(name, Attributes(std::move(self.attributes_)));
    }
  }
  static void XMLCALL onEnd(void* user, const XML_Char* name) {
    auto& self = *static_cast<ExpatRun*>(user);
    --self.depth_;
    self.delegate_.end(name);
  }
  static void XMLCALL onCharacters(void* user, const XML_Char* text, int length) {
    auto& self = *static_cast<ExpatRun*>(user);
    if (self.inCdata_ == 0) self.delegate_.characters(std::string_view(text, std::size_t(length)));
  }
  static void XMLCALL onCdataStart(void* user) { ++static_cast<ExpatRun*>(user)->inCdata_; }
  static void XMLCALL onCdataEnd(void* user) { --static_cast<ExpatRun*>(user)->inCdata_; }
  static void XMLCALL onXmlDeclaration(void* user, const XML_Char*, const XML_Char*, int) {
    static_cast<ExpatRun*>(user)->delegate_.notePrologMarkup();
  }
  static void XMLCALL onDoctype(void* user, const XML_Char*, const XML_Char*, const XML_Char*,
                                int) {
    static_cast<ExpatRun*>(user)->delegate_.notePrologMarkup();
  }

  Delegate& delegate_;
  std::size_t maximumDepth_;
  XML_Parser parser_ = nullptr;
  std::size_t depth_ = 0;
  int inCdata_ = 0;
  bool tooDeep_ = false;
  std::vector<Attributes::Item> attributes_;
};

// First pass: the text of every `style` element, and whether an `svg` is the root element.
struct StyleCollector {
  bool hadRootSVG = false;
  std::string cssString;
  int isCollecting = 0;
  int nesting = 0;

  void start(std::string_view name, const Attributes&) {
    ++nesting;
    if (name == "style") ++isCollecting;
    if (name == "svg" && nesting == 1) hadRootSVG = true;
  }
  void end(std::string_view name) {
    if (name == "style") --isCollecting;
    --nesting;
  }
  void characters(std::string_view text) {
    if (isCollecting >= 1) cssString += text;
  }
};

// The events of one expat run in a compact form, since it lives through the whole conversion:
// element and attribute names are interned, values and text live in one arena, and the events
// are a byte code of kinds, name numbers and lengths (variable-length integers). Character data
// is kept only inside `text` elements, the one place the tree builder reads it.
class EventRecording {
 public:
  struct Cursor {
    std::size_t code = 0;
    std::size_t arena = 0;
  };

  void start(std::string_view name, const XML_Char** atts) {
    if (name == "text") ++openTexts_;
    std::size_t count = 0;
    for (const XML_Char** a = atts; a[0] != nullptr; a += 2) ++count;
    codes_ += static_cast<char>(Kind::start);
    putNumber(intern(name));
    putNumber(count);
    for (const XML_Char** a = atts; a[0] != nullptr; a += 2) {
      putNumber(intern(a[0]));
      add(a[1]);
    }
  }
  void end(std::string_view name) {
    if (name == "text" && openTexts_ > 0) --openTexts_;
    codes_ += static_cast<char>(Kind::end);
    putNumber(intern(name));
  }
  void characters(std::string_view text) {
    if (openTexts_ == 0) return;
    codes_ += static_cast<char>(Kind::characters);
    add(text);
  }

  template <class Delegate>
  void replay(Delegate& delegate) const {
    for (Cursor cursor; replayNext(delegate, cursor);) {
    }
  }

  // Hands the event at `cursor` to `delegate` and moves past it; false after the last one.
  template <class Delegate>
  bool replayNext(Delegate& delegate, Cursor& cursor) const {
    if (cursor.code >= codes_.size()) return false;
    const auto kind = static_cast<Kind>(codes_[cursor.code++]);
    switch (kind) {
      case Kind::start: {
        const std::string_view name = names_[takeNumber(cursor)];
        std::size_t count = takeNumber(cursor);
        std::vector<Attributes::Item> items;
        items.reserve(count);
        while (count-- > 0) {
          const std::string_view key = names_[takeNumber(cursor)];
          items.emplace_back(key, take(cursor));
        }
        delegate.start(name, Attributes(std::move(items)));
        break;
      }
      case Kind::end:
        delegate.end(names_[takeNumber(cursor)]);
        break;
      case Kind::characters:
        delegate.characters(take(cursor));
        break;
    }
    return true;
  }

 private:
  enum class Kind : char { start, end, characters };

  // A document uses a few dozen names, so a scan of the first ones beats hashing; a document
  // of many more distinct names goes on through the map.
  std::size_t intern(std::string_view name) {
    const std::size_t scanned = std::min(names_.size(), scannedNames);
    for (std::size_t i = 0; i < scanned; ++i) {
      if (names_[i] == name) return i;
    }
    if (names_.size() < scannedNames) return addName(name);
    if (const auto it = nameNumbers_.find(name); it != nameNumbers_.end()) return it->second;
    const std::size_t number = addName(name);
    nameNumbers_.emplace(names_.back(), number);
    return number;
  }
  std::size_t addName(std::string_view name) {
    names_.push_back(storedNames_.emplace_back(name));
    return names_.size() - 1;
  }
  void putNumber(std::size_t value) {
    while (value >= 0x80) {
      codes_ += static_cast<char>(0x80 | (value & 0x7F));
      value >>= 7;
    }
    codes_ += static_cast<char>(value);
  }
  std::size_t takeNumber(Cursor& cursor) const {
    std::size_t value = 0;
    for (int shift = 0;; shift += 7) {
      const auto byte = static_cast<unsigned char>(codes_[cursor.code++]);
      value |= static_cast<std::size_t>(byte & 0x7F) << shift;
      if (byte < 0x80) return value;
    }
  }
  void add(std::string_view text) {
    putNumber(text.size());
    arena_ += text;
  }
  std::string_view take(Cursor& cursor) const {
    const std::size_t length = takeNumber(cursor);
    const std::string_view text = std::string_view(arena_).substr(cursor.arena, length);
    cursor.arena += length;
    return text;
  }

  static constexpr std::size_t scannedNames = 48;

  std::string arena_;
  std::string codes_;
  std::deque<std::string> storedNames_;  // a deque, so that views of its strings stay valid
  std::vector<std::string_view> names_;
  std::unordered_map<std::string_view, std::size_t> nameNumbers_;  // beyond the scanned ones
  int openTexts_ = 0;
};

// The single expat run: collects stylesheets, records the events, and notes any XML
// declaration or DOCTYPE, after which wrapped bytes would no longer parse.
struct RecordingPass {
  StyleCollector collector;
  EventRecording recording;
  bool sawPrologMarkup = false;
  bool sawDefinition = false;

  void start(std::string_view name, const XML_Char** atts) {
    collector.start(name, Attributes{});
    recording.start(name, atts);
    if (!sawDefinition) {
      const ElementKind kind = elementKind(name);
      sawDefinition = kind == ElementKind::linearGradient || kind == ElementKind::radialGradient ||
                      kind == ElementKind::filter;
    }
  }
  void end(std::string_view name) {
    collector.end(name);
    recording.end(name);
  }
  void characters(std::string_view text) {
    collector.characters(text);
    recording.characters(text);
  }
  void notePrologMarkup() { sawPrologMarkup = true; }
};

// Second pass: builds the tree. Handed over in order, the root's children are kept one at a
// time instead (`takeRootChild`) and its definitions come from an earlier definitions-only
// pass, which reads the definitions wherever they stand and nothing else.
class Handler {
 public:
  enum class Mode : std::uint8_t { wholeTree, rootChildren, definitionsOnly };

  Handler(std::string_view cssString, const Report& report, Mode mode = Mode::wholeTree)
      : css_(cssString, report), report_(report), mode_(mode) {}

  void start(std::string_view name, const Attributes& attributes);
  void end(std::string_view name);
  void characters(std::string_view text) {
    if (text_) text_->text += text;
  }

  std::optional<SVG> result() && {
    if (groupStack_.empty()) return std::nullopt;
    if (auto* svg = std::get_if<SVG>(&groupStack_.front())) return std::move(*svg);
    return std::nullopt;
  }
  // The outermost `svg`, once its start tag is read.
  SVG* root() { return groupStack_.empty() ? nullptr : std::get_if<SVG>(&groupStack_.front()); }
  // The root's child completed since the last call (`rootChildren` only).
  std::optional<SVG::GroupItem> takeRootChild() { return std::exchange(rootChild_, std::nullopt); }

 private:
  using GroupValue = std::variant<SVG, SVG::Group>;

  void addItem(SVG::GroupItem item);
  void addDefinition(SVG::Definition definition);
  void addPrimitive(SVG::Filter::Primitive primitive);
  CSS::Style resolver(const Attributes& attributes) const { return css_.resolver(attributes); }

  const CSS css_;
  const Report& report_;
  const Mode mode_;
  std::optional<SVG::GroupItem> rootChild_;
  std::vector<GroupValue> groupStack_;
  std::unordered_set<std::string> usedDefIDs_;
  std::optional<SVG::LinearGradient> linearGradient_;
  std::optional<SVG::RadialGradient> radialGradient_;
  std::optional<SVG::Filter> filter_;
  std::optional<SVG::Filter::Primitive::Merge> feMerge_;
  SVG::Filter::Input defaultInput_{SVG::Filter::Input::Kind::sourceGraphic, {}};
  std::optional<SVG::Text> text_;
};

using Primitive = SVG::Filter::Primitive;
using Unmodelled = Primitive::Unmodelled::Kind;

void Handler::start(std::string_view name, const Attributes& attributes) {
  const ElementKind kind = elementKind(name);
  if (mode_ == Mode::definitionsOnly) {
    // Only what places a definition in its `svg`, and the definitions themselves.
    switch (kind) {
      case ElementKind::svg:
        groupStack_.emplace_back(SVG::read(attributes, resolver(attributes), report_));
        return;
      case ElementKind::g:
        groupStack_.emplace_back(SVG::Group{});
        return;
      case ElementKind::image:
        if (filter_) break;
        return;
      case ElementKind::text:
      case ElementKind::circle:
      case ElementKind::ellipse:
      case ElementKind::rect:
      case ElementKind::polygon:
      case ElementKind::polyline:
      case ElementKind::line:
      case ElementKind::path:
      case ElementKind::other:
        return;
      default:
        break;
    }
  }
  switch (kind) {
    case ElementKind::svg:
      groupStack_.emplace_back(SVG::read(attributes, resolver(attributes), report_));
      break;
    case ElementKind::g:
      groupStack_.emplace_back(SVG::Group::read(attributes, resolver(attributes), report_));
      break;
    case ElementKind::text:
      text_ = SVG::Text::read(attributes, resolver(attributes), report_);
      break;
    case ElementKind::circle:
      addItem({SVG::Circle::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::ellipse:
      addItem({SVG::Ellipse::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::rect:
      addItem({SVG::Rect::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::polygon:
      addItem({SVG::Polygon::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::polyline:
      addItem({SVG::Polyline::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::line:
      addItem({SVG::Line::read(attributes, resolver(attributes), report_)});
      break;
    case ElementKind::image:
      if (filter_) {
        addPrimitive({Primitive::Unmodelled{Unmodelled::image}});
      } else {
        addItem({SVG::Image::read(attributes, resolver(attributes), report_)});
      }
      break;
    case ElementKind::path: {
      SVG::Command::ParserError error;
      if (auto path = SVG::Path::read(attributes, resolver(attributes), report_, &error)) {
        addItem({std::move(*path)});
      } else if (report_.enabled()) {
        report_.print(
            {"could not parse path:", attributes.description(), "  error:", error.description()});
      }
      break;
    }
    case ElementKind::defs:
    case ElementKind::style:
      break;
    case ElementKind::linearGradient:
      linearGradient_ = SVG::LinearGradient::read(attributes, report_);
      break;
    case ElementKind::radialGradient:
      radialGradient_ = SVG::RadialGradient::read(attributes, report_);
      break;
    case ElementKind::stop:
      if (linearGradient_ || radialGradient_) {
        SVG::GradientStop stop = SVG::GradientStop::read(attributes, resolver(attributes), report_);
        if (linearGradient_) linearGradient_->stops.push_back(stop);
        if (radialGradient_) radialGradient_->stops.push_back(std::move(stop));
      }
      break;
    case ElementKind::filter:
      filter_ = SVG::Filter::read(attributes, report_);
      defaultInput_ = {SVG::Filter::Input::Kind::sourceGraphic, {}};
      break;
    case ElementKind::feGaussianBlur:
      addPrimitive({Primitive::Blur::read(attributes, defaultInput_)});
      break;
    case ElementKind::feOffset:
      addPrimitive({Primitive::Offset::read(attributes, defaultInput_)});
      break;
    case ElementKind::feBlend:
      addPrimitive({Primitive::Blend::read(attributes, defaultInput_)});
      break;
    case ElementKind::feDropShadow:
      addPrimitive({Primitive::DropShadow::read(attributes, defaultInput_, report_)});
      break;
    case ElementKind::feMerge:
      feMerge_ = Primitive::Merge{Primitive::Attributes::read(attributes), {}};
      break;
    case ElementKind::feMergeNode: {
      auto input = SVG::Filter::Input::parse(attributes["in"]);
      if (feMerge_) feMerge_->inputs.push_back(input.value_or(SVG::Filter::Input{}));
      break;
    }
    case ElementKind::feColorMatrix:
      addPrimitive({Primitive::Unmodelled{Unmodelled::colorMatrix}});
      break;
    case ElementKind::feComponentTransfer:
      addPrimitive({Primitive::Unmodelled{Unmodelled::componentTransfer}});
      break;
    case ElementKind::feComposite:
      addPrimitive({Primitive::Unmodelled{Unmodelled::composite}});
      break;
    case ElementKind::feConvolveMatrix:
      addPrimitive({Primitive::Unmodelled{Unmodelled::convolveMatrix}});
      break;
    case ElementKind::feDiffuseLighting:
      addPrimitive({Primitive::Unmodelled{Unmodelled::diffuseLighting}});
      break;
    case ElementKind::feDisplacementMap:
      addPrimitive({Primitive::Unmodelled{Unmodelled::displacementMap}});
      break;
    case ElementKind::feFlood:
      addPrimitive({Primitive::Unmodelled{Unmodelled::flood}});
      break;
    case ElementKind::feMorphology:
      addPrimitive({Primitive::Unmodelled{Unmodelled::morphology}});
      break;
    case ElementKind::feSpecularLighting:
      addPrimitive({Primitive::Unmodelled{Unmodelled::specularLighting}});
      break;
    case ElementKind::feTile:
      addPrimitive({Primitive::Unmodelled{Unmodelled::tile}});
      break;
    case ElementKind::feTurbulence:
      addPrimitive({Primitive::Unmodelled{Unmodelled::turbulence}});
      break;
    case ElementKind::other:
      if (report_.enabled()) report_.print({"OTHER:", name, attributes.description()});
      break;
  }
}

void Handler::end(std::string_view name) {
  switch (elementKind(name)) {
    case ElementKind::linearGradient:
      if (linearGradient_) {
        SVG::Definition definition{std::move(*linearGradient_)};
        linearGradient_.reset();
        addDefinition(std::move(definition));
      }
      break;
    case ElementKind::radialGradient:
      if (radialGradient_) {
        SVG::Definition definition{std::move(*radialGradient_)};
        radialGradient_.reset();
        addDefinition(std::move(definition));
      }
      break;
    case ElementKind::filter:
      if (filter_) {
        SVG::Definition definition{std::move(*filter_)};
        filter_.reset();
        addDefinition(std::move(definition));
      }
      break;
    case ElementKind::feMerge:
      if (feMerge_) {
        Primitive primitive{std::move(*feMerge_)};
        feMerge_.reset();
        addPrimitive(std::move(primitive));
      }
      break;
    case ElementKind::text:
      if (text_) {
        SVG::GroupItem item{std::move(*text_)};
        text_.reset();
        addItem(std::move(item));
      }
      break;
    case ElementKind::g:
      if (!groupStack_.empty() && std::holds_alternative<SVG::Group>(groupStack_.back())) {
        // Items are large and the tree lives through the whole conversion: no spare capacity.
        std::get<SVG::Group>(groupStack_.back()).children.shrink_to_fit();
        SVG::GroupItem item{std::get<SVG::Group>(std::move(groupStack_.back()))};
        groupStack_.pop_back();
        addItem(std::move(item));
      }
      break;
    case ElementKind::svg:
      // The root stays on the stack: it is the result.
      if (!groupStack_.empty() && std::holds_alternative<SVG>(groupStack_.back())) {
        std::get<SVG>(groupStack_.back()).children.shrink_to_fit();
      }
      if (groupStack_.size() >= 2 && std::holds_alternative<SVG>(groupStack_.back())) {
        SVG::GroupItem item{std::get<SVG>(std::move(groupStack_.back()))};
        groupStack_.pop_back();
        addItem(std::move(item));
      }
      break;
    default:
      break;
  }
}

void Handler::addItem(SVG::GroupItem item) {
  if (mode_ == Mode::definitionsOnly) return;
  if (groupStack_.empty()) {
    if (report_.enabled()) report_.print({"dropping element, no group:", describe(item)});
    return;
  }
  if (mode_ == Mode::rootChildren && groupStack_.size() == 1) {
    rootChild_ = std::move(item);
    return;
  }
  std::visit([&](auto& group) { group.children.push_back(std::move(item)); }, groupStack_.back());
}

void Handler::addDefinition(SVG::Definition definition) {
  const std::optional<std::string>& id = definition.id();
  if (!id) return;
  // Definitions belong to the nearest enclosing `svg`; groups are passed over.
  for (auto it = groupStack_.rbegin(); it != groupStack_.rend(); ++it) {
    if (auto* svg = std::get_if<SVG>(&*it)) {
      if (!usedDefIDs_.insert(*id).second) return;  // the first definition of an id wins
      // The root's definitions were read ahead of its children.
      if (mode_ == Mode::rootChildren && it + 1 == groupStack_.rend()) return;
      std::string key = *id;
      svg->definitions.push_back({std::move(key), std::move(definition)});
      return;
    }
  }
}

void Handler::addPrimitive(Primitive primitive) {
  if (!filter_) return;
  defaultInput_ = SVG::Filter::Input{};
  filter_->primitives.push_back(std::move(primitive));
}

template <class Delegate>
bool runPass(std::string_view data, Delegate& delegate, const ParseOptions& options,
             const Report& report) {
  ExpatRun<Delegate> run(delegate, options.maximumDepth);
  const bool ok = run.run(data, options.chunkSize);
  if (run.tooDeep() && report.enabled()) {
    report.print({"ERROR: elements nested deeper than", std::to_string(options.maximumDepth),
                  "levels are not supported"});
  }
  return ok;
}

// Whether parsing the fragment inside an `svg` start and end tag gives exactly the recorded
// events with that `svg` around them. Expat refuses an XML declaration or a DOCTYPE that is not
// at the start of the document; and with a byte order mark, or bytes that could be taken for
// UTF-16, the encoding expat detects could change once the text no longer starts the document.
// Everything else that may precede or follow a single root (white space, comments, processing
// instructions) means the same inside an element.
bool wrappingKeepsEvents(std::string_view data, const RecordingPass& pass) {
  if (pass.sawPrologMarkup || data.size() < 2) return false;
  const char first = data[0];
  const bool plainStart =
      first == '<' || first == ' ' || first == '\t' || first == '\n' || first == '\r';
  return plainStart && data[1] != '\0';
}

Attributes wrapperAttributes() {
  return Attributes{{"xmlns", svgNamespace}};
}

// The tree from text read the old way: stylesheets in one expat run, the tree in a second run
// over the bytes (wrapped when they are a fragment).
std::optional<SVG> parseTwice(std::string_view data, const std::string& cssString, bool wrap,
                              const ParseOptions& options, const Report& report) {
  std::string wrapped;
  if (wrap) {
    wrapped.reserve(data.size() + 48);
    wrapped += "<svg xmlns=\"";
    wrapped += svgNamespace;
    wrapped += "\">";
    wrapped += data;
    wrapped += "</svg>\n";
    data = wrapped;
  }

  Handler handler(cssString, report);
  // The depth check already ran on these bytes; wrapping adds one level (saturating, so the
  // largest limit stays the largest).
  ParseOptions second = options;
  if (second.maximumDepth < std::numeric_limits<std::size_t>::max()) ++second.maximumDepth;
  if (!runPass(data, handler, second, report)) return std::nullopt;
  return std::move(handler).result();
}

}  // namespace

std::optional<SVG> parse(std::string_view data, const ParseOptions& options, const Report& report) {
  RecordingPass pass;
  if (!runPass(data, pass, options, report)) return std::nullopt;

  const bool wrap = !pass.collector.hadRootSVG && options.wrapFragments && !data.empty();
  if (wrap && !wrappingKeepsEvents(data, pass)) {
    return parseTwice(data, pass.collector.cssString, wrap, options, report);
  }

  Handler handler(pass.collector.cssString, report);
  if (wrap) handler.start("svg", wrapperAttributes());
  pass.recording.replay(handler);
  if (wrap) handler.end("svg");
  return std::move(handler).result();
}

struct InOrderReader::State {
  RecordingPass pass;
  bool wrap = false;
  EventRecording::Cursor cursor;
  std::optional<Handler> handler;
  // The root's own copy: the one on the handler's stack moves as the stack grows.
  SVG root;
  // Where the recording cannot serve, the whole tree, whose children are handed out in turn.
  std::optional<SVG> tree;
  std::size_t nextTreeChild = 0;
  std::optional<SVG::GroupItem> current;
};

InOrderReader::InOrderReader(std::unique_ptr<State> state) : state_(std::move(state)) {}
InOrderReader::InOrderReader(InOrderReader&&) noexcept = default;
InOrderReader& InOrderReader::operator=(InOrderReader&&) noexcept = default;
InOrderReader::~InOrderReader() = default;

std::optional<InOrderReader> InOrderReader::open(std::string_view data, const ParseOptions& options,
                                                 const Report& report) {
  auto state = std::make_unique<State>();
  RecordingPass& pass = state->pass;
  if (!runPass(data, pass, options, report)) return std::nullopt;

  state->wrap = !pass.collector.hadRootSVG && options.wrapFragments && !data.empty();
  if (!pass.collector.hadRootSVG && !state->wrap) return std::nullopt;
  if (state->wrap && !wrappingKeepsEvents(data, pass)) {
    state->tree = parseTwice(data, pass.collector.cssString, true, options, report);
    if (!state->tree) return std::nullopt;
    return InOrderReader(std::move(state));
  }

  // Children may use definitions that come after them, so those are read first.
  std::vector<SVG::NamedDefinition> rootDefinitions;
  if (pass.sawDefinition) {
    const Report silent;
    Handler definitions(pass.collector.cssString, silent, Handler::Mode::definitionsOnly);
    if (state->wrap) definitions.start("svg", wrapperAttributes());
    pass.recording.replay(definitions);
    if (SVG* root = definitions.root()) rootDefinitions = std::move(root->definitions);
  }

  Handler& handler =
      state->handler.emplace(pass.collector.cssString, report, Handler::Mode::rootChildren);
  if (state->wrap) {
    handler.start("svg", wrapperAttributes());
  } else {
    // The root's start tag is the first event.
    pass.recording.replayNext(handler, state->cursor);
  }
  const SVG* root = handler.root();
  if (root == nullptr) return std::nullopt;
  state->root = *root;
  state->root.definitions = std::move(rootDefinitions);
  return InOrderReader(std::move(state));
}

const SVG& InOrderReader::root() const {
  return state_->tree ? *state_->tree : state_->root;
}

const SVG::GroupItem* InOrderReader::next() {
  State& state = *state_;
  state.current.reset();
  if (state.tree) {
    if (state.nextTreeChild >= state.tree->children.size()) return nullptr;
    return &state.tree->children[state.nextTreeChild++];
  }
  Handler& handler = *state.handler;
  while (state.pass.recording.replayNext(handler, state.cursor)) {
    if ((state.current = handler.takeRootChild())) return &*state.current;
  }
  if (state.wrap) {
    handler.end("svg");
    state.wrap = false;
  }
  return nullptr;
}

}  // namespace SVGParser
