#include "host/qelcore/TypeName.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace qelcore::debug {

std::string GetTypeName(const std::type_info& type) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> plain(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
  return status == 0 ? plain.get() : type.name();
}

}  // namespace qelcore::debug
