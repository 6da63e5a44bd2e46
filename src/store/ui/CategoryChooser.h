// Chooses categories, several at once. The same dialog adds, renames and removes them, since there
// is no other place for that; those changes are written at once and stay, also after Cancel.
#pragma once

#include <functional>

#include "platform/ui/Dialog.h"
#include "store/CategoryChoice.h"

class QLineEdit;

namespace quill {

class CCheckList;

using CategoryChanged = std::function<void(const QString& from, const QString& to)>;

class CCategoryChooser : public CDialog {
  Q_OBJECT
 public:
  // names: those checked at opening, separated by commas. The library may lack some.
  CCategoryChooser(CScreen& screen, const QString& names);

  CategoryChoice Choice() const;
  // Told of each category that was renamed, or removed: then to is empty. May be unset.
  CategoryChanged Changed;
  void OnVisibleAreaChanged(QRect area) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  CCheckList& List() const;
  QLineEdit& Editor() const;
  QString Typed() const;
  QString CurrentName() const;
  bool IsListed(const QString& name) const;
  void KeepFocusUnderThePen();
  void FollowButton(int id, void (CCategoryChooser::*act)());
  void Offer(const CategoryItems& items, const QString& current);
  void ShowCurrent();
  void EnableButtons();
  bool CarryOut(const QString& name, const std::function<CategoryEdit()>& edit);
  void Add();
  void Rename();
  void Remove();

  bool m_isFirstTap = false;  // the pen has brought the focus into the editor and is still down
};

// Runs the chooser over owner. names: in, the ones that are checked at opening; out, the chosen
// ones joined by commas. positions: their places in the library's list, ended by 35. False, and
// both as they were, on Cancel. The kind is always 1; there is no other. changed is told at once,
// whatever ends the chooser.
bool Cate_ShowCategoryList(CScreen& owner, int kind, QString& names, std::vector<int>& positions,
                           const CategoryChanged& changed = {});

}  // namespace quill
