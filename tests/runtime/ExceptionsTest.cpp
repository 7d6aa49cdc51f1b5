#include "host/qelcore/Exceptions.h"

#include <gtest/gtest.h>

#include <typeinfo>

#include "host/qelcore/TypeName.h"

namespace named {
struct Outer {
  struct Inner {};
};
template <typename T>
struct Box {};
}  // namespace named

namespace {

using namespace qelcore::config;

TEST(NullPointerError, CarriesTheTypeNameAsItsObject) {
  try {
    DoThrowNullPtrException("BE::INotification");
    FAIL();
  } catch (const null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetKind(), ExceptionKind::kNullPointer);
    EXPECT_EQ(failure.GetObject(), "BE::INotification");
    EXPECT_STREQ(failure.what(), "Null pointer: BE::INotification is missing");
  }
}

TEST(HostErrors, AreCaughtByTheirBase) {
  EXPECT_THROW(DoThrowNullPtrException("T"), qel_exception);
  EXPECT_THROW(throw lock_timeout_exception("x"), std::exception);
}

TEST(HostErrors, NameKindSentenceAndObject) {
  const lock_timeout_exception named("export");
  EXPECT_EQ(named.GetKind(), ExceptionKind::kTimeout);
  EXPECT_EQ(named.GetObject(), "export");
  EXPECT_STREQ(named.what(), "Lock \"export\" was not granted in time");
  EXPECT_STREQ(lock_timeout_exception("").what(), "Lock was not granted in time");

  const file_exception file("/a/b", "No space left on device");
  EXPECT_EQ(file.GetKind(), ExceptionKind::kFile);
  EXPECT_EQ(file.GetObject(), "/a/b");
  EXPECT_STREQ(file.what(), "/a/b: No space left on device");

  const future_exception future("Future Is Cancelled");
  EXPECT_EQ(future.GetKind(), ExceptionKind::kFuture);
  EXPECT_STREQ(future.what(), "Future Is Cancelled");
}

TEST(TypeName, IsThePlainQualifiedName) {
  EXPECT_EQ(qelcore::debug::GetTypeName(typeid(named::Outer::Inner)), "named::Outer::Inner");
  EXPECT_EQ(qelcore::debug::GetTypeName(typeid(named::Box<int>)), "named::Box<int>");
  EXPECT_EQ(qelcore::debug::GetTypeName(typeid(int)), "int");
}

}  // namespace
