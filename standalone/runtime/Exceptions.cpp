#include "host/qelcore/Exceptions.h"

#include <utility>

namespace qelcore::config {

namespace {

std::string TimeoutSentence(std::string_view name) {
  std::string sentence = "Lock";
  if (!name.empty()) sentence.append(" \"").append(name).append("\"");
  return sentence.append(" was not granted in time");
}

std::string MissingSentence(std::string_view typeName) {
  return std::string("Null pointer: ").append(typeName).append(" is missing");
}

std::string FileSentence(std::string_view path, std::string_view reason) {
  return std::string(path).append(": ").append(reason);
}

}  // namespace

qel_exception::qel_exception(ExceptionKind kind, std::string sentence, std::string object)
    : kind(kind), sentence(std::move(sentence)), object(std::move(object)) {}
qel_exception::~qel_exception() = default;

null_pointer_exception::null_pointer_exception(std::string_view typeName)
    : qel_exception(ExceptionKind::kNullPointer, MissingSentence(typeName), std::string(typeName)) {}
null_pointer_exception::~null_pointer_exception() = default;

lock_timeout_exception::lock_timeout_exception(std::string_view name)
    : qel_exception(ExceptionKind::kTimeout, TimeoutSentence(name), std::string(name)) {}
lock_timeout_exception::~lock_timeout_exception() = default;

future_exception::future_exception(std::string_view sentence)
    : qel_exception(ExceptionKind::kFuture, std::string(sentence), std::string()) {}
future_exception::~future_exception() = default;

file_exception::file_exception(std::string_view path, std::string_view reason)
    : qel_exception(ExceptionKind::kFile, FileSentence(path, reason), std::string(path)) {}
file_exception::~file_exception() = default;

void DoThrowNullPtrException(std::string_view typeName) {
  throw null_pointer_exception(typeName);
}

}  // namespace qelcore::config
