// What a painted window shows, as data: laid out by core functions, drawn by one paint event,
// spoken by one accessibility class. Rectangles are logical pixels relative to the window's client
// area.
#pragma once

#include <QFlags>
#include <QRect>
#include <QString>

#include <optional>
#include <vector>

#include "resources/Pictures.h"

namespace quill {

using Rgb = quint32;  // 0xRRGGBB

enum class TextAlign { Left, Centre, Right };
enum class TextWeight { Normal, Bold };
enum class FillPattern { Solid, Dots };  // dots: every other pixel of the rectangle's first line

// A filled rectangle (Fill), a picture or a text; drawn in this order when it is several at once.
// Text is one line, vertically centred in the rectangle and clipped to it.
struct PaintedItem {
  QRect Rectangle;
  QString Text = {};
  TextAlign Alignment = TextAlign::Left;
  TextWeight Weight = TextWeight::Normal;
  Rgb Color = 0x000000;
  const resources::Picture* Picture = nullptr;
  std::optional<Rgb> Fill = std::nullopt;
  FillPattern Pattern = FillPattern::Solid;
};

enum class PaintedRole { ListItem, Button, CheckBox, MenuItem, PageTab, Separator, Text };

enum class PaintedStateFlag {
  Selected = 1,
  Current = 2,  // the row that keys act on
  Disabled = 4,
  Checked = 8,
  HasPopup = 16,
  Selectable = 32,
};
Q_DECLARE_FLAGS(PaintedState, PaintedStateFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(PaintedState)

// One thing that can be read out or acted on. Key is the owner's: an Oid, a command id, an index.
struct PaintedRow {
  QRect Rectangle;
  int Key = 0;
  QString SpokenName = {};
  PaintedRole Role = PaintedRole::ListItem;
  PaintedState State = {};
  std::vector<PaintedItem> Items = {};
};

}  // namespace quill
