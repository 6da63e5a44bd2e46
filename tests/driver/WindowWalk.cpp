#include "driver/WindowWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace quill::test {

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

}  // namespace quill::test
