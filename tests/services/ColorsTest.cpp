#include <gtest/gtest.h>

#include <limits>

#include "host/BE/VisitSequence.h"
#include "host/MZ/Clips.h"
#include "host/UIF/QELConversionUtilities.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"
#include "support/Drafts.h"

namespace {

using UIF::QELConversionUtilities::QELColorRGBAtoZSLColor;
using UIF::QELConversionUtilities::ZSLColorToQELColorRGBA;

TEST(ColorConversion, EveryValueOfAChannelComesBack) {
  for (int value = 0; value < 256; ++value) {
    const auto byte = static_cast<std::uint8_t>(value);
    const ZSL::Color color{byte, static_cast<std::uint8_t>(255 - value), 7, byte};
    EXPECT_EQ(QELColorRGBAtoZSLColor(ZSLColorToQELColorRGBA(color)), color) << value;
  }
}

TEST(ColorConversion, AChannelIsDividedBy255InSinglePrecision) {
  const auto color = ZSLColorToQELColorRGBA({1, 100, 254, 255});
  EXPECT_EQ(color.red, 1.0F / 255.0F);
  EXPECT_EQ(color.green, 100.0F / 255.0F);
  EXPECT_EQ(color.blue, 254.0F / 255.0F);
  EXPECT_EQ(color.alpha, 1.0F);
}

TEST(ColorConversion, RoundsToTheNearestAndClamps) {
  EXPECT_EQ(QELColorRGBAtoZSLColor({0.999999F, 0.4980F, 0.0019F, 0.002F}),
            (ZSL::Color{255, 127, 0, 1}));
  EXPECT_EQ(QELColorRGBAtoZSLColor({-1.0F, 2.0F, 1e30F, -0.0F}), (ZSL::Color{0, 255, 255, 0}));
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(QELColorRGBAtoZSLColor({kNaN, kInfinity, -kInfinity, kNaN}), (ZSL::Color{0, 255, 0, 0}));
}

TEST(LabelColor, IsTheClipsOwnWithAndWithoutAProject) {
  const standalone::Runtime runtime;
  standalone::ProjectModel model;
  auto draft = drafts::MakeSequence();
  drafts::AddClip(drafts::AddTrack(draft), "A", 0, 10).labelColor = {10, 20, 30, 255};
  const auto sequence = model.AddDocument(drafts::MakeDocument(draft)).front();
  qelcore::Ref<BE::IClip> clip;
  BE::VisitSequence(sequence, [&](qelcore::IUnknown& node) {
    auto* const item = qelcore::FindInterface<BE::ITrackItem>(&node);
    if (item != nullptr && item->GetClip()) clip = item->GetClip();
    return BE::VisitorStatus::kContinue;
  });
  using MZ::ColorLabelUtils::GetDisplayLabelColorForClip;
  EXPECT_EQ(GetDisplayLabelColorForClip(clip, {}), (ZSL::Color{10, 20, 30, 255}));
  EXPECT_EQ(GetDisplayLabelColorForClip(clip, model.GetProject()), (ZSL::Color{10, 20, 30, 255}));
}

}  // namespace
