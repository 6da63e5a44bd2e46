// One page of a property sheet. It belongs to its sheet and has controls, a menu bar and commands
// of its own; the sheet's are those of the page that is shown.
#pragma once

#include "platform/ui/Window.h"
#include "resources/Dialogs.h"

namespace quill {

class CSheet;

class CSheetPage : public QWidget {
  Q_OBJECT
 public:
  // The sheet does not show it before it was told of it by AddPage.
  CSheetPage(CSheet& sheet, const QString& title);

  CSheet& Sheet() const { return m_sheet; }
  QString Title() const { return m_title; }

  // Before the sheet is shown: take over what is to be edited.
  virtual void LoadRows() {}
  // After OK, when the shown page was left: give back what was edited.
  virtual void StoreRows() {}
  // It is shown, with its size. Where it puts the focus, there it stays; otherwise its first
  // control gets it.
  virtual void BecomeActive() {}
  // Another page is about to be shown, or OK was pressed: end what is half done. Cancel does not
  // call it, nor the end of the program.
  virtual void BecomeInactive() {}

  virtual ControlMap Controls() const { return m_controls; }
  void AddControl(int id, QWidget* control) { m_controls[id] = control; }
  // By default as a window without any.
  virtual MenuBarModel MenuBar() const;
  virtual CommandRoute Route() const { return {}; }
  // The popup of the menu key. False when the page has none.
  virtual bool ShowContextMenu() { return false; }

 protected:
  // Makes a resource's control at its place in the page, and adds it under its id if it has one.
  QWidget* AddPageControl(const resources::DialogControl& control);

 private:
  CSheet& m_sheet;
  const QString m_title;
  ControlMap m_controls;
};

}  // namespace quill
