#pragma once

#include <cstdint>

#include "host/HostAPI.h"

namespace qelui::utility {

/// How a control of the toolkit is built: measures in pixels.
struct StyleResource {
  float height = 0;
  /// What stays free before a text.
  float textInset = 0;
  friend constexpr bool operator==(const StyleResource&, const StyleResource&) noexcept = default;
};

/// The number of the style of header rows, and its variants.
inline constexpr std::uint32_t kHeaderRowStyle = 10;
inline constexpr std::uint32_t kPlainHeaderRow = 0;
inline constexpr std::uint32_t kOutlinedHeaderRow = 3;

/// The host's resources, the same for the host's whole life. [main-thread]
class HOST_API ResourceManager {
 public:
  virtual ~ResourceManager();
  ResourceManager(const ResourceManager&) = delete;
  ResourceManager& operator=(const ResourceManager&) = delete;

  /// Throws: qel_exception for a style or a variant that there is none of.
  virtual const StyleResource& GetResource(std::uint32_t number, std::uint32_t variant) const = 0;

 protected:
  ResourceManager();
};

/// [main-thread]
HOST_API const ResourceManager& GetResourceManager();

}  // namespace qelui::utility
