// The tabs of a property sheet. A tap on one asks for its page; they never take the focus.
#pragma once

#include <functional>

#include "platform/SheetTabsLayout.h"
#include "platform/ui/PaintedWindow.h"

namespace quill {

class CSheetTabs : public CPaintedWindow {
  Q_OBJECT
 public:
  explicit CSheetTabs(QWidget* parent);

  const SheetTabsModel& Model() const { return m_model; }
  void AddTab(const QString& title);
  void SetActive(int page);
  void ActivateRow(int row) override;

  // Called with the number of the page whose tab was tapped.
  std::function<void(int page)> Chosen;

 protected:
  void PenPress(QPoint at) override;
  void PenRelease(QPoint at) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SetPressed(int page);
  void LayOut();

  SheetTabsModel m_model;
};

}  // namespace quill
