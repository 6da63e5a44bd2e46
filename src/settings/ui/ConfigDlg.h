// The configuration: index strip, area code, and two buttons that do something at once. OK writes
// into g_settings; saving them and laying out the list again are the caller's, also after Cancel.
#pragma once

#include <functional>

#include "platform/ui/Dialog.h"
#include "settings/Configuration.h"

class QCheckBox;
class QLineEdit;

namespace quill {

// What the buttons do; one that is empty does nothing.
struct ConfigActions {
  std::function<void()> DeleteAll;
  std::function<void()> Receive;
};

class CConfigDlg : public CDialog {
  Q_OBJECT
 public:
  CConfigDlg(CScreen& screen, ConfigActions actions);

  void OnOK() override;

 protected:
  void OnInitDialog() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QCheckBox& Check(int id) const;
  QLineEdit& AreaCodeEdit() const;
  void ShowEntries(const ConfigEntries& entries);
  void EnableAreaCode();
  void FollowButton(int id, const std::function<void()>& action);

  const ConfigActions m_actions;
};

}  // namespace quill
