// A fixture of a home with memo files, and the operations of scripts that write in ink.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <optional>

#include "driver/DriverProcess.h"

namespace quill::test {

class InkScript : public testing::Test {
 protected:
  QStringList Arguments() const {
    return {QStringLiteral("--home"), m_home.path(), QStringLiteral("--now"),
            QStringLiteral("2004-09-15T09:30:05")};
  }
  QString MemoFile(const QString& name) const {
    return m_home.filePath(QStringLiteral("My Documents/Fennick/") + name);
  }
  void PutMemo(const QString& name, const QByteArray& content) const {
    QDir(m_home.path()).mkpath(QStringLiteral("My Documents/Fennick"));
    QFile file(MemoFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  // Nothing when there is no such file.
  std::optional<QByteArray> Content(const QString& name) const {
    QFile file(MemoFile(name));
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
  }
  QByteArray Picture(ReadyDriver& driver) const {
    QFile file(m_home.filePath(QStringLiteral("picture.png")));
    driver.Do(R"({"op":"screenshot","file":")" + file.fileName().toUtf8() + R"("})");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  QStringList RecoveryFiles() const {
    return QDir(m_home.path()).entryList({QStringLiteral("recovery-ink*")}, QDir::Files);
  }

  QTemporaryDir m_home;
};

inline const QString kFirstMemo = QStringLiteral("Kim_20040915_093005.pwi");

inline int PutKim(ReadyDriver& driver) {
  const int oid =
      driver.Result(R"({"op":"put","quiet":true,"fields":{"FileAs":"Kim"}})", u"oid").toInt();
  driver.Do(R"({"op":"command","id":59413})");
  return oid;
}

inline QJsonObject Fields(ReadyDriver& driver, int oid) {
  return driver.Result(R"({"op":"contact","oid":)" + QByteArray::number(oid) + '}', u"fields")
      .toObject();
}

inline void RunCommand(ReadyDriver& driver, int id) {
  driver.Do(R"({"op":"command","id":)" + QByteArray::number(id) + '}');
}
inline void OK(ReadyDriver& driver) { driver.Do(R"({"op":"ok"})"); }
inline void Cancel(ReadyDriver& driver) { driver.Do(R"({"op":"cancel"})"); }
inline void Answer(ReadyDriver& driver, const QByteArray& button) {
  driver.Do(R"({"op":"answer","button":")" + button + R"("})");
}

inline void OpenFirst(ReadyDriver& driver) {
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
}
inline void OpenMemoPage(ReadyDriver& driver) {
  OpenFirst(driver);
  driver.Ask(R"({"op":"page","index":2})");
}
inline void OpenFirstMemo(ReadyDriver& driver) {
  RunCommand(driver, 32825);
  driver.Do(R"({"op":"tap","on":"list","x":50,"y":8})");
}
// By the row's popup.
inline void AddMemo(ReadyDriver& driver) {
  driver.Do(R"({"op":"hold","on":"list","x":50,"y":8})");
  driver.Do(R"({"op":"choose","id":32820})");
}

inline void Write(ReadyDriver& driver) {
  driver.Do(R"({"op":"stroke","on":"ink","points":[[20,30,0.4],[40,50,0.6],[60,30,0.5]]})");
}
inline void Type(ReadyDriver& driver) { driver.Do(R"({"op":"type","text":"tea"})"); }
// What the bar offers.
inline void Restore(ReadyDriver& driver) { driver.Do(R"({"op":"click","id":1103})"); }
inline QJsonObject Ink(ReadyDriver& driver) {
  return driver.Result(R"({"op":"ink"})", u"ink").toObject();
}
inline int Strokes(ReadyDriver& driver) { return Ink(driver)[u"strokes"].toInt(); }
inline std::vector<int> Modes(ReadyDriver& driver) {
  const QJsonObject ink = Ink(driver);
  return {ink[u"style"].toInt(), ink[u"zoom"].toInt(), ink[u"wrap"].toInt(), ink[u"view"].toInt()};
}

// An item or button of the topmost window's menus.
inline QJsonObject Item(ReadyDriver& driver, int id) {
  for (const auto& menu : driver.Result(R"({"op":"menus"})", u"menus").toArray())
    for (const auto& item : menu[u"items"].toArray())
      if (item[u"id"] == id) return item.toObject();
  ADD_FAILURE() << "no item " << id;
  return {};
}
inline std::vector<int> CheckedZooms(ReadyDriver& driver) {
  std::vector<int> checked;
  for (int id = 32787; id <= 32791; ++id)
    if (Item(driver, id)[u"checked"].toBool()) checked.push_back(id);
  return checked;
}

inline QString Message(ReadyDriver& driver) {
  return driver.Result(R"({"op":"message"})", u"message").toObject()[u"text"].toString();
}
inline QString TopTitle(ReadyDriver& driver) {
  return driver.Result(R"({"op":"windows"})", u"windows").toArray().last()[u"title"].toString();
}
inline QStringList Memos(ReadyDriver& driver) {
  QStringList names;
  const QJsonObject list = driver.Result(R"({"op":"list"})", u"list").toObject();
  for (const auto& name : list[u"memos"].toArray()) names.append(name.toString());
  return names;
}
inline void SetName(ReadyDriver& driver, const QByteArray& path) {
  driver.Do(R"({"op":"set","id":1017,"text":")" + path + R"("})");
}

}  // namespace quill::test
