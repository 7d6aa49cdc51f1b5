#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "host/HostAPI.h"

namespace qelui::controls {

/// The pictures of a control, one for each of its states. [main-thread]
class HOST_API ImageHandler {
 public:
  /// A picture of the host's, by number ("decal").
  using DecalID = std::uint32_t;

  /// `decals` has a picture for each state, from state 0; not empty.
  static std::shared_ptr<ImageHandler> Create(std::vector<DecalID> decals);
  ~ImageHandler();
  ImageHandler(const ImageHandler&) = delete;
  ImageHandler& operator=(const ImageHandler&) = delete;

  /// Shows the picture of a state; the first one at the beginning. The control is not told: whoever
  /// calls this has it drawn anew (UI_Invalidate). Throws: qel_exception for a state without a picture.
  void SetImageState(std::size_t state);
  std::size_t GetImageState() const noexcept { return state; }
  /// The picture shown now.
  DecalID GetDecal() const { return decals[state]; }

 private:
  explicit ImageHandler(std::vector<DecalID> decals);

  std::vector<DecalID> decals;
  std::size_t state = 0;
};

/// What a control that shows pictures can be asked. [main-thread]
class HOST_API UI_ImageHandling {
 public:
  virtual ~UI_ImageHandling();
  /// The control shares the handler; empty: no picture.
  void SetImageHandler(std::shared_ptr<ImageHandler> newHandler);
  const std::shared_ptr<ImageHandler>& GetImageHandler() const noexcept { return handler; }

 protected:
  UI_ImageHandling();

 private:
  std::shared_ptr<ImageHandler> handler;
};

}  // namespace qelui::controls
