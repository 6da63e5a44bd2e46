// What the control is made of; for its own sources only.
#pragma once

#include "ink/InkHand.h"
#include "ink/ui/InkEventReader.h"
#include "ink/ui/InkMapStrip.h"
#include "ink/ui/InkTyping.h"
#include "ink/ui/InkX.h"

class QScrollBar;

namespace quill {

struct InkX::Parts {
  explicit Parts(InkAccess access) : Access(access) {}

  InkDocument Document;
  InkCanvas Canvas{Document};
  InkSelection Selection{Document};
  InkHand Hand{Document, Canvas, Selection};
  InkTyping Typing{Document, Selection};
  InkEventReader Reader;
  const InkAccess Access;
  QScrollBar* Vertical = nullptr;  // children
  QScrollBar* Horizontal = nullptr;
  InkMapStrip* Map = nullptr;
  int Style = kInkPage;
  int Wrap = 1;
  int View = kInkPlainView;
  int Toggle = kInkPenWrites;
  bool ShowsCaret = false;  // since something was typed or a caret was set
  std::optional<QPointF> PastePlace = {};
  int Pastes = 0;         // at that place
  QString ToldText = {};  // what assistive technology knows of
  int Turned = 0;         // of the wheel with Ctrl, not yet a step
};

}  // namespace quill
