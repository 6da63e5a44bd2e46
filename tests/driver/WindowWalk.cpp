#include "driver/WindowWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace quill::test {

namespace {

// What a reader can say of something that is reached.
const std::set<QString> kRoles = {
    QStringLiteral("Button"),      QStringLiteral("EditableText"), QStringLiteral("CheckBox"),
    QStringLiteral("RadioButton"), QStringLiteral("ComboBox"),     QStringLiteral("SpinBox"),
    QStringLiteral("List"),        QStringLiteral("ListItem"),     QStringLiteral("MenuItem"),
    QStringLiteral("PageTab"),     QStringLiteral("PageTabList"),  QStringLiteral("PopupMenu"),
    QStringLiteral("Document"),    QStringLiteral("Grouping"),     QStringLiteral("StaticText")};

// These always have a name, reached or not.
const std::set<QString> kNamed = {
    QStringLiteral("Window"),       QStringLiteral("Dialog"),    QStringLiteral("AlertMessage"),
    QStringLiteral("PropertyPage"), QStringLiteral("ScrollBar"), QStringLiteral("Graphic"),
    QStringLiteral("StaticText"),   QStringLiteral("ToolBar"),   QStringLiteral("TitleBar"),
    QStringLiteral("MenuBar"),      QStringLiteral("Grouping")};

std::string Described(const QJsonObject& object) {
  return QStringLiteral("%1 \"%2\" at %3,%4")
      .arg(object.value(u"role").toString(), object.value(u"name").toString())
      .arg(object.value(u"x").toInt())
      .arg(object.value(u"y").toInt())
      .toStdString();
}

void ExpectOneSpoken(const QJsonObject& object) {
  const QString role = object.value(u"role").toString();
  const QString name = object.value(u"name").toString();
  if (IsReached(object)) {
    EXPECT_TRUE(kRoles.contains(role)) << Described(object);
    EXPECT_FALSE(name.isEmpty()) << Described(object);
  }
  if (kNamed.contains(role)) {
    EXPECT_FALSE(name.isEmpty()) << Described(object);
  }
}

}  // namespace

WindowWalk::WindowWalk(const QString& scale) : m_scale(scale) {
  Write(QStringLiteral("contacts.vcf"), "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Quill\r\nEND:VCARD\r\n");
  // In Korean letters of one old character set, which the file does not name.
  Write(QStringLiteral("old.vcf"),
        "BEGIN:VCARD\r\nVERSION:2.1\r\nN:\xB1\xE8\xC3\xB6\xBC\xF6\r\nEND:VCARD\r\n");
  Write(QStringLiteral("Windows/거문고와 가야금으로 연주한 아주 길고 느린 아침 알림 소리.wav"), {});
  // Any free port, so that walks can go beside each other.
  Write(QStringLiteral("settings.json"), R"({"\\Software\\Fennick\\Quill\\Infrared":{"Port":0}})");
}

void WindowWalk::Write(const QString& name, const QByteArray& content) const {
  const QFileInfo info(m_home.filePath(name));
  ASSERT_TRUE(QDir().mkpath(info.path()));
  QFile file(info.filePath());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(content), content.size());
}

int WindowWalk::Go(const Look& look) {
  QFile walk(QStringLiteral(QUILL_WALK));
  EXPECT_TRUE(walk.open(QIODevice::ReadOnly));
  ReadyDriver driver({QStringLiteral("--home"), m_home.path(), QStringLiteral("--infrared"),
                      QStringLiteral("obex"), QStringLiteral("--now"),
                      QStringLiteral("2004-09-15T09:30:05"), QStringLiteral("--scale"), m_scale});
  int places = 0;
  while (!walk.atEnd()) {
    const QByteArray line = walk.readLine().trimmed();
    if (line.startsWith('{')) {
      EXPECT_TRUE(driver.Ask(line).value(u"ok").toBool()) << line.constData();
    } else if (line.startsWith('=')) {
      const QString place = QString::fromUtf8(line.sliced(1).trimmed());
      const testing::ScopedTrace trace(__FILE__, __LINE__, place.toStdString());
      look(driver, place);
      ++places;
    }
  }
  return places;
}

void ForEachInTree(const QJsonObject& tree, const std::function<void(const QJsonObject&)>& look) {
  look(tree);
  for (const auto& child : tree.value(u"children").toArray()) ForEachInTree(child.toObject(), look);
}

bool Has(const QJsonObject& object, QStringView list, const QString& word) {
  return object.value(list).toArray().contains(word);
}

bool IsReached(const QJsonObject& object) {
  return Has(object, u"state", QStringLiteral("focusable")) ||
         !object.value(u"actions").toArray().isEmpty();
}

const std::set<QString>& SpokenRoles() { return kRoles; }

void ExpectSpoken(const QJsonObject& tree) {
  EXPECT_FALSE(tree.value(u"role").toString().isEmpty());
  ForEachInTree(tree, ExpectOneSpoken);
}

}  // namespace quill::test
