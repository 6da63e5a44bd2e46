// Keeps in a recovery file what would be lost of a note that is being written when the program ends
// at any moment: each stroke as the pen goes up, all else after two seconds.
//
// The file is a note that lacks its end (see InkFormat.h), with the time of each addition in it,
// and of whom it is where its name does not say so.
#pragma once

#include <QObject>

#include <optional>
#include <vector>

#include "ink/InkDocument.h"
#include "platform/Timers.h"

namespace quill {

// The file's name for the memo at a device path, whose case says nothing; for the note of a contact
// or an appointment, each 0 for a new one; and for a memo that has no path yet.
QString InkRecoveryName(const QString& memoPath);
QString ContactInkRecoveryName(qint64 oid);
QString AppointmentInkRecoveryName(qint64 oid);
inline constexpr QStringView kNewInkRecoveryName = u"ink-new";

struct UnsavedInk {
  InkNote Note;        // may be empty: all of it was deleted
  qint64 Time = 0;     // of the last change, milliseconds since 1970 UTC
  QString Owner = {};  // as it was given when the note was begun
};

// What an earlier run left under this name; asked before anything is written under it. A file that
// cannot be read is set aside.
std::optional<UnsavedInk> FindUnsavedInk(const QString& name);
// Writes what no open note keeps any more. False, and logged, where it cannot be written.
bool WriteUnsavedInk(const QString& name, const InkNote& note, const QString& owner);
// It is saved or given up. Logged where that fails; it is offered once more then, which loses
// nothing.
void RemoveUnsavedInk(const QString& name);

// One per open note. The file is there from the first change on; what cannot be written is logged
// and tried again after the next change.
class InkRecovery : public QObject, public TimerTarget {
  Q_OBJECT
 public:
  // The document outlives this. What waits for its two seconds is written at the end.
  InkRecovery(InkDocument& document, const QString& name, const QString& owner = {});
  ~InkRecovery() override;

  // The note is saved, given up or deleted: nothing is lost any more.
  void Discard();

  void OnTimer(int id) override;

 private:
  // What lies in the file. Strokes can be added to it while their pens and the time they count from
  // are those of the note.
  struct Begun {
    std::vector<InkPen> Pens;
    quint64 Created;
  };

  void FollowStroke(const InkStrokePtr& stroke);
  void FollowEdit();
  bool AddToFile(const InkStrokePtr& stroke);
  void WriteWhole();
  void WriteSoon();
  void WriteDue();
  void StopTimer();

  InkDocument& m_document;
  QString m_name;
  QString m_owner;
  InkStrokePtr m_added;          // by the edit that is about to be told
  std::optional<Begun> m_begun;  // nothing: there is no file
  bool m_isTimed = false;
};

}  // namespace quill
