#include "store/pim/PimStore.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

#include "store/StoreLog.h"
#include "store/pim/Database.h"
#include "store/pim/Journal.h"
#include "store/pim/PimCalendar.h"
#include "store/pim/PimCategories.h"
#include "store/pim/PimContacts.h"
#include "store/pim/Schema.h"
#include "store/pim/SqlFunctions.h"
#include "store/pim/StoreFile.h"

namespace quill {

namespace {

constexpr QLatin1String kWithoutFile(":memory:");

// Keeps the folder if its table answers: 0 or the failure.
template <typename Folder>
int Open(std::unique_ptr<Folder> folder, std::unique_ptr<Folder>& kept) {
  const int code = folder->Check();
  if (code == SQLITE_OK) kept = std::move(folder);
  return code;
}

class PimTransaction : public StoreTransaction {
 public:
  explicit PimTransaction(std::weak_ptr<Database> database) : m_database(std::move(database)) {}
  ~PimTransaction() override {
    if (const auto database = m_database.lock()) database->Rollback();
  }
  Q_DISABLE_COPY_MOVE(PimTransaction)

  bool Commit() override {
    const auto database = m_database.lock();
    if (!database || !database->Commit()) return false;
    m_database.reset();
    return true;
  }

 private:
  std::weak_ptr<Database> m_database;
};

}  // namespace

PimStore::PimStore(QString path, PimStoreOptions options)
    : m_path(std::move(path)), m_options(options) {}

PimStore::~PimStore() { Release(); }

int PimStore::Create() {
  Release();
  m_lastError.clear();
  if (m_path != kWithoutFile) {
    m_path = QFileInfo(m_path).absoluteFilePath();
    const QString folder = QFileInfo(m_path).path();
    if (!QDir().mkpath(folder)) {
      return Refuse(SQLITE_CANTOPEN, QStringLiteral("no folder %1").arg(folder));
    }
    if (const auto fault = ExaminePlace(m_path)) return Refuse(fault->Code, fault->Reason);
  }
  const int code = OpenFile();
  if (code != SQLITE_OK) Release();
  return code;
}

int PimStore::OpenFile() {
  m_database = std::make_shared<Database>();
  const auto readOnly = m_path == kWithoutFile ? std::nullopt : ExamineWriting(m_path);
  if (readOnly && m_options.Access == StoreAccess::Writing)
    return m_database->Fail(readOnly->Code, readOnly->Reason);
  const int opened = readOnly ? m_database->OpenForReading(m_path) : m_database->Open(m_path);
  if (opened != SQLITE_OK) return opened;
  const auto fault = ExamineHeader(m_database->FirstBytes(kStoreHeaderSize));
  return fault ? m_database->Fail(fault->Code, fault->Reason) : SQLITE_OK;
}

int PimStore::Refuse(int code, const QString& reason) {
  m_lastError = reason;
  qCWarning(storeLog).noquote() << "Store refused" << code << reason;
  return code;
}

int PimStore::Logon() {
  if (!m_database) return Refuse(SQLITE_MISUSE, QStringLiteral("the store is not open"));
  if (const int code = RegisterFunctions(*m_database)) return code;
  if (const int code = PrepareSchema(*m_database)) return code;
  if (!m_database->IsReadOnly()) PurgeJournals(*m_database);
  return SQLITE_OK;
}

StoreHealth PimStore::Check() { return m_database ? CheckStore(*m_database) : StoreHealth{}; }

int PimStore::OpenFolder(FolderKind kind) {
  if (!m_database) return Refuse(SQLITE_MISUSE, QStringLiteral("the store is not open"));
  if (kind == FolderKind::Calendar) {
    return Open(std::make_unique<PimCalendar>(*m_database, m_options.AppointmentInkLimit),
                m_calendar);
  }
  const int code = Open(std::make_unique<PimContacts>(*m_database), m_contacts);
  if (code == SQLITE_OK) m_categories = std::make_unique<PimCategories>(*m_database);
  return code;
}

void PimStore::Close() { Release(); }

void PimStore::Release() {
  if (!m_database) return;
  m_lastError = m_database->FailureText();
  m_contacts.reset();
  m_categories.reset();
  m_calendar.reset();
  m_database.reset();
}

ContactsFolder* PimStore::Contacts() { return m_contacts.get(); }

CalendarFolder* PimStore::Calendar() { return m_calendar.get(); }

CategoryLibrary* PimStore::Categories() { return m_categories.get(); }

std::unique_ptr<StoreTransaction> PimStore::Begin() {
  if (!m_database || !m_database->Begin()) return nullptr;
  return std::make_unique<PimTransaction>(m_database);
}

std::unique_ptr<StoreTransaction> PimStore::BeginReading() {
  if (!m_database || !m_database->BeginReading()) return nullptr;
  return std::make_unique<PimTransaction>(m_database);
}

qint64 PimStore::Changes() { return m_database ? m_database->Stamp().OthersVersion : 0; }

QString PimStore::LastError() const { return m_database ? m_database->FailureText() : m_lastError; }

}  // namespace quill
