#include "editor/ui/EditField.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace quill {
namespace {

TEST(EditField, WithoutAnEditorDoesNothing) {
  const EditField none;
  EXPECT_FALSE(none.CanUndo);
  EXPECT_FALSE(none.HasSelection);
  for (const auto& action : {none.Undo, none.Cut, none.Copy, none.Paste, none.Clear}) action();
}

TEST(EditField, OfALineClearsWhatIsSelectedAndTakesItBack) {
  QLineEdit edit(QStringLiteral("one two"));
  EXPECT_FALSE(FieldOf(edit).HasSelection);
  FieldOf(edit).Clear();
  EXPECT_EQ(edit.text(), QStringLiteral("one two"));
  edit.setSelection(0, 4);
  EXPECT_TRUE(FieldOf(edit).HasSelection);
  FieldOf(edit).Clear();
  EXPECT_EQ(edit.text(), QStringLiteral("two"));
  EXPECT_TRUE(FieldOf(edit).CanUndo);
  FieldOf(edit).Undo();
  EXPECT_EQ(edit.text(), QStringLiteral("one two"));
}

TEST(EditField, OfALineCutsAndPastes) {
  QLineEdit edit(QStringLiteral("one two"));
  edit.setSelection(0, 4);
  FieldOf(edit).Cut();
  edit.end(false);
  FieldOf(edit).Paste();
  EXPECT_EQ(edit.text(), QStringLiteral("twoone "));
}

TEST(EditField, OfALinePastesSeveralLinesAsOne) {
  QGuiApplication::clipboard()->setText(QStringLiteral("one\ntwo"));
  QLineEdit edit;
  FieldOf(edit).Paste();
  EXPECT_EQ(edit.text(), QStringLiteral("one two"));
}

TEST(EditField, OfALineCopiesAndLeavesIt) {
  QLineEdit edit(QStringLiteral("one"));
  edit.selectAll();
  FieldOf(edit).Copy();
  edit.end(false);
  FieldOf(edit).Paste();
  EXPECT_EQ(edit.text(), QStringLiteral("oneone"));
}

TEST(EditField, OfSeveralLinesDoesTheSame) {
  QPlainTextEdit edit;
  edit.insertPlainText(QStringLiteral("one\ntwo"));
  EXPECT_TRUE(FieldOf(edit).CanUndo);
  EXPECT_FALSE(FieldOf(edit).HasSelection);
  edit.selectAll();
  EXPECT_TRUE(FieldOf(edit).HasSelection);
  FieldOf(edit).Copy();
  FieldOf(edit).Clear();
  EXPECT_EQ(edit.toPlainText(), QString());
  FieldOf(edit).Undo();
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("one\ntwo"));
  edit.selectAll();
  FieldOf(edit).Cut();
  FieldOf(edit).Paste();
  FieldOf(edit).Paste();
  EXPECT_EQ(edit.toPlainText(), QStringLiteral("one\ntwoone\ntwo"));
}

}  // namespace
}  // namespace quill
