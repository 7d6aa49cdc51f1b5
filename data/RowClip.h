#pragma once

#include <optional>

#include "data/TrackItemRowData.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {

/// What several cells of a row want to know of its clip; each is asked of the host once, when it is
/// first wanted. The row stays as it is meanwhile. One thread at a time.
class RowClip {
 public:
  RowClip() = default;
  explicit RowClip(const TrackItemRowData& row) noexcept : row(&row) {}

  /// Throws: null_pointer_exception when the row has no track item.
  bool IsGap() { return isGap ? *isGap : AskIsGap(); }
  /// Each may be empty.
  qelcore::Borrowed<BE::IMasterClip> GetMasterClip();
  qelcore::Borrowed<BE::IProjectItem> GetProjectItem();
  qelcore::Borrowed<BE::IMedia> GetMedia();

 private:
  bool AskIsGap();

  const TrackItemRowData* row = nullptr;
  std::optional<bool> isGap;
  std::optional<qelcore::Borrowed<BE::IMasterClip>> masterClip;
  std::optional<qelcore::Borrowed<BE::IProjectItem>> projectItem;
  std::optional<qelcore::Borrowed<BE::IMedia>> media;
};

}  // namespace Vantrel
