#include "ink/ui/InkEditing.h"

#include <array>
#include <utility>

#include "ink/ui/InkMessages.h"
#include "ink/ui/InkX.h"
#include "platform/ui/Screen.h"
#include "resources/InkPictures.h"

namespace quill {

namespace {

constexpr InkParameters kAll{.First = 0, .Second = -1};
constexpr int kAlways = 0;  // in place of what is asked whether a command can be chosen

struct EditCommand {
  int Id;
  int Message;
  InkParameters Parameters;
  int EnabledBy;
};
constexpr auto kEditCommands = std::to_array<EditCommand>({
    {ID_INK_UNDO, InkMessages::kUndo, {}, InkMessages::kCanUndo},
    {ID_INK_REDO, InkMessages::kRedo, {}, InkMessages::kCanRedo},
    {ID_INK_CUT, InkMessages::kCut, {}, InkMessages::kHasSelection},
    {ID_INK_COPY, InkMessages::kCopy, {}, InkMessages::kHasSelection},
    {ID_INK_PASTE, InkMessages::kPaste, {}, InkMessages::kCanPaste},
    {ID_INK_CLEAR, InkMessages::kClear, {}, InkMessages::kHasSelection},
    {ID_INK_SELECT_ALL, InkMessages::kSelect, kAll, kAlways},
});

struct ZoomCommand {
  int Id;
  int Percent;
};
constexpr auto kZoomCommands = std::to_array<ZoomCommand>({
    {ID_INK_ZOOM_75, 75},
    {ID_INK_ZOOM_100, 100},
    {ID_INK_ZOOM_150, 150},
    {ID_INK_ZOOM_200, 200},
    {ID_INK_ZOOM_300, 300},
});

struct InkModes {
  int Style;
  int Zoom;  // percent
  int Wrap;
  int View;
};
constexpr InkModes kPageModes{kInkPage, 100, 1, kInkPlainView};
constexpr InkModes kCloseUpModes{kInkCloseUp, 200, 0, kInkMapView};

void SetModes(InkX& ink, const InkModes& modes) {
  SendInkMessage(ink, InkMessages::kSetPageStyle, {.First = modes.Style});
  SendInkMessage(ink, InkMessages::kSetZoom, {.Second = modes.Zoom});
  SendInkMessage(ink, InkMessages::kSetWrap, {.First = modes.Wrap});
  SendInkMessage(ink, InkMessages::kSetView, {.First = modes.View});
}

// The bar's buttons show the state that just changed.
void UpdateBar(InkX& ink) {
  if (CScreen* const screen = ScreenAround(&ink)) screen->UpdateChrome();
}

// From a style that is neither of the two nothing leads on: intended.
void SwitchMode(InkX& ink) {
  const int style = SendInkMessage(ink, InkMessages::kPageStyle);
  if (style == kInkCloseUp) SetModes(ink, kPageModes);
  if (style == kInkPage) SetModes(ink, kCloseUpModes);
  UpdateBar(ink);
}

void SwitchToggle(InkX& ink) {
  const int other = ink.Toggle() == kInkPenWrites ? kInkPenSelects : kInkPenWrites;
  SendInkMessage(ink, InkMessages::kToggle, {.First = other});
  UpdateBar(ink);
}

CommandRow EditRow(InkX& ink, const EditCommand& command) {
  CommandRow row{command.Id, command.Id, [&ink, &command](int) {
                   SendInkMessage(ink, command.Message, command.Parameters);
                 }};
  if (command.EnabledBy != kAlways)
    row.Update = [&ink, &command](int, CommandState& state) {
      state.Enabled = SendInkMessage(ink, command.EnabledBy) != 0;
    };
  return row;
}

CommandRow ZoomRow(InkX& ink, const ZoomCommand& command) {
  return {command.Id, command.Id,
          [&ink, &command](int) {
            SendInkMessage(ink, InkMessages::kSetZoom, {.Second = command.Percent});
          },
          [&ink, &command](int, CommandState& state) {
            state.Checked = ink.Zoom() == command.Percent;
          }};
}

CommandRow ModeRow(InkX& ink) {
  return {ID_INK_MODE, ID_INK_MODE, [&ink](int) { SwitchMode(ink); },
          [&ink](int, CommandState& state) {
            state.Checked = SendInkMessage(ink, InkMessages::kQueryMode) == kInkMapView;
          }};
}

CommandRow ToggleRow(InkX& ink) {
  return {ID_INK_TOGGLE, ID_INK_TOGGLE, [&ink](int) { SwitchToggle(ink); },
          [&ink](int, CommandState& state) { state.Checked = ink.Toggle() == kInkPenSelects; }};
}

std::vector<CommandRow> InkRows(InkX& ink, std::function<void()> deleteNote) {
  std::vector<CommandRow> rows;
  for (const EditCommand& command : kEditCommands) rows.push_back(EditRow(ink, command));
  for (const ZoomCommand& command : kZoomCommands) rows.push_back(ZoomRow(ink, command));
  rows.push_back({ID_INK_DELETE_NOTE, ID_INK_DELETE_NOTE,
                  [deleteNote = std::move(deleteNote)](int) { deleteNote(); }});
  rows.push_back(ModeRow(ink));
  rows.push_back(ToggleRow(ink));
  return rows;
}

MenuItem Button(int id, const QString& text, const resources::Picture& picture,
                const CommandRoute& route) {
  const CommandState state = route.State(id);
  return {.Text = text,
          .Id = id,
          .Enabled = state.Enabled,
          .Checked = state.Checked,
          .Picture = &picture};
}

}  // namespace

InkEditing::InkEditing(InkX& ink, std::function<void()> deleteNote)
    : CommandTarget(InkRows(ink, std::move(deleteNote))) {}

MenuBarModel InkMenuBar(const CScreen& screen, const CommandRoute& route) {
  return {{Button(ID_INK_TOGGLE, QStringLiteral("Select"), resources::kSelectPicture, route),
           Button(ID_INK_MODE, QStringLiteral("Close-up"), resources::kCloseUpPicture, route),
           screen.InputPanelButton()},
          BuildMenus(resources::kInkMenu, route)};
}

void ShowInkAsPage(InkX& ink) { SetModes(ink, kPageModes); }

void PutInkIn(InkX& ink, QByteArray note) {
  const int length = static_cast<int>(note.size());
  SendInkMessage(ink, InkMessages::kSetData, {.First = length, .Data = &note});
}

QByteArray TakeInkOut(InkX& ink) {
  ink.EndInput();
  QByteArray note;
  const int length = SendInkMessage(ink, InkMessages::kDataLength);
  if (length > 0) SendInkMessage(ink, InkMessages::kData, {.First = length, .Data = &note});
  return note;
}

void EraseInk(InkX& ink) {
  SendInkMessage(ink, InkMessages::kSelect, kAll);
  SendInkMessage(ink, InkMessages::kClear);
}

}  // namespace quill
