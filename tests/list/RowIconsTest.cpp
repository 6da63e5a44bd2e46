#include "list/RowIcons.h"

#include <gtest/gtest.h>

#include "resources/ListPictures.h"

namespace quill {
namespace {

struct IconCase {
  int Kind;
  const resources::Picture* Picture;
};

class RowIcon : public testing::TestWithParam<IconCase> {};

TEST_P(RowIcon, IsThePictureOfItsKind) {
  EXPECT_EQ(RowPicture(static_cast<RowIconKind>(GetParam().Kind)), GetParam().Picture);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, RowIcon,
    testing::Values(IconCase{0, nullptr}, IconCase{1, &resources::kMobilePicture},
                    IconCase{2, &resources::kMobilePicture}, IconCase{3, &resources::kWorkPicture},
                    IconCase{4, &resources::kWorkPicture}, IconCase{5, &resources::kHomePicture},
                    IconCase{6, &resources::kHomePicture}, IconCase{7, &resources::kMailPicture},
                    IconCase{8, &resources::kMailPicture}, IconCase{9, &resources::kMailPicture},
                    IconCase{10, &resources::kFaxPicture},
                    IconCase{11, &resources::kAddressPicture}));

TEST(RowIcons, EveryPictureFillsItsFourteenPixelsAndNoMore) {
  for (int kind = 1; kind <= 11; ++kind) {
    const resources::Picture& picture = *RowPicture(static_cast<RowIconKind>(kind));
    EXPECT_EQ(picture.Size, 14);
    for (const resources::PicturePath& path : picture.Paths)
      for (const resources::PicturePoint& point : path.Points) {
        EXPECT_GE(std::min(point.X, point.Y), 0) << kind;
        EXPECT_LE(std::max(point.X, point.Y), 14) << kind;
      }
  }
}

}  // namespace
}  // namespace quill
