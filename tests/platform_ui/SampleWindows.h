// Windows to try the pen screen with: a frame with three menus, and dialogs that say what happened.
#pragma once

#include <vector>

#include "platform/ui/Dialog.h"
#include "platform/ui/Screen.h"

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

// Its resource, and the same controls on a dialog that fills the client area.
const resources::DialogResource& FullScreenSample();
const resources::DialogResource& SmallSample();

}  // namespace quill::test
