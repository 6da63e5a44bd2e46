// Nothing that is painted is cut or lies over something else, at any scale.
#include <QRect>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "driver/WindowWalk.h"

using quill::test::ForEachInTree;
using quill::test::ReadyDriver;
using quill::test::WindowWalk;

namespace {

QRect RectOf(const QJsonObject& object) {
  return {object.value(u"x").toInt(), object.value(u"y").toInt(), object.value(u"w").toInt(),
          object.value(u"h").toInt()};
}

// Nothing, and no letter, is lost with the last of the dots that a name in the list ends with.
bool LosesLetters(const QJsonObject& text) {
  return text.value(u"cut").toBool() &&
         !text.value(u"text").toString().endsWith(QStringLiteral("..."));
}

// Where a text may go on beyond the edge: editors scroll.
std::vector<QRect> Editors(ReadyDriver& driver) {
  std::vector<QRect> editors;
  ForEachInTree(driver.Result(R"({"op":"accessible"})", u"accessible").toObject(),
                [&editors](const QJsonObject& object) {
                  const QString role = object.value(u"role").toString();
                  if (role == QStringLiteral("EditableText") || role == QStringLiteral("SpinBox"))
                    editors.push_back(RectOf(object));
                });
  return editors;
}

bool IsInOneOf(const std::vector<QRect>& areas, const QRect& text) {
  return std::ranges::any_of(areas, [&text](const QRect& area) {
    return area.contains(area.left() + area.width() / 2, text.center().y()) &&
           text.right() >= area.left() && text.left() <= area.right();
  });
}

}  // namespace

class EveryText : public testing::TestWithParam<const char*> {};

TEST_P(EveryText, FitsItsPlaceInEveryWindow) {
  WindowWalk walk(QString::fromLatin1(GetParam()));
  int texts = 0;
  const int places = walk.Go([&texts](ReadyDriver& driver, const QString&) {
    const std::vector<QRect> editors = Editors(driver);
    for (const auto& value : driver.Result(R"({"op":"texts"})", u"texts").toArray()) {
      const QJsonObject text = value.toObject();
      ++texts;
      const bool isCut = LosesLetters(text) && !IsInOneOf(editors, RectOf(text));
      EXPECT_FALSE(isCut) << text.value(u"text").toString().toStdString();
    }
  });
  EXPECT_GE(places, 70);
  EXPECT_GE(texts, 20 * places);
}

INSTANTIATE_TEST_SUITE_P(Scales, EveryText, testing::Values("1", "1.25", "1.5", "2", "3", "4"));
