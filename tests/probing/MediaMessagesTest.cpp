#include "standalone/media/protocol/MediaMessages.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace standalone {
namespace {

MediaReading MakeReading() {
  MediaReading reading;
  reading.outcome = MediaOutcome::kRead;
  reading.facts.codec = "H.264 \xE2\x80\x94 \xD0\xBA";
  reading.facts.fourCC = 0xFF766331;
  reading.facts.width = std::numeric_limits<std::int32_t>::max();
  reading.facts.height = 1080;
  reading.facts.pixelAspect = {64, 45};
  reading.facts.pictureRate = {30000, 1001};
  reading.facts.sampleRate = 48000;
  reading.facts.duration = std::numeric_limits<std::int64_t>::max();
  reading.facts.isStill = true;
  reading.facts.hasSound = true;
  return reading;
}

MediaReading MakeFailure(MediaOutcome outcome, std::string reason) {
  MediaReading reading;
  reading.outcome = outcome;
  reading.reason = std::move(reason);
  return reading;
}

TEST(MediaMessages, FactsArriveAsTheyWereSent) {
  const MediaReading sent = MakeReading();
  const auto received = DecodeReading(EncodeReading(sent));
  ASSERT_TRUE(received);
  EXPECT_EQ(received->outcome, MediaOutcome::kRead);
  EXPECT_EQ(received->facts, sent.facts);
  EXPECT_EQ(received->reason, "");
}

TEST(MediaMessages, EveryFailureArrivesWithItsReason) {
  for (const MediaOutcome outcome :
       {MediaOutcome::kUnknownKind, MediaOutcome::kDamaged, MediaOutcome::kAbsent,
        MediaOutcome::kInaccessible, MediaOutcome::kTimeLimit}) {
    const auto received = DecodeReading(EncodeReading(MakeFailure(outcome, "it is so")));
    ASSERT_TRUE(received);
    EXPECT_EQ(received->outcome, outcome);
    EXPECT_EQ(received->reason, "it is so");
  }
}

TEST(MediaMessages, PathsOfAnyBytesArriveAsTheyWereSent) {
  MediaReadRequest request;
  for (int byte = 0; byte < 256; ++byte) request.path += static_cast<char>(byte);
  request.path.resize(kLongestPath, '\xFF');
  request.timeLimit = std::chrono::milliseconds(1234);
  const std::string message = EncodeRequest(request);
  EXPECT_LE(message.size(), kLongestMessage);
  const auto received = DecodeRequest(message);
  ASSERT_TRUE(received);
  EXPECT_EQ(received->path, request.path);
  EXPECT_EQ(received->timeLimit, request.timeLimit);
}

TEST(MediaMessages, LongTextsAreCutBetweenCharacters) {
  std::string text(kLongestText - 1, 'x');
  text += "\xD0\xBA and more";
  const auto received = DecodeReading(EncodeReading(MakeFailure(MediaOutcome::kDamaged, text)));
  ASSERT_TRUE(received);
  EXPECT_EQ(received->reason, std::string(kLongestText - 1, 'x'));
  const auto greeting = DecodeGreeting(EncodeGreeting({text}));
  ASSERT_TRUE(greeting);
  EXPECT_EQ(greeting->failure, std::string(kLongestText - 1, 'x'));
}

TEST(MediaMessages, OneThatLacksBytesOrHasMoreIsNone) {
  for (const MediaReading& reading : {MakeReading(), MakeFailure(MediaOutcome::kDamaged, "why")}) {
    const std::string message = EncodeReading(reading);
    for (std::size_t length = 0; length < message.size(); ++length) {
      EXPECT_FALSE(DecodeReading(message.substr(0, length))) << length;
    }
    EXPECT_FALSE(DecodeReading(message + '\0'));
  }
}

TEST(MediaMessages, OneOfAnotherKindIsNone) {
  EXPECT_FALSE(DecodeReading(EncodeGreeting({})));
  EXPECT_FALSE(DecodeGreeting(EncodeReading(MakeReading())));
  EXPECT_FALSE(DecodeRequest(EncodeReading(MakeReading())));
}

TEST(MediaMessages, FactsThatNoFileHasAreNone) {
  const auto isTaken = [](const auto& change) {
    MediaReading reading = MakeReading();
    change(reading);
    return DecodeReading(EncodeReading(reading)).has_value();
  };
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.width = -1; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.height = -1; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.sampleRate = -1; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.duration = -1; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.pixelAspect = {1, 0}; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.facts.pictureRate = {-1, 1}; }));
  EXPECT_FALSE(isTaken([](MediaReading& reading) { reading.outcome = MediaOutcome::kCancelled; }));
  EXPECT_FALSE(
      isTaken([](MediaReading& reading) { reading.outcome = static_cast<MediaOutcome>(200); }));
}

TEST(MediaMessages, WhateverBytesArriveDecodeWithinBoundsOrNotAtAll) {
  std::mt19937 random(20);
  const auto pick = [&](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
  const std::string originals[] = {EncodeReading(MakeReading()),
                                   EncodeReading(MakeFailure(MediaOutcome::kDamaged, "why"))};
  int taken = 0;
  for (int round = 0; round < 50'000; ++round) {
    std::string message = originals[pick(2)];
    for (std::size_t changes = 1 + pick(4); changes > 0; --changes) {
      message[pick(message.size())] = static_cast<char>(random());
    }
    if (pick(4) == 0) message.resize(pick(2 * message.size()), 'x');
    const auto reading = DecodeReading(message);
    if (!reading) continue;
    ++taken;
    EXPECT_LT(reading->outcome, MediaOutcome::kCancelled);
    EXPECT_LE(reading->facts.codec.size() + reading->reason.size(), message.size());
    EXPECT_GE(reading->facts.width, 0);
    EXPECT_GT(reading->facts.pictureRate.denominator, 0);
    EXPECT_EQ(DecodeReading(EncodeReading(*reading))->facts, reading->facts);
  }
  EXPECT_GT(taken, 0);
}

}  // namespace
}  // namespace standalone
