#pragma once

#include <deque>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/MediaAddress.h"
#include "standalone/import/OtioPlace.h"
#include "standalone/import/OtioReport.h"
#include "standalone/import/OtioSchema.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/FlatTable.h"
#include "standalone/model/SharedText.h"

namespace standalone {

/// A media address of the file, and whether its file exists, as far as that was asked.
struct LocatedMedia {
  /// What the file writes.
  std::string written;
  MediaAddress address;
  /// The address again, as the drafts of all clips that play it share it.
  SharedText text = {};
  SharedText lookUpPath = {};
  std::optional<bool> exists = {};
};

/// What the parts of one read share.
class OtioImport {
 public:
  OtioImport(const TimelineSource& source, const ImportProgress& progress);

  /// Where relative media addresses lead.
  const MediaFolder& GetFolder() const { return folder; }
  /// For what has no name of its own.
  const std::string& GetStem() const { return stem; }

  void AddNote(const OtioPlace& place, JsonValue object, std::string sentence);
  /// Of what belongs to no item.
  void AddNote(std::size_t line, std::string sentence);
  /// In the order of the file.
  std::vector<ImportNote> TakeNotes();
  OtioReport& GetReport() { return report; }

  /// The member of an object when it is of that type. Of another one it is noted with the sentence and
  /// counts as absent; null is just absent.
  JsonValue Expect(JsonValue object, JsonKey key, JsonValue::Type type, const OtioPlace& place,
                   std::string_view sentence);

  /// The schema of an object; the first of a newer version is noted.
  OtioSchema Recognise(JsonValue object, const OtioPlace& place);

  /// The address that the file names, with where to look for its file: the media roots are tried when
  /// nothing lies where it says. Valid as long as this object.
  LocatedMedia& LocateMedia(std::string_view written);
  bool FileExists(LocatedMedia& media);

  /// Progress goes on from `parsedFraction` to 1 as values with indexes up to `nodeCount` are used.
  void SetScale(double parsedFraction, std::size_t nodeCount);
  /// Called for each item of a track: reports now and then; throws ImportError when the read is
  /// cancelled.
  void Reach(JsonValue item);
  void Finish() const;

 private:
  MediaFolder folder;
  MediaRoots roots;
  std::string stem;
  FileLookUp files;
  std::deque<LocatedMedia> locatedMedia;
  /// Of these, by what the file writes: clips name the same few addresses over and over.
  FlatTable<LocatedMedia*> mediaByAddress;
  std::vector<ImportNote> notes;
  OtioReport report;
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
