#include "host/qelcore/Localizer.h"

#include <gtest/gtest.h>

namespace {

using qelcore::config::Localizer;
using qelcore::config::ReplaceArguments;

std::string Localized(std::string_view key) {
  return std::string(Localizer::Get().Localize(key).View());
}

TEST(Localizer, TheTextStandsBetweenTheFirstEqualsSignAndTheRemark) {
  EXPECT_EQ(Localized("$$$/Handlers/SequenceIndex/IndexColumnName=Clip Name#{comment}QELMX-4248997"),
            "Clip Name");
  EXPECT_EQ(Localized("$$$/A=B"), "B");
}

TEST(Localizer, ANumberSignBeforeTheRemarkBelongsToTheText) {
  EXPECT_EQ(Localized("$$$/Handlers/SequenceIndex/IndexColumnIndex=##{comment}QELMX-4248997"), "#");
  EXPECT_EQ(Localized("$$$/A=#{0} left#{comment}x"), "#{0} left");
}

TEST(Localizer, LaterEqualsSignsBelongToTheText) {
  EXPECT_EQ(Localized("$$$/A=a=b=c"), "a=b=c");
}

TEST(Localizer, BlanksAndLineBreaksAtTheEndsStay) {
  EXPECT_EQ(Localized("$$$/A=[IN]: #{comment}x"), "[IN]: ");
  EXPECT_EQ(Localized("$$$/A= Active Filters: \n#{comment}x"), " Active Filters: \n");
}

TEST(Localizer, AnEmptyTextIsEmpty) {
  EXPECT_EQ(Localized("$$$/A=#{comment}nothing"), "");
}

TEST(Localizer, AKeyWithoutEqualsSignGivesItself) {
  EXPECT_EQ(Localized("$$$/A#{comment}x"), "$$$/A#{comment}x");
}

TEST(Localizer, IsOneObject) {
  EXPECT_EQ(&Localizer::Get(), &Localizer::Get());
}

TEST(ReplaceArguments, PutsArgumentsInPlaceOfTheirNumbers) {
  EXPECT_EQ(ReplaceArguments("@0 of @1 Item(s) Selected", {"3", "12"}), "3 of 12 Item(s) Selected");
  EXPECT_EQ(ReplaceArguments("@1@0@1", {"a", "b"}), "bab");
}

TEST(ReplaceArguments, NeverSearchesWhatAnArgumentBringsIn) {
  EXPECT_EQ(ReplaceArguments("@0 - @1", {"@1", "@0 cut"}), "@1 - @0 cut");
  EXPECT_EQ(ReplaceArguments("@00", {"@"}), "@0");
}

TEST(ReplaceArguments, UnknownNumbersStay) {
  EXPECT_EQ(ReplaceArguments("@0 @1 @9 @x @", {"a"}), "a @1 @9 @x @");
  EXPECT_EQ(ReplaceArguments("@0", {}), "@0");
}

TEST(ReplaceArguments, ANumberIsOneDigit) {
  EXPECT_EQ(ReplaceArguments("@12", {"a", "b"}), "b2");
}

}  // namespace
