#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/MF/BinaryData.h"
#include "standalone/runtime/StandaloneAPI.h"

/// How a text document lies in a parameter value of this host. All numbers are 32 bits, lowest byte
/// first:
///
///   4 bytes   "TXD1"
///   number    how many font names follow
///   for each  number: bytes of the name, then the name in UTF-8
///
/// Nothing may follow the last name.
namespace standalone {

/// [any-thread]
STANDALONE_API MF::BinaryData EncodeTextDocument(const std::vector<std::string>& fonts);

/// The font names, borrowed from `data`; nothing when its bytes are no document. [any-thread]
std::optional<std::vector<std::string_view>> DecodeTextDocument(const MF::BinaryData& data);

}  // namespace standalone
