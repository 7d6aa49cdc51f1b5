#include "standalone/app/SequenceChoice.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace standalone {
namespace {

const std::vector<std::string> kReels{"Reel 1", "Reel 2", "Cut", "Cut", "#1"};

std::string GetFailure(const std::vector<std::string>& names, const std::string& wish) {
  try {
    return "chose " + std::to_string(ChooseSequence(names, wish));
  } catch (const std::runtime_error& failure) {
    return failure.what();
  }
}

TEST(SequenceChoice, ANameThatOneSequenceHasChoosesIt) {
  EXPECT_EQ(ChooseSequence(kReels, "Reel 1"), 0U);
  EXPECT_EQ(ChooseSequence(kReels, "Reel 2"), 1U);
}

TEST(SequenceChoice, PositionsCountFromOneInFileOrder) {
  EXPECT_EQ(ChooseSequence(kReels, "#2"), 1U);
  EXPECT_EQ(ChooseSequence(kReels, "#4"), 3U);
}

TEST(SequenceChoice, ANameOfSeveralIsRefusedWithTheirPositions) {
  EXPECT_EQ(
      GetFailure(kReels, "Cut"),
      "\"Cut\" can mean several sequences, #3 \"Cut\", #4 \"Cut\"; give a position or a name that "
      "only one has.");
}

TEST(SequenceChoice, APositionThatIsTheNameOfAnotherIsRefused) {
  EXPECT_EQ(
      GetFailure(kReels, "#1"),
      "\"#1\" can mean several sequences, #1 \"Reel 1\", #5 \"#1\"; give a position or a name that "
      "only one has.");
  EXPECT_EQ(ChooseSequence({"#1", "B"}, "#1"), 0U);
}

TEST(SequenceChoice, WhatIsNotThereIsRefusedWithWhatIs) {
  for (const char* wish : {"reel 1", "#0", "#6", "#", "#02", "2", ""}) {
    EXPECT_EQ(GetFailure({"Reel 1", "Reel 2"}, wish), "There is no sequence \"" + std::string(wish) +
                                                          "\"; there is #1 \"Reel 1\", #2 \"Reel 2\".");
  }
}

TEST(SequenceChoice, AListOfManyIsBounded) {
  const std::vector<std::string> many(5000, "Cut");
  const std::string failure = GetFailure(many, "Reel");
  EXPECT_NE(failure.find("#12 \"Cut\" and 4988 more."), std::string::npos) << failure;
}

TEST(SequenceChoice, ASequenceWithoutNameIsChosenByItsPosition) {
  EXPECT_EQ(ChooseSequence({"", "A"}, "#1"), 0U);
  EXPECT_EQ(ChooseSequence({"", "A"}, ""), 0U);
}

}  // namespace
}  // namespace standalone
