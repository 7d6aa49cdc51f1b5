#pragma once

#include <memory>
#include <vector>

#include "host/HostAPI.h"
#include "host/MF/BinaryData.h"
#include "host/qelcore/UTF8String.h"

namespace BE {

/// The text of a title, with its styles. Immutable. [any-thread]
class HOST_API TextDocument {
 public:
  TextDocument(const TextDocument&) = delete;
  TextDocument& operator=(const TextDocument&) = delete;

  /// Reads a document from a parameter value; bytes that are no document give an empty one.
  static std::shared_ptr<const TextDocument> Create(const MF::BinaryData& data);

  /// The names of the fonts in order of first use; one name may come again.
  const std::vector<qelcore::UTF8String>& GetUsedFonts() const noexcept { return usedFonts; }

 private:
  TextDocument();
  std::vector<qelcore::UTF8String> usedFonts;
};

}  // namespace BE
