#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/documents/DocumentSession.h"
#include "support/Process.h"
#include "support/SteppedHost.h"

namespace standalone {

/// A timeline file with a timeline for each name, each of one clip of `frames` frames that plays
/// `media` (empty: no file), and of a nested sequence of such a clip, if `nested` is not empty.
inline std::string MakeFile(const std::vector<std::string>& names, int frames = 10,
                            const std::string& media = {}, const std::string& nested = {}) {
  const std::string rate = R"(, "rate": 25})";
  const std::string reference =
      media.empty() ? ""
                    : R"("media_reference": {"OTIO_SCHEMA": "ExternalReference.1", "target_url": ")" +
                          media + R"("}, )";
  const std::string clip = R"({"OTIO_SCHEMA": "Clip.1", "name": "Clip", )" + reference +
                           R"("source_range": {"OTIO_SCHEMA": "TimeRange.1",)"
                           R"( "start_time": {"OTIO_SCHEMA": "RationalTime.1", "value": 0)" +
                           rate + R"(, "duration": {"OTIO_SCHEMA": "RationalTime.1", "value": )" +
                           std::to_string(frames) + rate + "}}";
  const std::string track =
      R"({"OTIO_SCHEMA": "Track.1", "kind": "Video", "children": [)" + clip + "]}";
  const std::string stack = nested.empty() ? ""
                                           : R"(, {"OTIO_SCHEMA": "Stack.1", "name": ")" + nested +
                                                 R"(", "children": [)" + track + "]}";
  std::string timelines;
  for (const std::string& name : names) {
    if (!timelines.empty()) timelines += ",\n";
    timelines += R"({"OTIO_SCHEMA": "Timeline.1", "name": ")" + name +
                 R"(", "tracks": {"OTIO_SCHEMA": "Stack.1", "children": [{"OTIO_SCHEMA": "Track.1",)"
                 R"( "kind": "Video", "children": [)" +
                 clip + stack + "]}]}}";
  }
  return R"({"OTIO_SCHEMA": "SerializableCollection.1", "children": [)" + timelines + "]}";
}

/// Writes down what it hears; `onChange` runs inside DocumentChanged.
class Journal final : public DocumentObserver {
 public:
  void LoadingProgressed(const std::filesystem::path&, LoadingStep step, double fraction) override {
    EXPECT_GE(fraction, 0);
    EXPECT_LE(fraction, 1);
    if (step == LoadingStep::kTimeline) ++progressCount;
  }
  void LoadingEnded(const std::filesystem::path& file) override { Add("ended", file); }
  void DocumentChanged(const OpenDocument& document) override {
    Add(document.trouble.empty() ? "changed" : "trouble", document.file);
    lastTrouble = document.trouble;
    // A copy: it may replace itself.
    if (const auto held = onChange) held();
  }
  void DocumentFailed(const std::filesystem::path& file, std::size_t line,
                      const std::string& sentence) override {
    Add("failed", file);
    lastLine = line;
    lastTrouble = sentence;
  }
  void MediaFilesCantBeRead(const std::string&) override { calls.emplace_back("no media"); }
  void DocumentClosed(const std::filesystem::path& file) override { Add("closed", file); }

  std::vector<std::string> Take() { return std::exchange(calls, {}); }

  int progressCount = 0;
  std::size_t lastLine = 0;
  std::string lastTrouble;
  std::function<void()> onChange;

 private:
  void Add(std::string_view what, const std::filesystem::path& file) {
    calls.push_back(std::string(what) + " " + file.filename().native());
  }
  std::vector<std::string> calls;
};

class DocumentSessionTest : public testing::Test {
 protected:
  void SetUp() override { Start({}); }
  void Start(LoadingOptions options) {
    session.emplace(host->GetProject(), std::move(options), journal);
  }
  std::filesystem::path Write(const std::string& name, const std::string& text) {
    process::WriteFile(folder / name, text);
    return folder / name;
  }
  void Open(const std::filesystem::path& file) {
    session->Open(file);
    host.Settle();
  }
  void Reload(const std::filesystem::path& file) {
    session->Reload(file);
    host.Settle();
  }
  /// Reads what the file under way holds, and shows it; its media files are left for later.
  void RunOneStep() {
    host.GetPool().RunOne();
    host.GetMainQueue().RunUntilEmpty();
  }
  std::vector<std::string> GetNames() {
    std::vector<std::string> names;
    for (const auto& sequence : host->GetProject().GetSequences()) {
      names.emplace_back(sequence->GetName().View());
    }
    return names;
  }
  std::vector<std::string> GetNestedNames() {
    std::vector<std::string> names;
    for (const auto& sequence : host->GetProject().GetNestedSequences()) {
      names.emplace_back(sequence->GetName().View());
    }
    return names;
  }
  std::string GetActiveName() {
    const auto active = host->GetProject().GetActiveSequence();
    return active ? std::string(active->GetName().View()) : "";
  }

  process::Folder folder;
  SteppedHost host;
  Journal journal;
  std::optional<DocumentSession> session;
};

}  // namespace standalone
