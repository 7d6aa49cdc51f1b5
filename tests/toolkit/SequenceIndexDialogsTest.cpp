#include "host/DLG/SequenceIndexDialogs.h"

#include <gtest/gtest.h>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Runtime.h"
#include "support/Answers.h"
#include "toolkit/OffMainThread.h"

namespace {

using MZ::SequenceIndex::Options;
using qelcore::UTF8String;
using standalone::ExportChoice;

class OptionsDialog : public testing::Test {
 protected:
  standalone::Runtime runtime;
};

TEST_F(OptionsDialog, AnswersTheEditedOptions) {
  Answers answers;
  answers.optionsAnswer = [](const Options& current) {
    Options edited = current;
    edited.isKeepingGaps = !current.isKeepingGaps;
    return edited;
  };
  Options current;
  current.shortGapThreshold = 9;
  const auto edited = DLG::DoSequenceIndexOptionsDialog(current);
  ASSERT_TRUE(edited.has_value());
  EXPECT_TRUE(edited->isKeepingGaps);
  EXPECT_EQ(edited->shortGapThreshold, 9);
}

TEST_F(OptionsDialog, AnswersNothingWhenCancelledOrWithNobodyToAnswer) {
  EXPECT_FALSE(DLG::DoSequenceIndexOptionsDialog({}).has_value());
  Answers answers;
  EXPECT_FALSE(DLG::DoSequenceIndexOptionsDialog({}).has_value());
}

TEST_F(OptionsDialog, FunctionsForTheOutermostLoopWaitUntilItIsClosed) {
  Answers answers;
  bool hasRun = false;
  qelcore::threads::CallFromMainThread([&] { hasRun = true; }, 0, false);
  answers.optionsAnswer = [&](const Options&) {
    runtime.GetMainQueue().RunUntilEmpty();
    EXPECT_FALSE(hasRun);
    return std::nullopt;
  };
  DLG::DoSequenceIndexOptionsDialog({});
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_TRUE(hasRun);
}

class ExportDialog : public testing::Test {
 protected:
  bool Ask() { return DLG::DoExportSequenceIndexDialog(folder, fileName, extension, isOpened); }

  standalone::Runtime runtime;
  UTF8String folder{"C:\\cuts"};
  UTF8String fileName{"Reel 1"};
  UTF8String extension;
  bool isOpened = true;
};

TEST_F(ExportDialog, OffersTheGivenValuesAndTakesTheConfirmedOnes) {
  Answers answers;
  answers.exportAnswer = [](ExportChoice& choice) {
    EXPECT_EQ(choice.folder, "C:\\cuts");
    EXPECT_EQ(choice.fileName, "Reel 1");
    EXPECT_TRUE(choice.extension.Empty());
    EXPECT_TRUE(choice.isOpenedAfterwards);
    choice = {UTF8String("D:\\out"), UTF8String("Reel 2"), UTF8String(".csv"), false};
    return true;
  };
  EXPECT_TRUE(Ask());
  EXPECT_EQ(folder, "D:\\out");
  EXPECT_EQ(fileName, "Reel 2");
  EXPECT_EQ(extension, ".csv");
  EXPECT_FALSE(isOpened);
}

TEST_F(ExportDialog, ACancelledDialogChangesNothing) {
  Answers answers;
  answers.exportAnswer = [](ExportChoice& choice) {
    choice = {UTF8String("D:\\out"), UTF8String("Reel 2"), UTF8String(".csv"), false};
    return false;
  };
  EXPECT_FALSE(Ask());
  EXPECT_EQ(folder, "C:\\cuts");
  EXPECT_EQ(fileName, "Reel 1");
  EXPECT_TRUE(isOpened);
}

TEST_F(ExportDialog, WithNobodyToAnswerItIsCancelled) {
  EXPECT_FALSE(Ask());
}

TEST_F(ExportDialog, StopsOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Ask(), "DoExportSequenceIndexDialog");
  EXPECT_STOPS_OFF_MAIN_THREAD(DLG::DoSequenceIndexOptionsDialog({}), "DoSequenceIndexOptionsDialog");
}

}  // namespace
