#pragma once

#include <cstdint>

namespace standalone {

/// Names a library that was loaded, for as long as the process lives.
using LibraryID = std::uint64_t;

/// What is linked into the program.
inline constexpr LibraryID kLinkedIn = 0;

/// A name that no other library has. [any-thread]
LibraryID MakeLibraryID() noexcept;

/// Attributes everything that this thread registers during its lifetime to one library: static
/// registrations carry no hint of where they come from, and have to be withdrawn when it goes.
class RegistrationScope {
 public:
  explicit RegistrationScope(LibraryID library) noexcept;
  ~RegistrationScope();
  RegistrationScope(const RegistrationScope&) = delete;
  RegistrationScope& operator=(const RegistrationScope&) = delete;

  /// The library of the innermost scope of this thread; without one, kLinkedIn.
  static LibraryID Current() noexcept;

 private:
  LibraryID outer;
};

}  // namespace standalone
