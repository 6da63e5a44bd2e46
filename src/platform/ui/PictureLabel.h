// A vector picture as a widget.
#pragma once

#include <QWidget>

#include "resources/Pictures.h"

namespace quill {

class CPictureLabel : public QWidget {
  Q_OBJECT
 public:
  // picture may be null: nothing is drawn. It is constexpr data and lives on.
  CPictureLabel(const resources::Picture* picture, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const resources::Picture* m_picture;
};

}  // namespace quill
