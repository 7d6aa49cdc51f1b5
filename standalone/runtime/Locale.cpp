#include "host/qelcore/Locale.h"

#include <cstddef>

namespace qelcore {

Locale::Locale() noexcept : lowered() {
  for (std::size_t byte = 0; byte < lowered.size(); ++byte) lowered[byte] = static_cast<char>(byte);
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    lowered[static_cast<unsigned char>(letter)] = static_cast<char>(letter - 'A' + 'a');
  }
}

const Locale& Locale::Default() noexcept {
  static const Locale classic;
  return classic;
}

}  // namespace qelcore
