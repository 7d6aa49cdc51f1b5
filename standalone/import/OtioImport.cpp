#include "standalone/import/OtioImport.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>

namespace standalone {
OtioImport::OtioImport(const TimelineSource& source, const ImportProgress& progress)
    : folder(source.mediaFolder),
      roots(source.mediaRoots),
      stem(source.stem),
      files(folder),
      progress(progress) {}

void OtioImport::AddNote(const OtioPlace& place, JsonValue object, std::string sentence) {
  notes.push_back(ImportNote{place.Describe(), object.GetLine(), std::move(sentence)});
}

void OtioImport::AddNote(std::size_t line, std::string sentence) {
  notes.push_back(ImportNote{{}, line, std::move(sentence)});
}

std::vector<ImportNote> OtioImport::TakeNotes() {
  std::stable_sort(notes.begin(), notes.end(), [](const ImportNote& left, const ImportNote& right) {
    return left.line < right.line;
  });
  return std::move(notes);
}

JsonValue OtioImport::Expect(JsonValue object, JsonKey key, JsonValue::Type type,
                             const OtioPlace& place, std::string_view sentence) {
  const JsonValue member = object[key];
  if (member.GetType() == type) return member;
  if (member.HasValue()) AddNote(place, member, std::string(sentence));
  return {};
}

LocatedMedia& OtioImport::LocateMedia(std::string_view written) {
  const std::uint64_t hash = std::hash<std::string_view>()(written);
  const auto isSame = [written](const LocatedMedia* media) { return media->written == written; };
  if (LocatedMedia* const* const known = mediaByAddress.Find(hash, isSame)) return **known;
  LocatedMedia& media = locatedMedia.emplace_back();
  media.written = written;
  media.address = ReadMediaAddress(written, folder);
  roots.Locate(media.address, files);
  media.text = media.address.text;
  media.lookUpPath = media.address.lookUpPath.native();
  mediaByAddress.Add(hash, &media);
  return media;
}

bool OtioImport::FileExists(LocatedMedia& media) {
  if (!media.exists) media.exists = files.Exists(media.address.lookUpPath);
  return *media.exists;
}

OtioSchema OtioImport::Recognise(JsonValue object, const OtioPlace& place) {
  const OtioSchema schema = GetOtioSchema(object);
  if (schema.isNewer && newerSchemas.insert(schema.name).second) {
    AddNote(place, object,
            std::string(object[JsonKey::kSchema].GetText()) +
                " is newer than this reader; only the fields it knows are read.");
  }
  return schema;
}

void OtioImport::SetScale(double fraction, std::size_t count) {
  parsedFraction = fraction;
  nodeCount = std::max<std::size_t>(count, 1);
}

void OtioImport::Reach(JsonValue item) {
  // Some thousand clips: a few milliseconds.
  constexpr std::size_t kStep = std::size_t{1} << 16;
  if (item.GetIndex() < nextReport) return;
  nextReport = item.GetIndex() + kStep;
  if (progress.isCancelled && progress.isCancelled()) throw ImportError(0, "Reading was cancelled.");
  if (!progress.report) return;
  const double used = static_cast<double>(item.GetIndex()) / static_cast<double>(nodeCount);
  progress.report(parsedFraction + (1 - parsedFraction) * used);
}

void OtioImport::Finish() const {
  if (progress.report) progress.report(1);
}

std::string FirstText(std::initializer_list<JsonValue> candidates) {
  for (const JsonValue candidate : candidates) {
    if (!candidate.GetText().empty()) return candidate.GetString();
  }
  return {};
}

std::vector<std::string> ReadTexts(JsonValue value) {
  std::vector<std::string> texts;
  if (!value.GetText().empty()) texts.push_back(value.GetString());
  if (!value.IsArray()) return texts;
  for (const JsonValue element : value) {
    if (!element.GetText().empty()) texts.push_back(element.GetString());
  }
  return texts;
}

}  // namespace standalone
