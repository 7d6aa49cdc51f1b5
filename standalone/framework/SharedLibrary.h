#pragma once

#include <filesystem>
#include <string_view>

namespace standalone {

/// A dynamic library in the process; its symbols are not offered to others.
class SharedLibrary {
 public:
  /// Opens the library, binding all its symbols now. Throws: qel_exception, "<path>: can't be loaded as
  /// a module: <reason>", also when the process has it already.
  explicit SharedLibrary(const std::filesystem::path& path);
  /// Gives the library back.
  ~SharedLibrary();
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;

  /// The address of an exported symbol, by its mangled name, or null.
  void* FindSymbol(const char* name) const noexcept;

  /// Whether the process has the library of that path.
  static bool IsLoaded(const std::filesystem::path& path) noexcept;

 private:
  void* handle;
};

/// Raises a qel_exception, "<path>: can't be loaded as a module: <reason>".
[[noreturn]] void ThrowCannotBeLoaded(const std::filesystem::path& path, std::string_view reason);

}  // namespace standalone
