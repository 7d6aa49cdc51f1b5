#include "data/LocalizedText.h"

#include "host/qelcore/Localizer.h"

namespace Vantrel {

qelcore::UTF8String Localize(std::string_view key) {
  return qelcore::config::Localizer::Get().Localize(key);
}

}  // namespace Vantrel
