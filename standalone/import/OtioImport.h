#pragma once

#include <filesystem>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/import/MediaAddress.h"
#include "standalone/import/OtioSchema.h"
#include "standalone/import/TimelineReader.h"

namespace standalone {

/// Where an item stands; becomes a text only when there is something to tell.
struct OtioPlace {
  /// Named only where a file holds several sequences.
  std::string_view sequence;
  /// "V2"; empty outside of tracks.
  std::string_view track;
  /// "clip"; empty for the track or sequence itself.
  std::string_view itemWord;
  std::string_view itemName;

  std::string Describe() const;
};

/// What the parts of one read share.
class OtioImport {
 public:
  OtioImport(const std::filesystem::path& file, const ImportProgress& progress);

  /// Absolute folder of the timeline file.
  const std::filesystem::path& GetFolder() const { return folder; }
  /// The file's name without its extension, for what has no name of its own.
  const std::string& GetStem() const { return stem; }

  void AddNote(const OtioPlace& place, JsonValue object, std::string sentence);
  std::vector<ImportNote> TakeNotes() { return std::move(notes); }

  /// The schema of an object; the first of a newer version is noted.
  OtioSchema Recognise(JsonValue object, const OtioPlace& place);

  bool FileExists(const std::filesystem::path& path) { return files.Exists(path); }

  /// Progress goes on from `parsedFraction` to 1 as values with indexes up to `nodeCount` are used.
  void SetScale(double parsedFraction, std::size_t nodeCount);
  /// Called for each item of a track: reports now and then; throws ImportError when the read is
  /// cancelled.
  void Reach(JsonValue item);
  void Finish() const;

 private:
  std::filesystem::path folder;
  std::string stem;
  FileLookUp files;
  std::vector<ImportNote> notes;
  std::set<std::string_view> newerSchemas;
  const ImportProgress& progress;
  double parsedFraction = 0;
  std::size_t nodeCount = 1;
  std::size_t nextReport = 0;
};

/// Our own metadata of an object: the value of "sequence_index".
inline JsonValue GetIndexMetadata(JsonValue object) {
  return object[JsonKey::kMetadata][JsonKey::kSequenceIndex];
}

/// Items and tracks are enabled unless the file says otherwise; older files don't say.
inline bool IsOtioEnabled(JsonValue object) {
  return object[JsonKey::kEnabled].GetBool().value_or(true);
}

/// The first text that is not empty.
std::string FirstText(std::initializer_list<JsonValue> candidates);

/// The texts of an array, or a single one, without empty ones.
std::vector<std::string> ReadTexts(JsonValue value);

}  // namespace standalone
