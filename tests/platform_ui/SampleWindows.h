// Windows to try the pen screen with: a frame with three menus, and dialogs that say what happened.
#pragma once

#include <vector>

#include "platform/ui/Dialog.h"
#include "platform/ui/Screen.h"
#include "platform/ui/Sheet.h"

namespace quill::test {

// Commands 1 to 99 note their ids, 100 is disabled. The menus are built from Bar.
class SampleFrame : public CWindow {
 public:
  explicit SampleFrame(CScreen& screen);
  ~SampleFrame() override;

  WindowKind Kind() const override { return WindowKind::Frame; }
  MenuBarModel MenuBar() const override { return Bar; }
  CommandRoute Route() const override;
  bool HasOK() const override { return true; }
  void OnOK() override { Happened.push_back(QStringLiteral("OK")); }
  void OnCancel() override { Happened.push_back(QStringLiteral("Cancel")); }
  bool ShowContextMenu() override;
  void OnVisibleAreaChanged(QRect area) override { VisibleAreas.push_back(area); }

  // "New" (1) and the panel's button; "One" (11, 12), "Two" (21) and "Three" (31).
  MenuBarModel Bar;
  std::vector<int> Ran;
  QStringList Happened;
  std::vector<QRect> VisibleAreas;
  bool HasContextMenu = false;

 private:
  CommandTarget m_commands;
};

inline constexpr int kFirstEdit = 201;
inline constexpr int kSecondEdit = 202;
inline constexpr int kSampleCheck = 203;
inline constexpr int kHiddenEdit = 204;
inline constexpr int kSampleList = 205;

// A small dialog with two editors, a check box, a hidden editor, a drop-down list, OK and Cancel.
class SampleDialog : public CDialog {
 public:
  explicit SampleDialog(CScreen& screen);
  SampleDialog(CScreen& screen, const resources::DialogResource& resource)
      : CDialog(screen, resource) {}

  std::function<void()> Initialised;  // called by OnInitDialog

 protected:
  void OnInitDialog() override {
    if (Initialised) Initialised();
  }
};

// A page that notes in the sheet's log what it is told. Its title is its menu's too, with the
// command that was given; the editors 201 and 202 stand on it, and whatever else is put there.
class SamplePage : public CSheetPage {
 public:
  SamplePage(CSheet& sheet, const QString& title, int command, QStringList& log);

  void LoadRows() override { Note("load"); }
  void StoreRows() override { Note("store"); }
  void BecomeActive() override;
  void BecomeInactive() override { Note("inactive"); }
  MenuBarModel MenuBar() const override;
  CommandRoute Route() const override;
  bool ShowContextMenu() override;

  QWidget* FocusWanted = nullptr;  // by BecomeActive

 private:
  void Note(const char* what);

  const int m_command;
  QStringList& m_log;
  CommandTarget m_commands;
};

// Three pages, "One" (command 31), "Two" (32) and "Three" (33).
class SampleSheet : public CSheet {
 public:
  explicit SampleSheet(CScreen& screen, SheetTabs tabs = SheetTabs::AtBottom);

  QStringList Log;  // "load One", "active One", ...
  SamplePage One;
  SamplePage Two;
  SamplePage Three;
};

// Its resource, and the same controls on a dialog that fills the client area.
const resources::DialogResource& FullScreenSample();
const resources::DialogResource& SmallSample();

}  // namespace quill::test
