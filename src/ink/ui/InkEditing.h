// What the front ends of ink have in common: their commands, their menu bar, and how a note's bytes
// go into the control and out of it.
#pragma once

#include <QByteArray>

#include "platform/CommandTarget.h"
#include "platform/MenuModel.h"

namespace quill {

class CScreen;
class InkX;

// The commands of ink notes on one control, which outlives this. "Delete Note" is the front end's.
class InkEditing : public CommandTarget {
 public:
  InkEditing(InkX& ink, std::function<void()> deleteNote);
};

// The buttons and menus of ink notes, in the states that the route gives them.
MenuBarModel InkMenuBar(const CScreen& screen, const CommandRoute& route);

// The modes in which both front ends begin: the page at 100 %, ending at its width, scrolled
// plainly.
void ShowInkAsPage(InkX& ink);

void PutInkIn(InkX& ink, QByteArray note);
// None for an empty page.
QByteArray TakeInkOut(InkX& ink);
void EraseInk(InkX& ink);

}  // namespace quill
