#include "SVGFigurerApp/ExampleCatalogue.h"

#include <array>

namespace SVGFigurerApp {

namespace {

// A 24 by 24 pictogram: a bell with its clapper, drawn as one path of relative commands whose
// inner cut-out relies on the even-odd rule set on the root.
constexpr std::string_view iconSample =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="24" height="24" viewBox="0 0 24 24" fill-rule="evenodd" clip-rule="evenodd">
  <path d="M12 2c-3.3 0-6 2.7-6 6v5l-2 3v1h16v-1l-2-3v-5c0-3.3-2.7-6-6-6zm0 2c2.2 0 4 1.8 4 4v5.6l1.2 1.9h-10.4l1.2-1.9v-5.6c0-2.2 1.8-4 4-4zm-2 15h4c0 1.1-.9 2-2 2s-2-.9-2-2z"/>
</svg>
)svg";

constexpr std::string_view linearGradientSample =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="120" height="240" viewBox="0 0 120 240">
  <defs>
    <style><![CDATA[
      #sunrise { fill: url(#warm); }
      .dawn { stop-color: #ffcc33; }
      .dusk { stop-color: #cc3366; }
    ]]></style>
    <linearGradient id="warm" x1="0" y1="0" x2="0" y2="1">
      <stop class="dawn" offset="0%"/>
      <stop class="dusk" offset="100%"/>
    </linearGradient>
    <linearGradient id="cool" x1="0" y1="0" x2="1" y2="1">
      <stop offset="0" stop-color="#33ccff"/>
      <stop offset="1" stop-color="#3333aa" stop-opacity="0.8"/>
    </linearGradient>
  </defs>
  <rect id="sunrise" x="10" y="10" width="100" height="100" rx="15"/>
  <rect x="10" y="130" width="100" height="100" rx="15" ry="30" fill="url(#cool)"/>
</svg>
)svg";

constexpr std::string_view ellipseSample =
    R"svg(<svg viewBox="0 0 200 100" xmlns="http://www.w3.org/2000/svg">
  <ellipse cx="100" cy="50" rx="100" ry="50" />
</svg>
)svg";

constexpr std::string_view blurredCirclesSample =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="230" height="120" viewBox="0 0 230 120">
  <filter id="soften">
    <feGaussianBlur stdDeviation="4"/>
  </filter>
  <circle cx="60" cy="60" r="50" fill="teal"/>
  <circle cx="170" cy="60" r="50" fill="teal" filter="url(#soften)"/>
</svg>
)svg";

constexpr std::string_view dropShadowSample =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="120" height="120" viewBox="0 0 120 120">
  <filter id="shadow" x="-20%" y="-20%" width="150%" height="150%">
    <feGaussianBlur in="SourceAlpha" stdDeviation="3" result="blur"/>
    <feOffset in="blur" dx="4" dy="4" result="moved"/>
    <feMerge>
      <feMergeNode in="moved"/>
      <feMergeNode in="SourceGraphic"/>
    </feMerge>
  </filter>
  <circle cx="55" cy="55" r="40" fill="tomato" filter="url(#shadow)"/>
</svg>
)svg";

constexpr std::string_view gradientTextSample =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="200" height="80" viewBox="0 0 200 80">
  <defs>
    <linearGradient id="ink" x1="0" y1="0" x2="1" y2="0">
      <stop offset="0" stop-color="navy"/>
      <stop offset="0.5" stop-color="purple"/>
      <stop offset="1" stop-color="crimson"/>
    </linearGradient>
  </defs>
  <text x="10" y="52" fill="url(#ink)" style="font: bold 36px sans-serif">Figure</text>
</svg>
)svg";

constexpr std::array<ExampleSVG, 6> catalogue{{
    {"IconMonstr Icon", iconSample},
    {"Linear Gradient", linearGradientSample},
    {"Simple Ellipse", ellipseSample},
    {"Blurred Circles", blurredCirclesSample},
    {"Merge Filter Drop Shadow", dropShadowSample},
    {"Gradient Filled Text", gradientTextSample},
}};

}  // namespace

std::span<const ExampleSVG> exampleSVGs() {
  return catalogue;
}

std::optional<ExampleSVG> exampleNamed(std::string_view name) {
  for (const auto& example : catalogue) {
    if (example.name == name) return example;
  }
  return std::nullopt;
}

void pickSample(std::string_view svg, SVGFigurerDocument* focused,
                const DocumentEnvironment& environment,
                const std::function<void()>& openUntitledDocument) {
  if (focused != nullptr) {
    focused->setSVGString(std::string(svg));
    return;
  }
  environment.pending->append(makeSnapshot(std::string(svg), std::nullopt,
                                           environment.defaults->defaultConfiguration(),
                                           environment.report));
  if (openUntitledDocument) openUntitledDocument();
}

}  // namespace SVGFigurerApp
