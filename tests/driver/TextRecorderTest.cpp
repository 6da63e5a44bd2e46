#include "driver/TextRecorder.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>

using quill::driver::TextRecorder;

namespace {

QFont Plain() {
  QFont font;
  font.setPixelSize(12);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

TEST(TextRecorder, KeepsTextPlaceAndColour) {
  TextRecorder recorder({100, 50});
  QPainter painter(&recorder);
  painter.setFont(Plain());
  painter.setPen(QColor(0x12, 0x34, 0x56));
  painter.translate(10, 0);
  painter.drawText(QPointF(5, 20), QStringLiteral("Adams"));
  painter.end();
  ASSERT_EQ(recorder.Texts().size(), 1U);
  const auto& text = recorder.Texts().front();
  EXPECT_EQ(text.Text, QStringLiteral("Adams"));
  EXPECT_EQ(text.Color.name(), QStringLiteral("#123456"));
  EXPECT_DOUBLE_EQ(text.Box.left(), 15);
  EXPECT_LT(text.Box.top(), 20);
  EXPECT_GT(text.Box.bottom(), 20);
  EXPECT_NEAR(text.Box.width(), QFontMetricsF(Plain()).horizontalAdvance(QStringLiteral("Adams")),
              0.6);
}

TEST(TextRecorder, JoinsThePiecesOfOneTextWhereTheScriptChanges) {
  const QString mixed = QString::fromUtf8("Kim \xea\xb9\x80\xec\xb2\xa0 010-1");
  TextRecorder recorder({200, 50});
  QPainter painter(&recorder);
  painter.setFont(Plain());
  painter.drawText(QPointF(0, 20), mixed);
  painter.end();
  ASSERT_EQ(recorder.Texts().size(), 1U);
  EXPECT_EQ(recorder.Texts().front().Text, mixed);
}

TEST(TextRecorder, KeepsTextsApartThatDifferInColourLineOrPlace) {
  TextRecorder recorder({200, 80});
  QPainter painter(&recorder);
  painter.setFont(Plain());
  const qreal width = QFontMetricsF(Plain()).horizontalAdvance(u'a');
  painter.drawText(QPointF(0, 20), QStringLiteral("a"));
  painter.setPen(Qt::red);
  painter.drawText(QPointF(width, 20), QStringLiteral("b"));
  painter.drawText(QPointF(0, 40), QStringLiteral("c"));
  painter.drawText(QPointF(100, 40), QStringLiteral("d"));
  painter.end();
  EXPECT_EQ(recorder.Texts().size(), 4U);
}

TEST(TextRecorder, LeavesOutWhatIsClippedAway) {
  TextRecorder recorder({200, 80});
  QPainter painter(&recorder);
  painter.setFont(Plain());
  painter.setClipRect(0, 0, 50, 30);
  painter.drawText(QPointF(60, 20), QStringLiteral("hidden"));
  painter.drawText(QPointF(0, 20), QStringLiteral("seen"));
  painter.end();
  ASSERT_EQ(recorder.Texts().size(), 1U);
  EXPECT_EQ(recorder.Texts().front().Text, QStringLiteral("seen"));
}

TEST(TextRecorder, ReadsAWidgetWithItsChildren) {
  QWidget window;
  window.resize(200, 100);
  QLabel label(QStringLiteral("Name"), &window);
  label.setGeometry(20, 30, 100, 20);
  TextRecorder recorder(window.size());
  window.render(&recorder);
  ASSERT_EQ(recorder.Texts().size(), 1U);
  EXPECT_EQ(recorder.Texts().front().Text, QStringLiteral("Name"));
  EXPECT_NEAR(recorder.Texts().front().Box.left(), 20, 2);
  EXPECT_TRUE(QRectF(20, 30, 100, 20).contains(recorder.Texts().front().Box.center()));
}

TEST(TextRecorder, SaysWhichTextsAreCut) {
  TextRecorder recorder({200, 50});
  QPainter painter(&recorder);
  painter.setFont(Plain());
  painter.drawText(QPointF(0, 20), QStringLiteral("whole"));
  painter.setClipRect(QRect(0, 0, 20, 50));
  painter.drawText(QPointF(0, 40), QStringLiteral("longer than that"));
  painter.end();
  ASSERT_EQ(recorder.Texts().size(), 2U);
  EXPECT_FALSE(IsCut(recorder.Texts()[0]));
  EXPECT_TRUE(IsCut(recorder.Texts()[1]));
  EXPECT_DOUBLE_EQ(recorder.Texts()[1].Shown.right(), 20);
}
