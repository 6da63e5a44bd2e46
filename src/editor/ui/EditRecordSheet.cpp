#include "editor/ui/EditRecordSheet.h"

#include "editor/ui/MemoPage.h"
#include "editor/ui/RecordPage.h"
#include "platform/InputPanel.h"
#include "platform/Services.h"
#include "settings/Settings.h"
#include "store/ContactStore.h"

namespace quill {

CEditRecordSheet::CEditRecordSheet(CScreen& screen, const QString& caption)
    : CSheet(screen, caption),
      m_panelWasUp(g_services.InputPanel && g_services.InputPanel->IsUp()) {
  AddPage(*new CBasicPage(*this, m_record));
  AddPage(*new CDetailPage(*this, m_record));
  AddPage(*new CMemoPage(*this));
}

// The panel came up for the fields of the sheet.
CEditRecordSheet::~CEditRecordSheet() {
  if (g_services.InputPanel && !m_panelWasUp) g_services.InputPanel->Lower();
}

void CEditRecordSheet::OnInitDialog() {
  m_record = LoadSheet(m_record.Oid, g_sheet);
  CSheet::OnInitDialog();
}

CommandRoute CEditRecordSheet::Route() const { return CSheet::Route(); }

void CEditRecordSheet::Save() {
  if (HasAnythingToSave(m_record))
    WriteContact(m_record.Oid, RecordOf(m_record, g_settings.AreaCodePrefix));
  g_contactInk = {};
}

}  // namespace quill
