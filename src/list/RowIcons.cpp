#include "list/RowIcons.h"

#include "resources/ListPictures.h"

namespace quill {

const resources::Picture* RowPicture(RowIconKind kind) {
  switch (kind) {
    case RowIconKind::None:
      return nullptr;
    case RowIconKind::Mobile:
    case RowIconKind::Pager:
      return &resources::kMobilePicture;
    case RowIconKind::Business:
    case RowIconKind::Business2:
      return &resources::kWorkPicture;
    case RowIconKind::Home:
    case RowIconKind::Home2:
      return &resources::kHomePicture;
    case RowIconKind::Email1:
    case RowIconKind::Email2:
    case RowIconKind::Email3:
      return &resources::kMailPicture;
    case RowIconKind::BusinessFax:
      return &resources::kFaxPicture;
    case RowIconKind::Address:
      return &resources::kAddressPicture;
  }
  Q_UNREACHABLE();
}

}  // namespace quill
