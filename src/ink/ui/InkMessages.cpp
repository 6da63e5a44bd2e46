#include "ink/ui/InkMessages.h"

#include <algorithm>
#include <array>

#include "ink/ui/InkX.h"

namespace quill {

namespace {

struct InkOperation {
  int Number;
  int (*Run)(InkX& ink, const InkParameters& parameters);
};

template <bool (InkX::*asked)() const>
int Answer(InkX& ink, const InkParameters&) {
  return (ink.*asked)() ? 1 : 0;
}

template <int (InkX::*asked)() const>
int Number(InkX& ink, const InkParameters&) {
  return (ink.*asked)();
}

template <void (InkX::*done)()>
int Do(InkX& ink, const InkParameters&) {
  (ink.*done)();
  return 0;
}

template <void (InkX::*set)(int word)>
int SetFirst(InkX& ink, const InkParameters& parameters) {
  (ink.*set)(parameters.First);
  return 0;
}

int SetZoom(InkX& ink, const InkParameters& parameters) {
  ink.SetZoom(parameters.Second);
  return 0;
}

int Select(InkX& ink, const InkParameters& parameters) {
  if (parameters.First == 0 && parameters.Second == -1) ink.SelectAll();
  return 0;
}

int DataLength(InkX& ink, const InkParameters&) { return static_cast<int>(ink.DataLength()); }

int Data(InkX& ink, const InkParameters& parameters) {
  const QByteArray data = ink.Data();
  *parameters.Data = data.first(std::clamp<qsizetype>(parameters.First, 0, data.size()));
  return static_cast<int>(parameters.Data->size());
}

int SetData(InkX& ink, const InkParameters& parameters) {
  ink.SetData(parameters.Data->left(parameters.First));
  return 0;
}

constexpr auto kOperations = std::to_array<InkOperation>({
    {InkMessages::kHasSelection, Answer<&InkX::HasSelection>},
    {InkMessages::kSelect, Select},
    {InkMessages::kCanUndo, Answer<&InkX::CanUndo>},
    {InkMessages::kCut, Do<&InkX::Cut>},
    {InkMessages::kCopy, Do<&InkX::Copy>},
    {InkMessages::kPaste, Do<&InkX::Paste>},
    {InkMessages::kClear, Do<&InkX::Clear>},
    {InkMessages::kCanPaste, Answer<&InkX::CanPaste>},
    {InkMessages::kUndo, Do<&InkX::Undo>},
    {InkMessages::kRedo, Do<&InkX::Redo>},
    {InkMessages::kCanRedo, Answer<&InkX::CanRedo>},
    {InkMessages::kQueryMode, Number<&InkX::QueryMode>},
    {InkMessages::kSetView, SetFirst<&InkX::SetView>},
    {InkMessages::kSetPageStyle, SetFirst<&InkX::SetPageStyle>},
    {InkMessages::kSetZoom, SetZoom},
    {InkMessages::kPageStyle, Number<&InkX::PageStyle>},
    {InkMessages::kSetWrap, SetFirst<&InkX::SetWrap>},
    {InkMessages::kDataLength, DataLength},
    {InkMessages::kData, Data},
    {InkMessages::kSetData, SetData},
    {InkMessages::kToggle, SetFirst<&InkX::SetToggle>},
});

}  // namespace

int SendInkMessage(InkX& ink, int number, const InkParameters& parameters) {
  const auto found = std::ranges::find(kOperations, number, &InkOperation::Number);
  return found == kOperations.end() ? 0 : found->Run(ink, parameters);
}

}  // namespace quill
