#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "host/HostAPI.h"

namespace qelcore::config {

/// What went wrong, for code that decides; the sentence is for people.
enum class ExceptionKind {
  kGeneric,      ///< A failure without a more telling kind.
  kNullPointer,  ///< A required object or interface is missing.
  kTimeout,      ///< A wait with a limit has reached it.
  kFuture,       ///< The outcome of a future can't be read.
  kFile,         ///< Creating, writing or closing a file failed.
  kLimit,        ///< A value exceeds what the operation can carry.
};

/// The failure of a host service: kind, sentence, and the object concerned (a type name, a path).
class HOST_API qel_exception : public std::exception {
 public:
  qel_exception(ExceptionKind kind, std::string sentence, std::string object);
  ~qel_exception() override;

  ExceptionKind GetKind() const noexcept { return kind; }
  /// The object concerned: the plain type name of a missing interface, the path of a file.
  const std::string& GetObject() const noexcept { return object; }
  /// The sentence; it names the object where there is one.
  const char* what() const noexcept override { return sentence.c_str(); }

 private:
  ExceptionKind kind;
  std::string sentence;
  std::string object;
};

/// A required object or interface is missing; GetObject() is its plain qualified type name.
class HOST_API null_pointer_exception : public qel_exception {
 public:
  explicit null_pointer_exception(std::string_view typeName);
  ~null_pointer_exception() override;
};

/// A lock was not granted in time; GetObject() is the name given to the lock call, or empty.
class HOST_API lock_timeout_exception : public qel_exception {
 public:
  explicit lock_timeout_exception(std::string_view name);
  ~lock_timeout_exception() override;
};

/// The outcome of a future can't be read; the sentence is one of those in host/qelcore/Future.h.
class HOST_API future_exception : public qel_exception {
 public:
  explicit future_exception(std::string_view sentence);
  ~future_exception() override;
};

/// A file operation failed; GetObject() is the path as the platform sees it.
class HOST_API file_exception : public qel_exception {
 public:
  file_exception(std::string_view path, std::string_view reason);
  ~file_exception() override;
};

/// Raises null_pointer_exception for a type; take the name from qelcore::debug::GetTypeName.
/// [any-thread]
[[noreturn]] HOST_API void DoThrowNullPtrException(std::string_view typeName);

}  // namespace qelcore::config
