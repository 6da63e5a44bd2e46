// A day that is typed: "MM/dd/yyyy", section by section or as digits alone. What is no day of the
// calendar cannot be typed. A day that the month has only in the year that is typed after it waits
// for that year, and a year of two digits is the one nearest to today, at most 20 years ahead.
#pragma once

#include "platform/ui/SectionEdit.h"

namespace quill {

class CDateEdit : public CSectionEdit {
  Q_OBJECT
 public:
  explicit CDateEdit(QWidget* parent);

  // No more digits come: two that a year could begin with are one.
  void TakeShortYear();
  // Up and down are the parent's then, as in a list of rows, and step nothing.
  void HandOnUpAndDown() { m_handsOn = true; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsForParent(const QKeyEvent& event) const;
  bool IsNeedlessSlash(const QKeyEvent& event) const;
  void TypeDigit(QKeyEvent& event);
  void NoteDigit(const QString& digit);
  bool IsShortYearBegun() const;
  void PutNoted(int year);
  QDate Noted(int year) const;
  void Forget();

  bool m_handsOn = false;
  // The digits typed since their section was begun; empty: not known.
  QString m_day;
  QString m_year;
};

}  // namespace quill
