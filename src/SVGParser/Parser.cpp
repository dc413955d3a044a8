// Reading the XML: one expat run gathers the stylesheets, finds the root and records every
// event; the tree is then built from the recording with the stylesheet already parsed. Where
// a fragment's wrapped bytes might not parse like the recording replays, the bytes are read a
// second time instead.
#include <expat.h>

#include <climits>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <unordered_set>

#include "ElementNames.h"
#include "SVGParser/Describe.h"
#include "SVGParser/SVGParser.h"

namespace SVGParser {

namespace {

struct ExpatDeleter {
  void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ExpatParser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ExpatDeleter>;

// Adapts expat's callbacks to a delegate with start, end and characters. CDATA sections
// reach neither, and an element beyond the depth limit stops the run.
template <class Delegate>
class ExpatRun {
 public:
  ExpatRun(Delegate& delegate, std::size_t maximumDepth)
      : delegate_(delegate), maximumDepth_(maximumDepth) {}

  bool run(std::string_view data, std::size_t chunkSize) {
    ExpatParser parser(XML_ParserCreate(nullptr));
    if (!parser) return false;
    parser_ = parser.get();
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

  bool tooDeep() const { return tooDeep_; }

 private:
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

// The events of one expat run in a compact form: every string lives in one arena, and runs of
// character data are merged (the tree builder only ever appends them).
class EventRecording {
 public:
  void start(std::string_view name, const XML_Char** atts) {
    const std::size_t first = spans_.size();
    add(name);
    for (const XML_Char** a = atts; a[0] != nullptr; a += 2) {
      add(a[0]);
      add(a[1]);
    }
    events_.push_back({Event::Kind::start, first, spans_.size() - first});
  }
  void end(std::string_view name) {
    events_.push_back({Event::Kind::end, spans_.size(), 1});
    add(name);
  }
  void characters(std::string_view text) {
    if (!events_.empty() && events_.back().kind == Event::Kind::characters) {
      // The previous run's text is the arena's tail, so the two simply join.
      arena_ += text;
      spans_.back().length += text.size();
      return;
    }
    events_.push_back({Event::Kind::characters, spans_.size(), 1});
    add(text);
  }

  template <class Delegate>
  void replay(Delegate& delegate) const {
    std::vector<Attributes::Item> items;
    for (const Event& event : events_) {
      switch (event.kind) {
        case Event::Kind::start:
          items.clear();
          for (std::size_t i = event.first + 1; i + 1 < event.first + event.count; i += 2) {
            items.emplace_back(view(i), view(i + 1));
          }
          delegate.start(view(event.first), Attributes(std::move(items)));
          break;
        case Event::Kind::end:
          delegate.end(view(event.first));
          break;
        case Event::Kind::characters:
          delegate.characters(view(event.first));
          break;
      }
    }
  }

 private:
  struct Event {
    enum class Kind : std::uint8_t { start, end, characters };
    Kind kind;
    std::size_t first;  // index of the first span: the name, then attribute names and values
    std::size_t count;
  };
  struct Span {
    std::size_t offset;
    std::size_t length;
  };

  void add(std::string_view text) {
    spans_.push_back({arena_.size(), text.size()});
    arena_ += text;
  }
  std::string_view view(std::size_t index) const {
    return std::string_view(arena_).substr(spans_[index].offset, spans_[index].length);
  }

  std::string arena_;
  std::vector<Span> spans_;
  std::vector<Event> events_;
};

// The single expat run: collects stylesheets, records the events, and notes any XML
// declaration or DOCTYPE, after which wrapped bytes would no longer parse.
struct RecordingPass {
  StyleCollector collector;
  EventRecording recording;
  bool sawPrologMarkup = false;

  void start(std::string_view name, const XML_Char** atts) {
    collector.start(name, Attributes{});
    recording.start(name, atts);
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

// Second pass: builds the tree.
class Handler {
 public:
  Handler(std::string_view cssString, const Report& report)
      : css_(cssString, report), report_(report) {}

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

 private:
  using GroupValue = std::variant<SVG, SVG::Group>;

  void addItem(SVG::GroupItem item);
  void addDefinition(SVG::Definition definition);
  void addPrimitive(SVG::Filter::Primitive primitive);
  CSS::Style resolver(const Attributes& attributes) const { return css_.resolver(attributes); }

  const CSS css_;
  const Report& report_;
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
  switch (elementKind(name)) {
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
  if (groupStack_.empty()) {
    if (report_.enabled()) report_.print({"dropping element, no group:", describe(item)});
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
  if (wrap) {
    const std::string_view xmlns = svgNamespace;
    handler.start("svg", Attributes{{"xmlns", xmlns}});
  }
  pass.recording.replay(handler);
  if (wrap) handler.end("svg");
  return std::move(handler).result();
}

}  // namespace SVGParser
