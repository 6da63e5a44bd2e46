#include "list/StartUp.h"

#include <QTemporaryDir>

#include "ListTest.h"
#include "memo/MemoState.h"
#include "platform/DesktopDeviceFiles.h"
#include "platform/JsonRegistry.h"
#include "settings/Settings.h"

namespace quill {
namespace {

// Each notes in the steps what it was asked for, once in a row.
class Steps {
 public:
  void Note(const QString& step) {
    if (m_seen.isEmpty() || m_seen.last() != step) m_seen.append(step);
  }
  const QStringList& Seen() const { return m_seen; }

 private:
  QStringList m_seen;
};

class RecordingStore : public test::FaultyStore {
 public:
  RecordingStore(StoreProvider& inner, Steps& steps) : FaultyStore(inner), m_steps(steps) {}

  int Create() override {
    m_steps.Note(QStringLiteral("session"));
    return FailingStep == 1 ? 5 : FaultyStore::Create();
  }
  int Logon() override { return FailingStep == 2 ? 5 : FaultyStore::Logon(); }
  int OpenFolder(FolderKind kind) override {
    const int step = kind == FolderKind::Contacts ? 3 : 4;
    return FailingStep == step ? 5 : FaultyStore::OpenFolder(kind);
  }
  ContactsFolder* Contacts() override {
    m_steps.Note(QStringLiteral("first page"));
    return FaultyStore::Contacts();
  }
  CategoryLibrary* Categories() override {
    m_steps.Note(QStringLiteral("category library"));
    return HasCategories ? FaultyStore::Categories() : nullptr;
  }

  int FailingStep = 0;  // 1 to 4
  bool HasCategories = true;

 private:
  Steps& m_steps;
};

class RecordingFiles : public DesktopDeviceFiles {
 public:
  RecordingFiles(const QString& home, Steps& steps)
      : DesktopDeviceFiles({.Device = home, .MyDocuments = home}), m_steps(steps) {}
  int CreateFolder(const QString& path) override {
    m_steps.Note(QStringLiteral("memo folder"));
    return DesktopDeviceFiles::CreateFolder(path);
  }

 private:
  Steps& m_steps;
};

class RecordingRegistry : public JsonRegistry {
 public:
  RecordingRegistry(const QString& file, Steps& steps) : JsonRegistry(file), m_steps(steps) {}
  RegistryKeyState Create(const QString& key) override {
    m_steps.Note(QStringLiteral("settings"));
    return JsonRegistry::Create(key);
  }

 private:
  Steps& m_steps;
};

class StartUp : public test::FreshState {
 protected:
  StartUp() {
    g_services.Files = &m_files;
    g_services.Registry = &m_registry;
  }

  // A store with so many contacts. The session is closed again.
  void FillStore(int contacts) {
    PimStore store(StoreFile());
    ASSERT_EQ(OpenSession(store), StartupCode::Opened);
    for (int number = 0; number < contacts; ++number)
      ASSERT_NE(store.Contacts()->Save(0, ContactRecord(), {}), 0);
    CloseSession();
  }
  QString StoreFile() const { return m_home.filePath(QStringLiteral("store.db")); }

  QTemporaryDir m_home;
  Steps m_steps;
  PimStore m_pimStore{StoreFile()};
  RecordingStore m_store{m_pimStore, m_steps};
  RecordingFiles m_files{m_home.path(), m_steps};
  RecordingRegistry m_registry{m_home.filePath(QStringLiteral("settings.json")), m_steps};
};

TEST_F(StartUp, DoesItsStepsInTheirOrder) {
  EXPECT_EQ(StartList(m_store), StartupCode::Opened);
  EXPECT_EQ(m_steps.Seen(), QStringList({u"session"_qs, u"memo folder"_qs, u"settings"_qs,
                                         u"category library"_qs, u"first page"_qs}));
  CloseSession();
}

TEST_F(StartUp, ShowsTheStoresFirstContacts) {
  FillStore(20);
  EXPECT_EQ(StartList(m_store), StartupCode::Opened);
  EXPECT_EQ(g_list.Total, 20);
  EXPECT_EQ(g_list.RowsShown, 14);
  EXPECT_EQ(g_settings, Settings());
  CloseSession();
}

TEST_F(StartUp, HasARowMoreWhereTheIndexStripIsSavedAsHidden) {
  FillStore(20);
  Settings hidden{.Abc = 0};
  SaveSettings(hidden);
  EXPECT_EQ(StartList(m_store), StartupCode::Opened);
  EXPECT_EQ(g_list.RowsPerPage, 15);
  EXPECT_EQ(g_list.RowsShown, 15);
  CloseSession();
}

TEST_F(StartUp, GoesOnWithoutACategoryLibrary) {
  FillStore(1);
  m_store.HasCategories = false;
  EXPECT_EQ(StartList(m_store), StartupCode::Opened);
  EXPECT_EQ(g_list.RowsShown, 1);
  CloseSession();
}

TEST_F(StartUp, GoesOnInTheFallBackFolderWithoutAMemoFolder) {
  FillStore(1);
  g_memo.Folder = u"\\Missing\\Fennick"_qs;
  EXPECT_EQ(StartList(m_store), StartupCode::Opened);
  EXPECT_EQ(g_memo.Folder, u"\\My Documents\\"_qs);
  EXPECT_EQ(g_list.RowsShown, 1);
  CloseSession();
}

class FailedSession : public StartUp, public testing::WithParamInterface<int> {};

TEST_P(FailedSession, EndsTheStartUp) {
  m_store.FailingStep = GetParam();
  EXPECT_EQ(StartList(m_store), static_cast<StartupCode>(GetParam()));
  EXPECT_EQ(m_steps.Seen(), QStringList(u"session"_qs));
  EXPECT_EQ(g_list.Total, 0);
}

INSTANTIATE_TEST_SUITE_P(Steps, FailedSession, testing::Values(1, 2, 3, 4));

}  // namespace
}  // namespace quill
