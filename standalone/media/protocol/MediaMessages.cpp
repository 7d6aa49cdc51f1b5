#include "standalone/media/protocol/MediaMessages.h"

#include "standalone/media/protocol/ByteReader.h"
#include "standalone/media/protocol/ByteWriter.h"

namespace standalone {

namespace {

/// First in each message. The version tells a worker of another installation.
constexpr std::uint32_t kGreetingMark = 0x53490101;
constexpr std::uint32_t kRequestMark = 0x53490102;
constexpr std::uint32_t kReadingMark = 0x53490103;

std::string_view CutText(std::string_view text) {
  if (text.size() <= kLongestText) return text;
  const auto isInsideCharacter = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
  };
  std::size_t length = kLongestText;
  while (length > 0 && isInsideCharacter(length)) --length;
  return text.substr(0, length);
}

void RequireMark(ByteReader& reader, std::uint32_t mark) {
  reader.Require(reader.Read<std::uint32_t>() == mark);
}

void WriteRatio(ByteWriter& writer, MediaRatio ratio) {
  writer.Write(ratio.numerator);
  writer.Write(ratio.denominator);
}

MediaRatio ReadRatio(ByteReader& reader) {
  MediaRatio ratio;
  ratio.numerator = reader.ReadFrom<std::int64_t>(0);
  ratio.denominator = reader.ReadFrom<std::int64_t>(1);
  return ratio;
}

void WriteFacts(ByteWriter& writer, const MediaFacts& facts) {
  writer.WriteText(CutText(facts.codec));
  writer.Write(facts.fourCC);
  writer.Write(facts.width);
  writer.Write(facts.height);
  WriteRatio(writer, facts.pixelAspect);
  WriteRatio(writer, facts.pictureRate);
  writer.Write(facts.sampleRate);
  writer.Write(facts.duration);
  for (const bool flag : {facts.isStill, facts.hasPicture, facts.hasSound}) writer.Write(flag);
}

MediaFacts ReadFacts(ByteReader& reader) {
  MediaFacts facts;
  facts.codec = reader.ReadText(kLongestText);
  facts.fourCC = reader.Read<std::uint32_t>();
  facts.width = reader.ReadFrom<std::int32_t>(0);
  facts.height = reader.ReadFrom<std::int32_t>(0);
  facts.pixelAspect = ReadRatio(reader);
  facts.pictureRate = ReadRatio(reader);
  facts.sampleRate = reader.ReadFrom<std::int32_t>(0);
  facts.duration = reader.ReadFrom<std::int64_t>(0);
  for (bool* const flag : {&facts.isStill, &facts.hasPicture, &facts.hasSound}) {
    *flag = reader.ReadFlag();
  }
  return facts;
}

MediaOutcome ReadOutcome(ByteReader& reader) {
  const auto number = reader.Read<std::uint8_t>();
  reader.Require(number < static_cast<std::uint8_t>(MediaOutcome::kCancelled));
  return static_cast<MediaOutcome>(number);
}

template <typename T>
std::optional<T> TakeIfWhole(const ByteReader& reader, T& message) {
  if (!reader.IsWhole()) return std::nullopt;
  return std::move(message);
}

}  // namespace

std::string EncodeGreeting(const WorkerGreeting& greeting) {
  ByteWriter writer;
  writer.Write(kGreetingMark);
  writer.WriteText(CutText(greeting.failure));
  return writer.Take();
}

std::optional<WorkerGreeting> DecodeGreeting(std::string_view message) {
  ByteReader reader(message);
  RequireMark(reader, kGreetingMark);
  WorkerGreeting greeting{reader.ReadText(kLongestText)};
  return TakeIfWhole(reader, greeting);
}

std::string EncodeRequest(const MediaReadRequest& request) {
  ByteWriter writer;
  writer.Write(kRequestMark);
  writer.Write(static_cast<std::int64_t>(request.timeLimit.count()));
  writer.WriteText(request.path);
  return writer.Take();
}

std::optional<MediaReadRequest> DecodeRequest(std::string_view message) {
  ByteReader reader(message);
  RequireMark(reader, kRequestMark);
  MediaReadRequest request;
  request.timeLimit = std::chrono::milliseconds(reader.Read<std::int64_t>());
  request.path = reader.ReadText(kLongestPath);
  return TakeIfWhole(reader, request);
}

std::string EncodeReading(const MediaReading& reading) {
  ByteWriter writer;
  writer.Write(kReadingMark);
  writer.Write(static_cast<std::uint8_t>(reading.outcome));
  if (reading.outcome == MediaOutcome::kRead) {
    WriteFacts(writer, reading.facts);
  } else {
    writer.WriteText(CutText(reading.reason));
  }
  return writer.Take();
}

std::optional<MediaReading> DecodeReading(std::string_view message) {
  ByteReader reader(message);
  RequireMark(reader, kReadingMark);
  MediaReading reading;
  reading.outcome = ReadOutcome(reader);
  if (reading.outcome == MediaOutcome::kRead) {
    reading.facts = ReadFacts(reader);
  } else {
    reading.reason = reader.ReadText(kLongestText);
  }
  return TakeIfWhole(reader, reading);
}

}  // namespace standalone
