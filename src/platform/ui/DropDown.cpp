#include "platform/ui/DropDown.h"

#include "platform/ui/MenuPopup.h"
#include "platform/ui/Screen.h"

namespace quill {

namespace {

// The entry whose text is shown, -1 when a text is typed that no entry has.
int ShownEntry(const QComboBox& list) {
  return list.isEditable() ? list.findText(list.currentText()) : list.currentIndex();
}

// A list entry's command is its index, one up: 0 means that nothing was chosen.
std::vector<MenuItem> ListItems(const QComboBox& list) {
  std::vector<MenuItem> items;
  items.reserve(static_cast<std::size_t>(list.count()));
  const int shown = ShownEntry(list);
  for (int i = 0; i < list.count(); ++i)
    items.push_back({.Text = list.itemText(i), .Id = i + 1, .Checked = i == shown});
  return items;
}

}  // namespace

CDropDown::CDropDown(CScreen& screen, QWidget* parent) : QComboBox(parent), m_screen(screen) {}

void CDropDown::showPopup() {
  const QRect place(mapTo(&m_screen, QPoint(0, 0)), size());
  CMenuPopup popup(m_screen, ListItems(*this), place);
  popup.setAccessibleName(accessibleName());
  popup.StartAt(ShownEntry(*this));
  const int chosen = popup.Track() - 1;
  if (Closed) Closed();
  if (chosen < 0) return;
  setCurrentIndex(chosen);
  Q_EMIT activated(chosen);
}

}  // namespace quill
