#include "platform/ui/FileListDlg.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/FileList.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Look.h"
#include "resources/FileDialogs.h"

namespace quill {

namespace {

constexpr int kGap = 4;

template <class Widget>
Widget& Get(const CDialog& dialog, int id) {
  return *qobject_cast<Widget*>(dialog.Control(id));
}

void ShowText(const CDialog& dialog, int id, const QString& text) {
  auto& check = Get<QCheckBox>(dialog, id);
  check.setText(text);
  check.setVisible(!text.isEmpty());
}

}  // namespace

CFileListDlg::CFileListDlg(CScreen& screen, const FileRequest& request)
    : CDialog(screen, resources::kFileListDialog),
      m_use(request.Use),
      m_patterns(request.Patterns),
      m_list(new CFileList(this)) {
  AddControl(FileListIds::kList, m_list);
  AddControl(FileListIds::kScrollBar, &m_list->ScrollBar());
  m_list->OpenAsked = [this] { OnOK(); };
  m_list->UpAsked = [this] { GoUp(); };
  m_list->SelectionChanged = [this] { TakeName(); };
  auto& name = Get<QLineEdit>(*this, FileListIds::kName);
  connect(&name, &QLineEdit::textEdited, this, [this] { m_list->ClearSelection(); });
  SetCaption(request.Caption);
  ShowFor(request);
  GoTo(request.Folder);
}

void CFileListDlg::ShowFor(const FileRequest& request) {
  const bool writes = m_use == FileUse::Write;
  auto& name = Get<QLineEdit>(*this, FileListIds::kName);
  name.setText(request.Name);
  name.setAccessibleName(QStringLiteral("Name"));
  name.setVisible(writes);
  Control(FileListIds::kNameLabel)->setVisible(writes);
  ShowText(*this, FileListIds::kOption, request.Option);
}

void CFileListDlg::OnVisibleAreaChanged(QRect area) { setGeometry(area); }

void CFileListDlg::resizeEvent(QResizeEvent*) {
  int top = 0;
  for (const int id : {FileListIds::kFolder, FileListIds::kName, FileListIds::kOption}) {
    const QWidget& control = *Control(id);
    if (!control.isHidden()) top = control.geometry().bottom() + 1 + kGap / 2;
  }
  m_list->setGeometry(0, top, width(), height() - top);
}

QString CFileListDlg::Folder() const { return m_list->Listing().Folder; }

bool CFileListDlg::IsOptionChecked() const {
  return Get<QCheckBox>(*this, FileListIds::kOption).isChecked();
}

// The end of a long path says more than its beginning.
void CFileListDlg::GoTo(const QString& folder) {
  m_list->ShowListing(ListFolder(folder, m_patterns));
  auto& label = Get<QLabel>(*this, FileListIds::kFolder);
  const QString path = QDir::toNativeSeparators(Folder());
  label.setText(QFontMetrics(NormalFont()).elidedText(path, Qt::ElideLeft, label.width()));
}

void CFileListDlg::GoUp() {
  const QFileInfo here(Folder());
  if (QDir(Folder()).isRoot()) return;
  GoTo(here.path());
  m_list->ShowListing(m_list->Listing(), here.fileName());
}

void CFileListDlg::TakeName() {
  const FolderEntry* const entry = m_list->Selected();
  const bool isFile = entry && entry->Kind == FolderEntryKind::File;
  if (isFile) Get<QLineEdit>(*this, FileListIds::kName).setText(entry->Name);
}

QString CFileListDlg::ChosenPath() const {
  const FolderEntry* const entry = m_list->Selected();
  if (entry) return EntryPath(m_list->Listing(), *entry);
  if (m_use == FileUse::Read) return {};
  const QString name = EditorText(Get<QLineEdit>(*this, FileListIds::kName)).trimmed();
  if (name.isEmpty()) return {};
  const QString path = QDir(Folder()).absoluteFilePath(name);
  const bool isComplete = QFileInfo(path).isDir() || QDir::match(m_patterns, name);
  return isComplete ? path : path + m_patterns.first().mid(1);
}

bool CFileListDlg::MayTake(const QString& path) const {
  if (m_use == FileUse::Read || !QFileInfo::exists(path)) return true;
  const QString question =
      QStringLiteral("%1 is there already. Replace it?").arg(QFileInfo(path).fileName());
  return g_services.Prompt->Show(
             {.Text = question, .Icon = PromptIcon::Question, .Buttons = PromptButtons::YesNo}) ==
         PromptAnswer::Yes;
}

void CFileListDlg::OnOK() {
  const FolderEntry* const entry = m_list->Selected();
  if (entry && entry->Kind == FolderEntryKind::Parent) return GoUp();
  const QString path = ChosenPath();
  if (path.isEmpty()) return;
  if (QFileInfo(path).isDir()) return GoTo(path);
  if (!MayTake(path)) return;
  m_path = path;
  CDialog::OnOK();
}

}  // namespace quill
