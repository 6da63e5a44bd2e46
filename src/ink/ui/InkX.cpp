#include "ink/ui/InkX.h"

namespace quill {

struct InkX::Parts {
  InkDocument Document;
  InkAccess Access;
  int Style = kInkPage;
  int Zoom = 100;
  int Wrap = 1;
  int View = kInkPlainView;
  int Toggle = kInkPenWrites;
};

InkX::InkX(QWidget* parent, InkAccess access)
    : QWidget(parent), m_parts(std::make_unique<Parts>()) {
  m_parts->Access = access;
}

InkX::~InkX() = default;

bool InkX::readOnly() const { return m_parts->Access == InkAccess::ReadOnly; }

int InkX::PageStyle() const { return m_parts->Style; }
void InkX::SetPageStyle(int style) { m_parts->Style = style; }
int InkX::Zoom() const { return m_parts->Zoom; }
void InkX::SetZoom(int percent) {
  m_parts->Zoom = std::clamp(percent, 25, 800);
  Q_EMIT zoomChanged(m_parts->Zoom);
}
int InkX::Wrap() const { return m_parts->Wrap; }
void InkX::SetWrap(int flag) { m_parts->Wrap = flag; }
int InkX::View() const { return m_parts->View; }
void InkX::SetView(int word) { m_parts->View = word; }
int InkX::Toggle() const { return m_parts->Toggle; }
void InkX::SetToggle(int word) { m_parts->Toggle = word; }

qsizetype InkX::DataLength() const { return Data().size(); }
QByteArray InkX::Data() const { return m_parts->Document.Data(); }
void InkX::SetData(const QByteArray& bytes) { m_parts->Document.SetData(bytes); }

bool InkX::CanUndo() const { return false; }
bool InkX::CanRedo() const { return false; }
void InkX::Undo() {}
void InkX::Redo() {}
bool InkX::HasSelection() const { return false; }
bool InkX::CanPaste() const { return false; }
void InkX::SelectAll() {}
void InkX::Cut() {}
void InkX::Copy() {}
void InkX::Paste() {}
void InkX::Clear() { SetData({}); }

InkDocument& InkX::Document() { return m_parts->Document; }
const InkDocument& InkX::Document() const { return m_parts->Document; }

}  // namespace quill
