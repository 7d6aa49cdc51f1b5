#include "host/qelui/ImageHandler.h"

#include <gtest/gtest.h>

#include "host/qelcore/Exceptions.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::config::qel_exception;
using qelui::controls::ImageHandler;

class ImageHandlerTest : public testing::Test {
 protected:
  standalone::Runtime runtime;
};

TEST_F(ImageHandlerTest, ShowsThePictureOfItsState) {
  const auto handler = ImageHandler::Create({11, 22});
  EXPECT_EQ(handler->GetDecal(), 11U);
  handler->SetImageState(1);
  EXPECT_EQ(handler->GetImageState(), 1U);
  EXPECT_EQ(handler->GetDecal(), 22U);
}

TEST_F(ImageHandlerTest, AStateWithoutAPictureRaisesAndChangesNothing) {
  const auto handler = ImageHandler::Create({11, 22});
  EXPECT_THROW(handler->SetImageState(2), qel_exception);
  EXPECT_EQ(handler->GetDecal(), 11U);
}

TEST_F(ImageHandlerTest, NeedsAPicture) {
  EXPECT_THROW(ImageHandler::Create({}), qel_exception);
}

TEST_F(ImageHandlerTest, AButtonSharesIt) {
  const qelcore::Ref<qelui::controls::UI_PictureButton> button(new qelui::controls::UI_PictureButton());
  EXPECT_EQ(button->GetImageHandler(), nullptr);
  const auto handler = ImageHandler::Create({11});
  button->SetImageHandler(handler);
  EXPECT_EQ(button->GetImageHandler(), handler);
}

TEST_F(ImageHandlerTest, OperationsStopOffTheMainThread) {
  const auto handler = ImageHandler::Create({11});
  const qelcore::Ref<qelui::controls::UI_PictureButton> button(new qelui::controls::UI_PictureButton());
  EXPECT_STOPS_OFF_MAIN_THREAD(ImageHandler::Create({11}), "ImageHandler::Create");
  EXPECT_STOPS_OFF_MAIN_THREAD(handler->SetImageState(0), "ImageHandler::SetImageState");
  EXPECT_STOPS_OFF_MAIN_THREAD(button->SetImageHandler(handler), "UI_ImageHandling::SetImageHandler");
}

}  // namespace
