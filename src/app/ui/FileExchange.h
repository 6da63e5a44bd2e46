// Contacts in and out in the window: what the commands ask the user, and files that are dropped or
// handed over. One at a time: what comes meanwhile waits.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

#include "app/Places.h"

namespace quill {

class CScreen;

struct ExchangeState {
  QString Folder;  // in which a file was chosen last; empty before
};
extern ExchangeState g_exchange;

class FileExchange {
 public:
  // Both outlive this.
  FileExchange(CScreen& screen, const Places& places) : m_screen(screen), m_places(places) {}

  // Ask for a file, do it, tell what came of it.
  void Import();
  void Export();
  // Files and folders, as the import command takes them; memo files are opened instead.
  void Take(const QStringList& files);

  // Called after each import.
  std::function<void()> Imported;
  // Called with the device path of each memo that is to be opened.
  std::function<void(const QString& path)> MemoTaken;

 private:
  QString Folder() const;
  void TakeMemo(const QString& file);
  void TakeWaiting();

  CScreen& m_screen;
  const Places& m_places;
  QList<QStringList> m_waiting;
  bool m_isBusy = false;
};

}  // namespace quill
