// Dialog resources: what stands where in a dialog, as constexpr data. Rectangles are logical pixels
// relative to the dialog's client area (a small dialog's caption is above it).
#pragma once

#include <QStringView>

#include <array>
#include <span>

#include "resources/Ids.h"
#include "resources/Strings.h"

namespace quill::resources {

// A wrapped label's text begins at its top and goes on below; a panel editor has the input panel up
// while it has the focus, and so has a number's, into which only digits go, and a typed list's,
// into which a text may be typed; a toggle is a button that is on or off. The text of a list, a
// date (which always has a day), a time and a number is what it is called.
enum class ControlKind {
  Label,
  CentredLabel,
  WrappedLabel,
  Edit,
  PanelEdit,
  Button,
  Check,
  Radio,
  CheckList,
  DropDown,
  TypedDropDown,
  MultiEdit,
  Number,
  Date,
  Time,
  Toggle,
};
enum class ControlState { Visible, Hidden };

// Of a label that nothing asks for.
inline constexpr int kNoId = -1;

struct Rectangle {
  int X;
  int Y;
  int Width;
  int Height;
};

struct DialogControl {
  ControlKind Kind;
  int Id;
  QStringView Text;
  Rectangle Place;
  ControlState State = ControlState::Visible;
};

// A full-screen dialog has an empty Place.
struct DialogResource {
  int Id;
  QStringView Caption;
  Rectangle Place;  // on the screen
  std::span<const DialogControl> Controls;
};

inline constexpr std::array kAboutControls = {
    DialogControl{
        ControlKind::CentredLabel, AboutDialogIds::kTitle, kApplicationTitle, {10, 10, 180, 18}},
    DialogControl{ControlKind::CentredLabel,
                  AboutDialogIds::kVersion,
                  u"Version " QUILL_VERSION,
                  {10, 32, 180, 18}},
    DialogControl{ControlKind::CentredLabel,
                  AboutDialogIds::kMaker,
                  u"Made by the Quill authors",
                  {10, 54, 180, 18}},
    DialogControl{ControlKind::CentredLabel,
                  AboutDialogIds::kLicence,
                  u"GNU GPL, version 3 or later",
                  {10, 76, 180, 18}},
    DialogControl{ControlKind::Button, kResultOK, u"OK", {68, 102, 64, 26}},
};
inline constexpr DialogResource kAboutDialog = {
    AboutDialogIds::kDialog, u"About", {20, 80, 200, 156}, kAboutControls};

}  // namespace quill::resources
