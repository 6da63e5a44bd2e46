// What a date and a time that are typed have in common: sections, such as the month, of which a tap
// selects one, so that what is typed next takes its place. The left and right arrow keys go from
// one to the next, Home and End to the first and the last; up and down step it. The editor's menu
// opens inside the frame. Texts are English on every desktop.
#pragma once

#include <QDateTimeEdit>

#include <optional>

namespace quill {

class CSectionEdit : public QDateTimeEdit {
  Q_OBJECT
 public:
  // format: in Qt's terms.
  CSectionEdit(const QString& format, QWidget* parent);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowMenu(QPoint at);
  std::optional<int> SectionOfKey(const QKeyEvent& event) const;
  bool GoToSection(const QKeyEvent& event);
};

}  // namespace quill
