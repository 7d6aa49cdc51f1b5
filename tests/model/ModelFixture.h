#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "host/BE/Model.h"
#include "host/BE/ReadMutex.h"
#include "host/BE/VisitSequence.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "support/Drafts.h"

/// A runtime with a project, as the host has them.
struct Model {
  standalone::Runtime runtime;
  standalone::ProjectModel project;

  qelcore::Ref<BE::ISequence> Add(standalone::SequenceDraft draft) {
    return project.AddDocument(drafts::MakeDocument(std::move(draft))).front();
  }
};

class ModelTest : public testing::Test {
 protected:
  Model model;
};

/// All track items of a sequence, in visiting order.
inline std::vector<qelcore::Ref<BE::ITrackItem>> CollectItems(
    const qelcore::Ref<BE::ISequence>& sequence) {
  std::vector<qelcore::Ref<BE::ITrackItem>> items;
  BE::VisitSequence(sequence, [&](qelcore::IUnknown& node) {
    if (auto* const item = qelcore::FindInterface<BE::ITrackItem>(&node)) items.emplace_back(item);
    return BE::VisitorStatus::kContinue;
  });
  return items;
}

/// The clip items among them.
inline std::vector<qelcore::Ref<BE::ITrackItem>> CollectClips(
    const qelcore::Ref<BE::ISequence>& sequence) {
  auto items = CollectItems(sequence);
  std::erase_if(items, [](const auto& item) { return item->GetType() != BE::kTrackItemType_Clip; });
  return items;
}

/// An item as a test reads it: type, and start and end in frames at 25 a second; the open filler's end
/// stands as -1.
struct ItemSpan {
  std::uint32_t type;
  std::int64_t start;
  std::int64_t end;
  friend bool operator==(const ItemSpan&, const ItemSpan&) = default;
};

inline void PrintTo(const ItemSpan& span, std::ostream* out) {
  *out << '{' << span.type << ", " << span.start << ", " << span.end << '}';
}

inline ItemSpan SpanOf(const BE::ITrackItem& item) {
  const qelmediatypes::TickTime frame = drafts::Frame(1);
  const bool isFiller = item.GetEnd() == qelmediatypes::kOneHundredHours;
  return {item.GetType(), item.GetStart().ToFrame64(frame),
          isFiller ? -1 : item.GetEnd().ToFrame64(frame)};
}

inline std::vector<ItemSpan> CollectSpans(const qelcore::Ref<BE::ISequence>& sequence) {
  std::vector<ItemSpan> spans;
  for (const auto& item : CollectItems(sequence)) spans.push_back(SpanOf(*item));
  return spans;
}

/// Counts itself, for the fakes of a test.
template <typename Interface>
class Fake : public Interface {
 public:
  void AddRef() const noexcept override { ++count; }
  void Release() const noexcept override {
    if (--count == 0) delete this;
  }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == Interface::kInterfaceID ? static_cast<Interface*>(this) : nullptr;
  }

 protected:
  ~Fake() override = default;

 private:
  mutable std::atomic<int> count{0};
};
