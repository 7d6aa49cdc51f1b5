#include "standalone/import/OtioImport.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace standalone {
namespace {

void Append(std::string& text, std::string_view word, std::string_view name) {
  if (!text.empty()) text += ", ";
  text.append(word).append(" \"").append(name).append("\"");
}

}  // namespace

std::string OtioPlace::Describe() const {
  std::string text;
  if (!sequence.empty()) Append(text, "sequence", sequence);
  if (!track.empty()) text.append(text.empty() ? "track " : ", track ").append(track);
  if (!itemWord.empty()) Append(text, itemWord, itemName);
  return text;
}

OtioImport::OtioImport(const std::filesystem::path& file, const ImportProgress& progress)
    : stem(file.stem().string()), progress(progress) {
  std::error_code error;
  folder = std::filesystem::absolute(file, error).lexically_normal().parent_path();
}

void OtioImport::AddNote(const OtioPlace& place, JsonValue object, std::string sentence) {
  notes.push_back(ImportNote{place.Describe(), object.GetLine(), std::move(sentence)});
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
