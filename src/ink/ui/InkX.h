// The rich ink control: a page on which a pen, a finger or a mouse writes and a keyboard types.
//
// It shows one note and changes it; the note's bytes go in and come out whole. Sizes are logical
// pixels, zoom is percent.
#pragma once

#include <QWidget>

#include "ink/InkDocument.h"
#include "ink/InkPaper.h"

namespace quill {

class InkView;

enum class InkAccess { Write, ReadOnly };

// Page styles. Others are kept and answered, and drawn as Page.
inline constexpr int kInkPage = kRuledPaper;
inline constexpr int kInkCloseUp = kDottedPaper;

// Views: what else is shown beside the page.
inline constexpr int kInkPlainView = 0;
inline constexpr int kInkMapView = 2;

// What the pen does.
inline constexpr int kInkPenWrites = 0;
inline constexpr int kInkPenSelects = 1;

class InkX : public QWidget {
  Q_OBJECT
 public:
  explicit InkX(QWidget* parent, InkAccess access = InkAccess::Write);
  ~InkX() override;

  bool readOnly() const;

  int PageStyle() const;
  void SetPageStyle(int style);
  int Zoom() const;
  // 25 to 800; others become the nearest of these.
  void SetZoom(int percent);
  // 1: the page ends at its width. 0: it also grows to the right.
  int Wrap() const;
  void SetWrap(int flag);
  int View() const;
  void SetView(int word);
  // What command 205's check mark asks: the view.
  int QueryMode() const { return View(); }
  int Toggle() const;
  void SetToggle(int word);

  // To be called before the bytes are taken: what the pen writes and what an input method composes
  // is on the page then.
  void EndInput();

  // Bytes. Setting forgets the steps and touches neither style, zoom, wrap nor view.
  qsizetype DataLength() const;
  QByteArray Data() const;
  void SetData(const QByteArray& bytes);

  bool CanUndo() const;
  bool CanRedo() const;
  void Undo();
  void Redo();

  bool HasSelection() const;
  bool CanPaste() const;
  void SelectAll();
  void Cut();
  void Copy();
  void Paste();
  // Deletes the selection. Of a note that cannot be read it deletes all once all is selected.
  void Clear();

  // Where on the page the window stands.
  const InkView& PageView() const;

  InkDocument& Document();
  const InkDocument& Document() const;

  QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

 Q_SIGNALS:
  void zoomChanged(int percent);
  // The note is another than before.
  void changed();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Parts;

  void AddBars();
  void ConnectDocument();
  void ConnectHand();
  void FollowTask();
  void FollowPaper();
  void FollowPage();
  void FollowScroll();
  void PlaceBars();
  void ScrollTo(QPoint device);
  void CentreOn(QPointF page);
  void AdvanceFrom(QPointF at);
  void ShowDevice(const QRect& device);
  void ShowCaret();
  void EndGesture();
  void TakePen(const QEvent& event);
  bool TakeCommandKey(const QKeyEvent& key);
  bool TakeBack();
  bool TakeScrollKey(const QKeyEvent& key);
  QPointF PastePlace(const QSizeF& ink);
  QPoint PasteOffset(const InkNote& fragment);
  QRect Page() const;

  std::unique_ptr<Parts> m_parts;
};

}  // namespace quill
