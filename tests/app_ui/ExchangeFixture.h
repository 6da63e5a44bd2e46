// A fixture for contacts in and out on the pen screen: a home with files and a store of its own.
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include "app/Places.h"
#include "app/ui/FileExchange.h"
#include "platform/Services.h"
#include "platform_ui/DialogFixture.h"
#include "store/pim/PimStore.h"
#include "support/ScriptedPrompt.h"

namespace quill::test {

inline QByteArray CardOf(const QByteArray& name) {
  return "BEGIN:VCARD\r\nVERSION:2.1\r\nN:" + name + "\r\nEND:VCARD\r\n";
}

class ExchangeFixture : public DialogFixture {
 protected:
  ExchangeFixture() : m_places(HomePlaces(m_home.path(), {})) {
    g_services.Prompt = &m_prompt;
    g_exchange = {};
  }
  ~ExchangeFixture() override { g_exchange = {}; }

  QString Path(const QString& name) const { return m_home.filePath(name); }
  QString Write(const QString& name, const QByteArray& content) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }
  QByteArray Content(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }
  // The names that the contacts are filed under, in their order.
  QStringList Names() const {
    PimStore store(m_places.StoreFile);
    EXPECT_EQ(store.Create() + store.Logon() + store.OpenFolder(FolderKind::Contacts), 0);
    const ContactCollection all = store.Contacts()->Items();
    QStringList names;
    for (int i = 1; i <= store.Contacts()->Count(all); ++i) {
      ContactItem item;
      EXPECT_TRUE(store.Contacts()->Read(store.Contacts()->OidAt(all, i), item));
      names.append(item.Record[ContactField::FileAs]);
    }
    return names;
  }

  QTemporaryDir m_home;
  Places m_places;
  ScriptedPrompt m_prompt;
};

}  // namespace quill::test
