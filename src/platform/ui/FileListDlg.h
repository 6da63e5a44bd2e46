// A file of the desktop, chosen inside the frame: to be read, or to be written under a name that
// the user gives.
#pragma once

#include "platform/FolderListing.h"
#include "platform/ui/Dialog.h"

namespace quill {

class CFileList;

enum class FileUse { Read, Write };

struct FileRequest {
  FileUse Use = FileUse::Read;
  QString Caption;
  QString Folder;        // where to begin
  QStringList Patterns;  // of the files to list; the first one ("*.vcf") ends a name without any
  QString Name = {};     // to be written, as a preset
  QString Option = {};   // a check box's text; empty: there is none
};

// A tap selects, a second one opens a folder or takes a file; OK does the same with what is
// selected, and takes the name when nothing is. Before a file is written over, the user is asked.
class CFileListDlg : public CDialog {
  Q_OBJECT
 public:
  CFileListDlg(CScreen& screen, const FileRequest& request);

  // After OK: the absolute path.
  QString Path() const { return m_path; }
  // The folder that is shown.
  QString Folder() const;
  bool IsOptionChecked() const;

  void OnOK() override;
  void OnVisibleAreaChanged(QRect area) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowFor(const FileRequest& request);
  void GoTo(const QString& folder);
  void GoUp();
  void TakeName();
  QString ChosenPath() const;
  bool MayTake(const QString& path) const;

  const FileUse m_use;
  const QStringList m_patterns;
  CFileList* m_list;
  QString m_path;
};

}  // namespace quill
