#pragma once

#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// Watches calls that the module's code makes to the host. A test program defines the host functions it
/// wants to watch itself (HostCalls.cpp of its folder); each definition says that it was called and
/// then calls the host's own:
///
///   void UI_MultiColumnTree::LayoutAfterAppendRow() {
///     hostcalls::Called("LayoutAfterAppendRow");
///     hostcalls::Real<void (*)(UI_MultiColumnTree*)>("_ZN5qelui…")(this);
///   }
namespace hostcalls {

struct Journal {
  std::mutex mutex;
  bool isRecording = false;
  std::vector<std::string> calls;
  std::map<std::string, std::function<void()>, std::less<>> hooks;
};

inline Journal& GetJournal() {
  static Journal journal;
  return journal;
}

inline std::string Format(bool value) {
  return value ? "true" : "false";
}
inline std::string Format(std::string_view value) {
  return std::string(value);
}
inline std::string Format(const char* value) {
  return value == nullptr ? "null" : value;
}
inline std::string Format(std::chrono::milliseconds value) {
  return std::to_string(value.count());
}
template <typename Number>
requires std::is_arithmetic_v<Number> std::string Format(Number value) {
  std::string text = std::to_string(value);
  if constexpr (std::is_floating_point_v<Number>) text.erase(text.find('.') + 2);
  return text;
}

/// Records a call as "Name(argument, argument)", then runs the test's hook for that name, which may
/// throw in the host's stead.
template <typename... Arguments>
void Called(std::string_view name, const Arguments&... arguments) {
  Journal& journal = GetJournal();
  std::function<void()> hook;
  {
    const std::scoped_lock lock(journal.mutex);
    if (journal.isRecording) {
      std::string call(name);
      [[maybe_unused]] const char* separator = "(";
      ((call += separator + Format(arguments), separator = ", "), ...);
      call += sizeof...(arguments) == 0 ? "()" : ")";
      journal.calls.push_back(std::move(call));
    }
    const auto found = journal.hooks.find(name);
    if (found != journal.hooks.end()) hook = found->second;
  }
  if (hook) hook();
}

/// The host's own function of a mangled name, as a plain function that takes the object first.
template <typename Function>
Function Real(const char* mangledName) {
  void* const found = dlsym(RTLD_NEXT, mangledName);
  if (found == nullptr) std::abort();
  return reinterpret_cast<Function>(found);
}

/// Records calls for its lifetime.
class Recording {
 public:
  Recording() { Start(); }
  ~Recording() {
    const std::scoped_lock lock(GetJournal().mutex);
    GetJournal().isRecording = false;
  }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;

  /// Forgets what was recorded so far.
  void Start() {
    const std::scoped_lock lock(GetJournal().mutex);
    GetJournal().isRecording = true;
    GetJournal().calls.clear();
  }

  std::vector<std::string> GetCalls() const {
    const std::scoped_lock lock(GetJournal().mutex);
    return GetJournal().calls;
  }

  /// The calls whose names are among `names`, in order.
  std::vector<std::string> GetCalls(std::vector<std::string_view> names) const {
    std::vector<std::string> calls = GetCalls();
    std::erase_if(calls, [&](const std::string& call) {
      return std::ranges::find(names, NameOf(call)) == names.end();
    });
    return calls;
  }

  std::size_t Count(std::string_view name) const { return GetCalls({name}).size(); }

 private:
  static std::string_view NameOf(std::string_view call) { return call.substr(0, call.find('(')); }
};

/// Runs `function` whenever the named call is made, for its lifetime. Runs on the calling thread.
class Hook {
 public:
  Hook(std::string callName, std::function<void()> function) : name(std::move(callName)) {
    const std::scoped_lock lock(GetJournal().mutex);
    GetJournal().hooks[name] = std::move(function);
  }
  ~Hook() {
    const std::scoped_lock lock(GetJournal().mutex);
    GetJournal().hooks.erase(name);
  }
  Hook(const Hook&) = delete;
  Hook& operator=(const Hook&) = delete;

 private:
  std::string name;
};

}  // namespace hostcalls
