// Shows what a contact holds beyond its sheet, to be read and copied.
#pragma once

#include <vector>

#include "exchange/CarriedDetails.h"
#include "platform/ui/Dialog.h"

namespace quill {

class CImportedDetailsDlg : public CDialog {
  Q_OBJECT
 public:
  CImportedDetailsDlg(CScreen& screen, const std::vector<CarriedDetail>& details);

  bool HasOK() const override { return false; }

 private:
  void Copy();
};

}  // namespace quill
