#include "platform/ui/Look.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "platform/ui/RowPainter.h"
#include "platform_ui/ScreenFixture.h"

namespace quill {
namespace {

class LookTest : public test::ScreenFixture {};

constexpr QStringView kSample = u"Sample text 010-1234";
constexpr QStringView kHangul = u"김철수 연락처";

TEST_F(LookTest, TheSampleTextIsAtMost123PixelsWide) {
  const double width = NormalTextWidth()(kSample);
  EXPECT_LE(width, 123);
  EXPECT_GT(width, 90) << "the largest size that fits is taken";
}

TEST_F(LookTest, TheFontIsMeasuredInPixelsAndNotHinted) {
  EXPECT_LE(NormalFont().pixelSize(), 12);
  EXPECT_GE(NormalFont().pixelSize(), 8);
  EXPECT_EQ(NormalFont().hintingPreference(), QFont::PreferNoHinting);
  EXPECT_FALSE(NormalFont().bold());
  EXPECT_TRUE(BoldFont().bold());
  EXPECT_EQ(BoldFont().pixelSize(), NormalFont().pixelSize());
}

TEST_F(LookTest, BoldTextIsMeasuredInTheBoldFont) {
  for (const QStringView text : {kSample, kHangul})
    EXPECT_DOUBLE_EQ(QFontMetricsF(BoldFont()).horizontalAdvance(text.toString()),
                     BoldTextWidth()(text));
}

class ScaleOfDeviceTest : public LookTest, public testing::WithParamInterface<double> {};

TEST_P(ScaleOfDeviceTest, WidthsAreTheSame) {
  QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(GetParam());
  const QFontMetricsF metrics(NormalFont(), &image);
  for (const QStringView text : {kSample, kHangul, QStringView(u"iiiiWWWW")})
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(text.toString()), NormalTextWidth()(text));
}

INSTANTIATE_TEST_SUITE_P(Ratios, ScaleOfDeviceTest, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

// The rows of black pixels that the text has; the frame is lighter.
int InkHeight(QWidget& control, int height) {
  control.setGeometry(10, 40, 100, height);
  const QImage image = control.grab().toImage();
  int first = -1;
  int last = -1;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qGray(image.pixel(x, y)) < 60) {
        if (first < 0) first = y;
        last = y;
      }
  return first < 0 ? 0 : last - first + 1;
}

class ControlHeightTest : public LookTest {
 protected:
  static void ExpectUnclipped(QWidget& control, int height) {
    control.show();
    const int whole = InkHeight(control, 40);
    ASSERT_GE(whole, 9) << "ascenders and descenders";
    EXPECT_EQ(InkHeight(control, height), whole);
  }
};

// Letters that reach to the top and to the bottom of a line.
QString HighAndLow() { return QStringLiteral("lgjp"); }

TEST_F(ControlHeightTest, AnEditorOf17PixelsShowsItsTextWhole) {
  QLineEdit editor(HighAndLow(), m_screen);
  ExpectUnclipped(editor, 17);
}

TEST_F(ControlHeightTest, AnEditorWithoutFrameOf17PixelsShowsItsTextWhole) {
  QLineEdit editor(HighAndLow(), m_screen);
  editor.setFrame(false);
  ExpectUnclipped(editor, 17);
}

TEST_F(ControlHeightTest, ALabelOf17PixelsShowsItsTextWhole) {
  QLabel label(HighAndLow(), m_screen);
  ExpectUnclipped(label, 17);
}

TEST_F(ControlHeightTest, ACheckBoxOf17PixelsShowsItsTextWhole) {
  QCheckBox check(HighAndLow(), m_screen);
  ExpectUnclipped(check, 17);
}

TEST_F(ControlHeightTest, ADropDownListOf18PixelsShowsItsTextWhole) {
  QComboBox list(m_screen);
  list.addItem(HighAndLow());
  ExpectUnclipped(list, 18);
}

TEST_F(LookTest, ScrollBarsAre13PixelsWide) {
  EXPECT_EQ(QScrollBar(Qt::Vertical, m_screen).sizeHint().width(), 13);
}

TEST_F(LookTest, TheDesktopsDarkColoursDoNotLeakIn) {
  const QPalette palette = qApp->palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    EXPECT_GT(palette.color(group, QPalette::Window).lightness(), 200);
    EXPECT_GT(palette.color(group, QPalette::Base).lightness(), 200);
    EXPECT_LT(palette.color(group, QPalette::Text).lightness(), 160);
  }
}

}  // namespace
}  // namespace quill
