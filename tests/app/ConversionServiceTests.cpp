// The conversion service and files handed in, without a bus: the checks and log lines on the
// way to the pending-document queue. The entry points' errors are tested over the bus.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AppTestSupport.h"
#include "FigurerUtilities/Transcript.h"
#include "SVGFigurerApp/ConversionService.h"

using namespace SVGFigurerApp;
using AppTest::circleSVG;
using AppTest::Fixture;
using CoreS::LogLevel;

namespace {

class ConversionServiceTest : public testing::Test {
 protected:
  Fixture fixture;
  AppTest::FakeController controller{fixture.pending};
  std::vector<std::string> printed;
  ConversionService service{fixture.environment(), controller,
                            [this](std::string_view line) { printed.emplace_back(line); }};
};

TEST_F(ConversionServiceTest, SvgToViewRejectsTextThatDoesNotParse) {
  const auto result = service.svgToView("<svg");
  ASSERT_TRUE(std::holds_alternative<ServiceError>(result));
  EXPECT_EQ(std::get<ServiceError>(result).message(), "Invalid SVG? (-22425)");
  EXPECT_TRUE(fixture.log.contains(LogLevel::error, "could not shape SVG:\n---\n<svg\n---"));
}

TEST_F(ConversionServiceTest, OpenURLsChecksEachAddressInOrder) {
  const auto folder = fixture.folder.path();
  AppTest::writeFile(folder / "a b.SVG", circleSVG);
  AppTest::writeFile(folder / "notes.txt", "text");
  const std::vector<std::string> addresses = {
      addressForLocalPath(folder / "notes.txt"), addressForLocalPath(folder / "a b.SVG"),
      addressForLocalPath(folder / "missing.svg"), "https://example.org/x.svg"};
  const auto files = service.openURLs(addresses);
  ASSERT_EQ(files.size(), 1u);
  EXPECT_EQ(files[0].path, folder / "a b.SVG");
  EXPECT_EQ(files[0].fileName, "a b.SVG");
  EXPECT_TRUE(fixture.log.contains(LogLevel::log, "open URLs: [" + addresses[0] + ", "));
  EXPECT_TRUE(fixture.log.contains(LogLevel::log, "  cannot open non-SVG file: notes.txt"));
  EXPECT_TRUE(fixture.log.contains(LogLevel::log, "  open SVG: " + addresses[1] + " a b.SVG"));
  EXPECT_TRUE(fixture.log.contains(LogLevel::error, "failed to open:"));
  EXPECT_EQ(fixture.log.lines.size(), 4u);
}

TEST_F(ConversionServiceTest, HandedFilesAreReadInTheirEncodingOrNotAtAll) {
  const auto folder = fixture.folder.path();
  const std::string utf16 = std::string("\xFF\xFE<\0s\0v\0g\0", 10);
  struct Case {
    std::string bytes;
    std::optional<std::string> svg;  // nothing: the file is not opened
  };
  for (const auto& [bytes, svg] : {Case{"\xEF\xBB\xBF" + circleSVG, circleSVG}, Case{utf16, "<svg"},
                                   Case{"<svg>\xFF</svg>", std::nullopt}}) {
    AppTest::writeFile(folder / "in.svg", bytes);
    const auto content = readHandedFile({"", folder / "in.svg", "in.svg", {}});
    ASSERT_EQ(content.has_value(), svg.has_value());
    if (svg) {
      EXPECT_EQ(content->snapshot.svg, *svg);
    }
  }
  EXPECT_EQ(readHandedFile({"", folder / "in.svg" / "x", "x", {}}), std::nullopt);
  AppTest::writeFile(folder / "in.svg", "<svg");
  EXPECT_EQ(readHandedFile({"", folder / "in.svg", "in.svg", {}})->snapshot.swift,
            "// Could not parse SVG in.svg\n");
}

TEST_F(ConversionServiceTest, HandedFileThatCannotOpenPrintsAndStaysQueued) {
  controller.failWith = "no window";
  service.openHandedFile({Snapshot{circleSVG, "x", std::nullopt}, {"reader line"}},
                         "file:///a.svg");
  EXPECT_EQ(printed, std::vector<std::string>{"OPEN ERROR: no window file:///a.svg"});
  EXPECT_EQ(fixture.pending.size(), 1u);
  EXPECT_EQ(fixture.reportLines, std::vector<std::string>{"reader line"});
}

TEST(ServiceAddresses, LocalPathsAndAddresses) {
  Transcript::expect("app/data/service-addresses.txt", [](const std::string& address) {
    const auto local = localPathForAddress(address);
    return "> " + (local ? local->string() : "not a local path") + "\n";
  });
  const std::filesystem::path odd = "/tmp/ä #%?.svg";
  EXPECT_EQ(addressForLocalPath(odd), "file:///tmp/%C3%A4%20%23%25%3F.svg");
  EXPECT_EQ(localPathForAddress(addressForLocalPath(odd)), odd);
}

}  // namespace
