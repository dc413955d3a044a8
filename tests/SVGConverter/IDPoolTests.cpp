#include <gtest/gtest.h>

#include <optional>
#include <regex>
#include <string>
#include <vector>

#include "SVGConverter/IDPool.h"

using SwiftUIModel::identifierFromName;
using SwiftUIModel::IDPool;
using SwiftUIModel::makeTypeName;
using SwiftUIModel::NameCase;

namespace {

struct PoolRow {
  const char* label;
  std::vector<std::optional<std::string>> wanted;
  std::vector<std::string> expected;
};

class IDPoolSequence : public testing::TestWithParam<PoolRow> {};

TEST_P(IDPoolSequence, HandsOutNamesInOrder) {
  IDPool pool("Group");
  std::vector<std::string> names;
  for (const auto& wanted : GetParam().wanted) names.push_back(pool.uniqueID(wanted));
  EXPECT_EQ(names, GetParam().expected);
}

const std::optional<std::string> none;

INSTANTIATE_TEST_SUITE_P(
    Rows, IDPoolSequence,
    testing::Values(
        PoolRow{"numbering", {none, none, none}, {"Group1", "Group2", "Group3"}},
        PoolRow{"wantedFirst", {"foo", none}, {"foo", "Group1"}},
        PoolRow{"collisionFallsBackToNumber", {"foo", "foo"}, {"foo", "Group1"}},
        PoolRow{"wantedNameTakesANumber", {"Group2", none, none}, {"Group2", "Group1", "Group3"}},
        PoolRow{"generatedNameBlocksWanted", {none, "Group1"}, {"Group1", "Group2"}},
        PoolRow{"emptyIsANameOnce", {"", ""}, {"", "Group1"}}),
    [](const auto& info) { return std::string(info.param.label); });

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

struct NameRow {
  const char* label;
  std::string id;
  NameCase nameCase;
  std::string expected;
};

class NamePipeline : public testing::TestWithParam<NameRow> {};

TEST_P(NamePipeline, MakesAnIdentifier) {
  IDPool pool("Circle");
  EXPECT_EQ(makeTypeName(pool, GetParam().id, GetParam().nameCase), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NamePipeline,
    testing::Values(NameRow{"dashes", "my-shape", NameCase::type, "My_shape"},
                    NameRow{"leadingDigit", "1st", NameCase::type, "Z1st"},
                    NameRow{"leadingUnderscore", "_a", NameCase::type, "Z_a"},
                    NameRow{"leadingDash", "-a", NameCase::type, "Z_a"},
                    NameRow{"propertyLowersFirst", "Paint-1", NameCase::property, "paint_1"},
                    NameRow{"propertyAfterDigit", "9", NameCase::property, "z9"},
                    NameRow{"remainderUntouched", "aBC-dEF", NameCase::type, "ABC_dEF"},
                    NameRow{"nonAsciiLetter", "élan", NameCase::type, "Élan"},
                    NameRow{"sharpSUpperCasesToTwoLetters", "ßx", NameCase::type, "SSx"},
                    NameRow{"combiningMarkStaysWithItsLetter", "e\u0301t", NameCase::type,
                            "E\u0301t"},
                    NameRow{"markIsALetterHere", "\u0301a", NameCase::type, "\u0301a"},
                    NameRow{"emoji", "\U0001F600", NameCase::type, "Z\U0001F600"},
                    NameRow{"empty", "", NameCase::type, ""}),
    [](const auto& info) { return std::string(info.param.label); });

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
