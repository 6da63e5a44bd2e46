#include "store/ui/CategoryChooser.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

#include "platform/Prompt.h"
#include "platform/Services.h"
#include "platform/ui/CheckList.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/Screen.h"
#include "platform/ui/WaitCursor.h"
#include "resources/CategoryDialogs.h"
#include "store/Categories.h"
#include "store/CategoryText.h"

namespace quill {

CCategoryChooser::CCategoryChooser(CScreen& screen, const QString& names)
    : CDialog(screen, resources::kCategoryChooser) {
  FollowButton(CategoryChooserIds::kAdd, &CCategoryChooser::Add);
  FollowButton(CategoryChooserIds::kRename, &CCategoryChooser::Rename);
  FollowButton(CategoryChooserIds::kRemove, &CCategoryChooser::Remove);
  KeepFocusUnderThePen();
  Editor().setPlaceholderText(QStringLiteral("Name of a category"));
  Editor().setAccessibleName(QStringLiteral("Name of a category"));
  Editor().setMaxLength(kCategoryNameLimit);
  connect(&Editor(), &QLineEdit::textChanged, this, [this] { EnableButtons(); });
  Editor().installEventFilter(this);
  List().CurrentChanged = [this] { ShowCurrent(); };
  List().SetItems(OfferCategories(OfferedCategories(), CheckedCategories(names)));
  EnableButtons();
}

CCheckList& CCategoryChooser::List() const {
  return *qobject_cast<CCheckList*>(Control(CategoryChooserIds::kList));
}

QLineEdit& CCategoryChooser::Editor() const {
  return *qobject_cast<QLineEdit*>(Control(CategoryChooserIds::kEdit));
}

void CCategoryChooser::FollowButton(int id, void (CCategoryChooser::*act)()) {
  connect(qobject_cast<QPushButton*>(Control(id)), &QPushButton::clicked, this, act);
}

// If a button took the focus from the editor, the input panel would go, and the button from under
// the pen.
void CCategoryChooser::KeepFocusUnderThePen() {
  for (const auto& [id, control] : Controls())
    if (qobject_cast<QPushButton*>(control)) control->setFocusPolicy(Qt::TabFocus);
}

CategoryChoice CCategoryChooser::Choice() const { return ChosenCategories(List().Items()); }

QString CCategoryChooser::Typed() const { return EditorText(Editor()).trimmed(); }

QString CCategoryChooser::CurrentName() const {
  const int current = List().CurrentRow();
  return current < 0 ? QString() : List().Items()[static_cast<std::size_t>(current)].Text;
}

bool CCategoryChooser::IsListed(const QString& name) const {
  return std::ranges::find(List().Items(), name, &CheckListItem::Text) != List().Items().end();
}

void CCategoryChooser::Offer(const CategoryItems& items, const QString& current) {
  List().SetItems(OfferCategories(OfferedCategories(), items));
  const auto& offered = List().Items();
  const auto found = std::ranges::find(offered, current, &CheckListItem::Text);
  List().SetCurrent(found == offered.end() ? -1 : static_cast<int>(found - offered.begin()));
  ShowCurrent();
}

// All selected, so that what is typed next takes its place.
void CCategoryChooser::ShowCurrent() {
  Editor().setText(CurrentName());
  Editor().selectAll();
  EnableButtons();
}

void CCategoryChooser::EnableButtons() {
  const bool named = !Editor().text().trimmed().isEmpty();
  const bool editable = IsCategoryName(CurrentName());
  Control(CategoryChooserIds::kAdd)->setEnabled(named);
  Control(CategoryChooserIds::kRename)->setEnabled(named && editable);
  Control(CategoryChooserIds::kRemove)->setEnabled(editable);
}

// True when it was done; otherwise the user has been told why not.
bool CCategoryChooser::CarryOut(const QString& name, const std::function<CategoryEdit()>& edit) {
  const CategoryEdit result = [&edit] {
    const WaitCursor waiting;
    return edit();
  }();
  if (result == CategoryEdit::Done) return true;
  g_services.Prompt->Show({.Text = CategoryEditRefusal(result, name), .Icon = PromptIcon::Warning});
  return false;
}

void CCategoryChooser::Add() {
  const QString name = Typed();
  if (!CarryOut(name, [&name] { return AddCategory(name); })) return;
  Offer(WithCategory(List().Items(), name), name);
}

void CCategoryChooser::Rename() {
  const QString from = CurrentName();
  const QString to = Typed();
  if (!CarryOut(to, [&] { return RenameCategory(from, to); })) return;
  if (Changed) Changed(from, to);
  Offer(WithCategoryRenamed(List().Items(), from, to), to);
}

void CCategoryChooser::Remove() {
  const QString name = CurrentName();
  const PromptMessage question{.Text = CategoryRemovalQuestion(name, CountContactsOf(name)),
                               .Icon = PromptIcon::Question,
                               .Buttons = PromptButtons::YesNo};
  if (g_services.Prompt->Show(question) != PromptAnswer::Yes) return;
  if (!CarryOut(name, [&name] { return RemoveCategory(name); })) return;
  if (Changed) Changed(name, {});
  Offer(WithoutCategory(List().Items(), name), {});
}

void CCategoryChooser::OnVisibleAreaChanged(QRect area) { resize(area.size()); }

void CCategoryChooser::resizeEvent(QResizeEvent*) {
  const int more = height() - kClientArea.height();
  for (const resources::DialogControl& control : resources::kCategoryChooserControls) {
    QRect place(control.Place.X, control.Place.Y, control.Place.Width, control.Place.Height);
    if (control.Id == CategoryChooserIds::kList)
      place.setHeight(place.height() + more);
    else
      place.translate(0, more);
    Control(control.Id)->setGeometry(place);
  }
}

// The tap that brings the focus leaves the offered name selected: what is typed takes its place.
bool CCategoryChooser::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn)
    m_isFirstTap = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
  if (event->type() == QEvent::MouseButtonRelease && std::exchange(m_isFirstTap, false) &&
      !Editor().hasSelectedText())
    Editor().selectAll();
  return CDialog::eventFilter(watched, event);
}

// Return adds the new name that was just typed, rather than end the dialog without it.
void CCategoryChooser::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
                        !event->modifiers().testFlag(Qt::ControlModifier);
  const bool inEditor = isReturn && !event->isAutoRepeat() && Editor().hasFocus();
  if (inEditor && !Typed().isEmpty() && !IsListed(Typed())) return Add();
  CDialog::keyPressEvent(event);
}

bool Cate_ShowCategoryList(CScreen& owner, int, QString& names, std::vector<int>& positions,
                           const CategoryChanged& changed) {
  CCategoryChooser chooser(owner, names);
  chooser.Changed = changed;
  if (chooser.DoModal() != kResultOK) return false;
  const CategoryChoice choice = chooser.Choice();
  names = choice.Names;
  positions = choice.Positions;
  return true;
}

}  // namespace quill
