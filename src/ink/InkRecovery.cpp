#include "ink/InkRecovery.h"

#include <QCryptographicHash>
#include <QLoggingCategory>

#include <utility>

#include "ink/InkByteReader.h"
#include "ink/InkByteWriter.h"
#include "ink/InkChunks.h"
#include "ink/InkFormat.h"
#include "platform/Clock.h"
#include "platform/RecoveryFiles.h"
#include "platform/Services.h"

namespace quill {

namespace {

Q_LOGGING_CATEGORY(logInk, "quill.ink")

// When what is before it was written, and of whom it is. They need no reader, and no edit keeps
// them.
constexpr QByteArrayView kTimeChunk = "tIME";
constexpr QByteArrayView kOwnerChunk = "wHOM";
constexpr int kWriteTimer = 1;
constexpr int kWriteAfter = 2000;  // milliseconds
constexpr int kHashDigits = 16;

QByteArray TimeChunk() {
  InkByteWriter payload;
  payload.U64(static_cast<quint64>(g_services.Clock->Now().toMSecsSinceEpoch()));
  QByteArray bytes;
  AppendInkChunk(bytes, kTimeChunk, payload.Written());
  return bytes;
}

QByteArray OwnerChunk(const QString& owner) {
  QByteArray bytes;
  if (!owner.isEmpty()) AppendInkChunk(bytes, kOwnerChunk, owner.toUtf8());
  return bytes;
}

// Of the last chunk of a type that is whole.
std::optional<QByteArrayView> LastPayload(const QByteArray& bytes, QByteArrayView type) {
  std::optional<QByteArrayView> payload;
  InkChunkWalk walk(bytes);
  while (const auto chunk = walk.Next())
    if (chunk->IsSound && chunk->Type == type) payload = chunk->Payload;
  return payload;
}

std::optional<qint64> TimeOf(const QByteArray& bytes) {
  const auto payload = LastPayload(bytes, kTimeChunk);
  return payload ? std::optional(static_cast<qint64>(InkByteReader(*payload).U64())) : std::nullopt;
}

QString OwnerOf(const QByteArray& bytes) {
  return QString::fromUtf8(LastPayload(bytes, kOwnerChunk).value_or(QByteArrayView()));
}

}  // namespace

QString InkRecoveryName(const QString& memoPath) {
  const QByteArray path = memoPath.toCaseFolded().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex();
  return u"ink-"_qs + QString::fromLatin1(hash.left(kHashDigits));
}

QString ContactInkRecoveryName(qint64 oid) { return u"ink-contact-%1"_qs.arg(oid); }

QString AppointmentInkRecoveryName(qint64 oid) { return u"ink-appointment-%1"_qs.arg(oid); }

std::optional<UnsavedInk> FindUnsavedInk(const QString& name) {
  RecoveryFiles* const files = g_services.Recovery;
  const std::optional<QByteArray> bytes = files ? files->Read(name) : std::nullopt;
  if (!bytes) return std::nullopt;
  InkContent content = ReadInk(*bytes);
  const std::optional<qint64> time = TimeOf(*bytes);
  // Nothing is what all was deleted from only where the file says that it was written so.
  const bool isReadable =
      content.Reading == InkReading::Damaged && (time || !content.Note.IsEmpty());
  if (isReadable) return UnsavedInk{std::move(content.Note), time.value_or(0), OwnerOf(*bytes)};
  qCWarning(logInk) << "there is no note in" << name;
  files->SetAside(name);  // says itself when it cannot; the next note overwrites it then
  return std::nullopt;
}

bool WriteUnsavedInk(const QString& name, const InkNote& note, const QString& owner) {
  if (!g_services.Recovery) return false;
  return g_services.Recovery->Write(name, WriteOpenInk(note) + OwnerChunk(owner) + TimeChunk());
}

void RemoveUnsavedInk(const QString& name) {
  if (g_services.Recovery) g_services.Recovery->Remove(name);
}

InkRecovery::InkRecovery(InkDocument& document, const QString& name, const QString& owner)
    : m_document(document), m_name(name), m_owner(owner) {
  connect(&document, &InkDocument::StrokeAdded, this, &InkRecovery::FollowStroke);
  connect(&document, &InkDocument::Edited, this, &InkRecovery::FollowEdit);
}

InkRecovery::~InkRecovery() {
  if (m_isTimed) WriteDue();
}

void InkRecovery::Discard() {
  StopTimer();
  m_begun.reset();
  RemoveUnsavedInk(m_name);
}

void InkRecovery::FollowStroke(const InkStrokePtr& stroke) { m_added = stroke; }

void InkRecovery::FollowEdit() {
  const InkStrokePtr added = std::exchange(m_added, nullptr);
  if (!added) return WriteSoon();
  if (!AddToFile(added)) WriteWhole();
}

// Behind a file that holds all but this stroke. While something else waits to be written it may
// hold the stroke already, which was erased and has come back.
bool InkRecovery::AddToFile(const InkStrokePtr& stroke) {
  const InkNote& note = m_document.Note();
  const bool fits =
      m_begun && !m_isTimed && m_begun->Pens == note.Pens && m_begun->Created == note.Page.Created;
  if (!fits || !g_services.Recovery) return false;
  return g_services.Recovery->Append(m_name, WriteInkStroke(note, stroke) + TimeChunk());
}

void InkRecovery::WriteWhole() {
  StopTimer();
  m_begun.reset();
  const InkNote& note = m_document.Note();
  if (!WriteUnsavedInk(m_name, note, m_owner)) return;
  m_begun = Begun{note.Pens, note.Page.Created};
}

// Counted from the first change, or steady typing would never be written.
void InkRecovery::WriteSoon() {
  if (m_isTimed) return;
  g_services.Timers->Set(*this, kWriteTimer, kWriteAfter);
  m_isTimed = true;
}

void InkRecovery::OnTimer(int /*id*/) { WriteDue(); }

// All steps may have been undone.
void InkRecovery::WriteDue() {
  if (m_document.Steps().isClean()) return Discard();
  WriteWhole();
}

void InkRecovery::StopTimer() {
  if (m_isTimed) g_services.Timers->Kill(*this, kWriteTimer);
  m_isTimed = false;
}

}  // namespace quill
