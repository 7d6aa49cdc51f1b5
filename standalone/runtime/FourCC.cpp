#include "host/qelcore/FourCC.h"

namespace qelcore::utility {

std::u16string FourCCToString(std::uint32_t code) {
  std::u16string text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    text.push_back(static_cast<char16_t>((code >> shift) & 0xFF));
  }
  while (!text.empty() && (text.back() == u'\0' || text.back() == u' ')) text.pop_back();
  for (char16_t& character : text) {
    if (character < u' ' || character > u'~') character = u'?';
  }
  return text;
}

}  // namespace qelcore::utility
