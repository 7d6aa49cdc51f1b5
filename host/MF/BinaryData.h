#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace MF {

/// The bytes of a binary parameter value; copies share them. Immutable. [any-thread]
class BinaryData {
 public:
  BinaryData() noexcept = default;
  explicit BinaryData(std::shared_ptr<const std::vector<std::byte>> bytes) noexcept
      : bytes(std::move(bytes)) {}

  const std::byte* GetData() const noexcept { return bytes ? bytes->data() : nullptr; }
  std::size_t GetSize() const noexcept { return bytes ? bytes->size() : 0; }

 private:
  std::shared_ptr<const std::vector<std::byte>> bytes;
};

}  // namespace MF
