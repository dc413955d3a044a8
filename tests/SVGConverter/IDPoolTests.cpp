#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "SVGConverter/IDPool.h"

using SwiftUIModel::identifierFromName;
using SwiftUIModel::IDPool;
using SwiftUIModel::makeTypeName;
using SwiftUIModel::NameCase;

namespace {

TEST(IDPool, HandsOutNamesInOrder) {
  const std::optional<std::string> none;
  const std::vector<std::pair<std::vector<std::optional<std::string>>, std::vector<std::string>>>
      rows = {{{none, none, none}, {"Group1", "Group2", "Group3"}},
              {{"foo", none}, {"foo", "Group1"}},
              {{"foo", "foo"}, {"foo", "Group1"}},  // a collision falls back to a number
              {{"Group2", none, none}, {"Group2", "Group1", "Group3"}},
              {{none, "Group1"}, {"Group1", "Group2"}},  // a generated name blocks a wanted one
              {{"", ""}, {"", "Group1"}}};
  for (const auto& [wanted, expected] : rows) {
    IDPool pool("Group");
    std::vector<std::string> names;
    for (const auto& name : wanted) names.push_back(pool.uniqueID(name));
    EXPECT_EQ(names, expected);
  }
}

TEST(IDPool, NumberingGoesOnPastAThousandWhileCandidatesAreFree) {
  IDPool pool("p");
  std::string last;
  for (int i = 0; i < 1005; ++i) last = pool.uniqueID(std::nullopt);
  EXPECT_EQ(last, "p1005");
}

TEST(IDPool, TakenCandidateAboveNineHundredNinetyNineGivesAnUnrecordedUUID) {
  IDPool pool("p");
  pool.counter = 1000;
  pool.usedIDs.insert("p1001");
  const auto name = pool.uniqueID(std::nullopt);
  EXPECT_TRUE(std::regex_match(
      name, std::regex("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}")))
      << name;
  EXPECT_EQ(pool.usedIDs.count(name), 0u);
  EXPECT_EQ(pool.counter, 1001);
}

TEST(NamePipeline, MakesAnIdentifier) {
  const std::tuple<std::string, NameCase, std::string> rows[] = {
      {"my-shape", NameCase::type, "My_shape"},
      {"1st", NameCase::type, "Z1st"},
      {"_a", NameCase::type, "Z_a"},
      {"-a", NameCase::type, "Z_a"},
      {"Paint-1", NameCase::property, "paint_1"},
      {"9", NameCase::property, "z9"},
      {"aBC-dEF", NameCase::type, "ABC_dEF"},  // the remainder is untouched
      {"élan", NameCase::type, "Élan"},
      {"ßx", NameCase::type, "SSx"},             // upper case in two letters
      {"e\u0301t", NameCase::type, "E\u0301t"},  // a combining mark stays with its letter
      {"\u0301a", NameCase::type, "\u0301a"},    // and is a letter itself here
      {"\U0001F600", NameCase::type, "Z\U0001F600"},
      {"", NameCase::type, ""}};
  for (const auto& [id, nameCase, expected] : rows) {
    IDPool pool("Circle");
    EXPECT_EQ(makeTypeName(pool, id, nameCase), expected) << id;
  }
}

TEST(NamePipeline, GeneratedNamesPassThroughThePipeline) {
  IDPool pool("linearGradient");
  EXPECT_EQ(makeTypeName(pool, std::nullopt, NameCase::property), "linearGradient1");
  EXPECT_EQ(makeTypeName(pool, std::nullopt, NameCase::type), "LinearGradient2");
}

// Uniqueness is checked before the clean-up, so two ids that differ only in "-" and "_" both
// pass the pool and come out equal.
TEST(NamePipeline, UniquenessIsCheckedBeforeCleanUp) {
  IDPool pool("Circle");
  EXPECT_EQ(makeTypeName(pool, "a-b", NameCase::type), "A_b");
  EXPECT_EQ(makeTypeName(pool, "a_b", NameCase::type), "A_b");
  EXPECT_EQ(makeTypeName(pool, "a_b", NameCase::type), "Circle1");
}

TEST(NamePipeline, InvalidUTF8DoesNotStopTheConversion) {
  EXPECT_EQ(identifierFromName("\xff\xfe", NameCase::type), "Z\xff\xfe");
}

}  // namespace
