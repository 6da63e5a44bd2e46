// Follows what is being composed in the editor with the focus, whoever composes it, and makes text
// of it before the editing ends: when the focus goes, a pen touches anything but the key panel, or
// a key comes that is no mere modifier. Lives as long as its screen and sees every event.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace quill {

class PreeditWatch : public QObject {
 public:
  explicit PreeditWatch(QObject* parent);

  // What this editor holds that is no text yet.
  QString Preedit(const QWidget* editor) const;
  // Makes text of it.
  void Commit();
  // A window that the pen may touch while something is composed, with all its children.
  void SetKeys(const QWidget* keys) { m_keys = keys; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool EndsComposing(const QObject* watched, const QEvent& event) const;

  QPointer<QWidget> m_editor;  // that composes
  QString m_preedit;
  const QWidget* m_keys = nullptr;
};

}  // namespace quill
