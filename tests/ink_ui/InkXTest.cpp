#include "ink/ui/InkX.h"

#include "ink/InkFormat.h"
#include "ink_ui/InkFixture.h"

namespace quill {
namespace {

using InkXTest = test::InkFixture;

TEST_F(InkXTest, Scratch) {
  for (int i = 0; i < 8; ++i) {
    std::vector<test::PenPoint> points;
    for (int j = 0; j < 60; ++j)
      points.push_back({{20 + j * 3.0, 40 + i * 24 - 8 * std::sin(j * 0.7 + i)},
                        0.3 + 0.6 * std::abs(std::sin(j * .3))});
    Stroke(points);
  }
  Type(QStringLiteral("Hello Kim, this is a rather long typed text\nnext 김철수"));
  Ink().SelectAll();
  for (int z : {75, 150, 200, 300}) {
    Ink().SetZoom(z);
  }
  Ink().SetPageStyle(2);
  Ink().SetZoom(200);
  Ink().SetWrap(0);
  Ink().SetView(2);
  EXPECT_EQ(Note().Strokes.size(), 8u);
}

}  // namespace
}  // namespace quill
