#include "app/ui/FileExchange.h"

#include <QFileInfo>

#include "app/CardFiles.h"
#include "app/MemoTaking.h"
#include "app/ui/FileExport.h"
#include "app/ui/FileImport.h"
#include "list/ListState.h"
#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/FileListDlg.h"

namespace quill {

ExchangeState g_exchange;

namespace {

constexpr QStringView kFileName = u"contacts.vcf";
constexpr QStringView kListOnly = u"Only the contacts in the list";

// Of the contacts that the list shows; empty when these are all, and while it shows memos.
QString ListRestriction() {
  return g_list.Mode == ViewMode::ByMemo ? QString() : g_list.Restriction;
}

}  // namespace

QString FileExchange::Folder() const {
  return QFileInfo(g_exchange.Folder).isDir() ? g_exchange.Folder : m_places.HomeFolder;
}

void FileExchange::Import() {
  CFileListDlg dialog(m_screen, {.Use = FileUse::Read,
                                 .Caption = QStringLiteral("Import"),
                                 .Folder = Folder(),
                                 .Patterns = CardFilePatterns()});
  const int result = dialog.DoModal();
  g_exchange.Folder = dialog.Folder();
  if (result == kResultOK) Take({dialog.Path()});
}

void FileExchange::Export() {
  const QString restriction = ListRestriction();
  CFileListDlg dialog(m_screen,
                      {.Use = FileUse::Write,
                       .Caption = QStringLiteral("Export"),
                       .Folder = Folder(),
                       .Patterns = CardFilePatterns(),
                       .Name = kFileName.toString(),
                       .Option = restriction.isEmpty() ? QString() : kListOnly.toString()});
  const int result = dialog.DoModal();
  g_exchange.Folder = dialog.Folder();
  if (result != kResultOK) return;
  m_isBusy = true;
  ExportFileAndReport(m_screen, m_places,
                      {dialog.Path(), dialog.IsOptionChecked() ? restriction : QString()});
  m_isBusy = false;
  TakeWaiting();
}

void FileExchange::Take(const QStringList& files) {
  QStringList cards;
  for (const QString& file : files) IsMemoFile(file) ? TakeMemo(file) : cards.append(file);
  if (!cards.isEmpty()) m_waiting.append(cards);
  if (!m_isBusy) TakeWaiting();
}

void FileExchange::TakeMemo(const QString& file) {
  const QString path = TakeMemoFile(file, DeviceRootsOf(m_places), g_memo);
  if (!path.isEmpty()) return MemoTaken(path);
  g_services.Prompt->Show(
      {.Text = QStringLiteral("%1 could not be brought in.").arg(QFileInfo(file).fileName())});
}

void FileExchange::TakeWaiting() {
  m_isBusy = true;
  while (!m_waiting.isEmpty()) {
    ImportFilesAndReport(m_screen, m_places, m_waiting.takeFirst());
    if (Imported) Imported();
  }
  m_isBusy = false;
}

}  // namespace quill
