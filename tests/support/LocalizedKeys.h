#pragma once

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

/// The localisation keys that the module's code has asked the host for since the program began. Texts
/// are resolved once and kept, so a test that records calls may come too late to see them.
namespace hostcalls {

class LocalizedKeys {
 public:
  static LocalizedKeys& Get() {
    static LocalizedKeys keys;
    return keys;
  }
  void Add(std::string_view key) {
    const std::scoped_lock lock(mutex);
    keys.emplace_back(key);
  }
  std::size_t Count(std::string_view key) {
    const std::scoped_lock lock(mutex);
    return static_cast<std::size_t>(std::ranges::count(keys, key));
  }

 private:
  std::mutex mutex;
  std::vector<std::string> keys;
};

}  // namespace hostcalls
