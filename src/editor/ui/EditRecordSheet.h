// The record sheet: one contact, created or edited on three pages. It edits rows; Save turns them
// into the contact again and writes it.
#pragma once

#include "editor/SheetRecord.h"
#include "platform/ui/Sheet.h"

namespace quill {

class CEditRecordSheet : public CSheet {
  Q_OBJECT
 public:
  // caption: "New" or "Edit". Without SetContact it is a new contact, which takes the seed text
  // that waits in g_sheet.
  CEditRecordSheet(CScreen& screen, const QString& caption);
  ~CEditRecordSheet() override;

  void SetContact(Oid oid) { m_record.Oid = oid; }
  const SheetRecord& Record() const { return m_record; }

  // To be called after OK, once. What there is nothing to save of is not written, and nothing is
  // said of it.
  void Save();

  CommandRoute Route() const override;

 protected:
  void OnInitDialog() override;

 private:
  SheetRecord m_record;
  bool m_panelWasUp = false;
};

}  // namespace quill
