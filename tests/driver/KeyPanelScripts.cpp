// The keys of the input panel in the whole program.
#include <gtest/gtest.h>

#include "driver/DriverProcess.h"

using quill::test::FindText;
using quill::test::ReadyDriver;
using quill::test::TapOn;

namespace {

constexpr int kSearchEdit = 1028;

void TapKey(ReadyDriver& driver, const QString& key) {
  const QJsonObject text = FindText(driver.Result(R"({"op":"texts"})", u"texts"), key);
  ASSERT_FALSE(text.isEmpty()) << key.toStdString();
  driver.Do(TapOn(text));
}

QString SearchText(ReadyDriver& driver) {
  const QByteArray get = R"({"op":"get","id":)" + QByteArray::number(kSearchEdit) + '}';
  return driver.Result(get, u"control").toObject().value(u"text").toString();
}

// The search box has the focus and holds a half-made syllable of the panel's.
class Composing : public ReadyDriver {
 public:
  Composing() {
    Do(R"({"op":"tap","on":"view","x":40,"y":12})");
    Result(R"({"op":"panel","up":true})", u"panel");
    for (const QString& key : {QStringLiteral("한글"), QStringLiteral("ㄱ"), QStringLiteral("ㅏ")})
      TapKey(*this, key);
    EXPECT_EQ(SearchText(*this), QString());
  }
};

}  // namespace

TEST(KeyPanel, AChangeOfScaleKeepsTheSyllableThePanelAndItsLanguage) {
  Composing driver;
  driver.Do(R"({"op":"command","id":60001})");
  EXPECT_EQ(SearchText(driver), QStringLiteral("가"));
  EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), true);
  driver.Do(R"({"op":"tap","on":"view","x":90,"y":12})");
  TapKey(driver, QStringLiteral("ㄴ"));
  TapKey(driver, QStringLiteral("ㅏ"));
  driver.Result(R"({"op":"panel","up":false})", u"panel");
  EXPECT_EQ(SearchText(driver), QStringLiteral("가나"));
}

TEST(KeyPanel, LoweredItLeavesTheSyllableAsText) {
  Composing driver;
  driver.Result(R"({"op":"panel","up":false})", u"panel");
  EXPECT_EQ(SearchText(driver), QStringLiteral("가"));
}

TEST(KeyPanel, TheTextOfASettingIsTypedIntoItsDialog) {
  ReadyDriver driver;
  driver.Do(R"({"op":"command","id":32830})");
  driver.Do(R"({"op":"set","id":1049,"checked":true})");
  driver.Do(R"({"op":"set","id":1017,"text":""})");
  const QJsonObject edit = driver.Result(R"({"op":"where","on":1017})", u"where").toObject();
  driver.Do(TapOn(edit));
  EXPECT_EQ(driver.Result(R"({"op":"panel"})", u"panel"), true) << "its editor raises it";
  TapKey(driver, QStringLiteral("한글"));
  TapKey(driver, QStringLiteral("ㄱ"));
  TapKey(driver, QStringLiteral("ㅏ"));
  driver.Do(R"({"op":"ok"})");
  const QJsonObject settings = driver.Result(R"({"op":"settings"})", u"settings").toObject();
  EXPECT_EQ(settings.value(u"AreaCodeValue"), QStringLiteral("가"));
}
