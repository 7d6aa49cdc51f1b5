#include "host/qelcore/Reference.h"

#include <gtest/gtest.h>

#include "host/qelcore/Guid.h"

namespace {

class IShape : public qelcore::IUnknown {
 public:
  static constexpr qelcore::InterfaceID kInterfaceID = qelcore::MakeInterfaceID("IShape");
};
class IName : public qelcore::IUnknown {
 public:
  static constexpr qelcore::InterfaceID kInterfaceID = qelcore::MakeInterfaceID("IName");
};

int living = 0;

class Shape final : public IShape {
 public:
  Shape() { ++living; }
  ~Shape() override { --living; }
  void AddRef() const noexcept override { ++count; }
  void Release() const noexcept override {
    if (--count == 0) delete this;
  }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == IShape::kInterfaceID ? static_cast<IShape*>(this) : nullptr;
  }

 private:
  mutable int count = 0;
};

TEST(Ref, TheLastOneDestroysTheObject) {
  qelcore::Ref<IShape> one(new Shape);
  {
    const qelcore::Ref<IShape> two = one;
    const qelcore::Ref<qelcore::IUnknown> base = two;
    one.Reset();
    EXPECT_EQ(living, 1);
  }
  EXPECT_EQ(living, 0);
}

TEST(InterfaceQuery, FindsWhatTheObjectHasAndNothingElse) {
  const qelcore::Ref<IShape> shape(new Shape);
  EXPECT_EQ(qelcore::QueryInterface<IShape>(shape), shape);
  EXPECT_FALSE(qelcore::QueryInterface<IName>(shape));
  EXPECT_FALSE(qelcore::QueryInterface<IShape>(qelcore::Ref<IShape>()));
}

TEST(InterfaceQuery, ARequiredInterfaceThatIsMissingIsNamed) {
  const qelcore::Ref<IShape> shape(new Shape);
  EXPECT_EQ(qelcore::RequireInterface<IShape>(shape), shape);
  try {
    qelcore::RequireInterface<IName>(shape);
    FAIL();
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "(anonymous namespace)::IName");
  }
  EXPECT_THROW(qelcore::RequireInterface<IShape>(qelcore::Ref<IShape>()),
               qelcore::config::null_pointer_exception);
}

TEST(RequiredReference, RaisesTheNullPointerErrorWhenEmpty) {
  const qelcore::Ref<IShape> shape(new Shape);
  EXPECT_EQ(&qelcore::Required(shape), shape.Get());
  EXPECT_THROW(qelcore::Required(qelcore::Ref<IShape>()), qelcore::config::null_pointer_exception);
}

TEST(Guid, HalvesAreStoredLowestByteFirstAndComparedByByte) {
  constexpr auto kGuid = qelcore::utility::MakeGuid(0x0807060504030201, 0x100F0E0D0C0B0A09);
  for (unsigned i = 0; i < 16; ++i) EXPECT_EQ(kGuid.bytes[i], i + 1);
  EXPECT_LT(qelcore::utility::MakeGuid(0x0100, 0), qelcore::utility::MakeGuid(0x0001, 0));
  EXPECT_LT(qelcore::utility::MakeGuid(0x7F, 0), qelcore::utility::MakeGuid(0x80, 0));
}

}  // namespace
