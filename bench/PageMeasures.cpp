#include "PageMeasures.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <random>

#include "Ruler.h"
#include "app/Program.h"
#include "app/ui/RunShell.h"
#include "list/CategoryMenu.h"
#include "list/ListState.h"
#include "list/ui/ContactListCtrl.h"
#include "list/ui/ContactsView.h"
#include "list/ui/RecordOpening.h"
#include "memo/MemoListing.h"
#include "platform/ui/Screen.h"
#include "resources/Ids.h"
#include "store/Categories.h"

namespace quill::bench {

namespace {

constexpr QStringView kFrame = u"16 ms";
constexpr int kMemos = 2000;
constexpr int kLetters = 20;
constexpr int kPauseForWindow = 10;  // milliseconds

class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Count;
    return false;
  }
  int Count = 0;
};

class PageMeasures {
 public:
  explicit PageMeasures(CContactsView& view)
      : m_view(view), m_list(*view.findChild<CContactListCtrl*>()) {
    m_list.installEventFilter(&m_paints);
  }

  Ruler Run() {
    Ruler ruler;
    const auto paintList = [this] { return UntilPainted([this] { m_list.update(); }); };
    ruler.SetUnit(Unit::View, QStringLiteral("V: painting the list alone"), paintList, paintList);
    MeasureIndex(ruler, QString());
    MeasureSearch(ruler, QString());
    MeasureCategories(ruler);
    m_view.ShowMode(ViewMode::ByName);
    MeasureScrolling(ruler);
    MeasureSheet(ruler);
    MeasureMemos(ruler);
    return ruler;
  }

 private:
  // True when what was asked for ended in a painted list.
  template <typename Work>
  bool UntilPainted(Work work) {
    const int before = m_paints.Count;
    work();
    QCoreApplication::sendPostedEvents();
    return m_paints.Count > before;
  }

  template <typename Widget>
  Widget& Control(int id) {
    return *qobject_cast<Widget*>(m_view.Controls().at(id));
  }

  void MeasureIndex(Ruler& ruler, const QString& mode) {
    const int row = ruler.AddRow(mode + QStringLiteral("index button"), kFrame, Unit::View);
    int button = 0;
    for (Rounds rounds = ruler.NewRounds(); rounds.Another(); button = (button + 1) % 5)
      ruler.Run(row, [&] { return UntilPainted([&] { m_view.ChooseIndex(button + 1); }); });
  }

  void MeasureSearch(Ruler& ruler, const QString& mode) {
    const int row = ruler.AddRow(mode + QStringLiteral("search"), kFrame, Unit::View);
    auto& edit = Control<QLineEdit>(ContactsViewIds::kSearchEdit);
    const QStringList texts = {QStringLiteral("B"), QStringLiteral("Bro"), QStringLiteral("\uAE40"),
                               QStringLiteral("Le")};
    qsizetype next = 0;
    for (Rounds rounds = ruler.NewRounds(); rounds.Another(); ++next) {
      edit.setText(texts[next % texts.size()]);
      QCoreApplication::sendPostedEvents();
      ruler.Run(row, [this] { return UntilPainted([this] { m_view.Search(); }); });
    }
  }

  // As the menu behind the label does: one category after the other.
  void MeasureCategories(Ruler& ruler) {
    const QStringList offered = OfferedCategories();
    const int row = ruler.AddRow(QStringLiteral("a category"), kFrame, Unit::View);
    qsizetype next = 0;
    for (Rounds rounds = ruler.NewRounds(); rounds.Another(); ++next) {
      FillCategoryMenu(g_categoryMenu, offered, g_list.CategoryName);
      const int id = ID_CATEGORY_FIRST + 1 + static_cast<int>(next % offered.size());
      ruler.Run(row, [this, id] {
        return UntilPainted([this, id] { m_view.Route().Run(id, CommandCheck::AsMenu); });
      });
    }
  }

  void MeasureMemos(Ruler& ruler) {
    const auto count = QString::number(AllMemos(g_memo).size());
    const QString mode = QStringLiteral("by memo, %1 of them: ").arg(count);
    const int row = ruler.AddRow(mode + QStringLiteral("all"), kFrame, Unit::View);
    for (Rounds rounds = ruler.NewRounds(); rounds.Another();)
      ruler.Run(row,
                [this] { return UntilPainted([this] { m_view.ShowMode(ViewMode::ByMemo); }); });
    MeasureIndex(ruler, mode);
    MeasureSearch(ruler, mode);
  }

  void MeasureScrolling(Ruler& ruler) {
    auto& bar = Control<QScrollBar>(ContactsViewIds::kScrollBar);
    const int thumb = ruler.AddRow(QStringLiteral("thumb"), kFrame, Unit::View);
    const int page = ruler.AddRow(QStringLiteral("page"), kFrame, Unit::View);
    const int line = ruler.AddRow(QStringLiteral("line"), kFrame, Unit::View);
    const auto act = [&](int row, QAbstractSlider::SliderAction action) {
      ruler.Run(row, [&] { return UntilPainted([&] { bar.triggerAction(action); }); });
    };
    std::mt19937 random(4);
    for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
      const int top = static_cast<int>(random() % static_cast<unsigned>(bar.maximum() - 20));
      ruler.Run(thumb, [&] { return UntilPainted([&] { bar.setSliderPosition(top); }); });
      act(page, QAbstractSlider::SliderPageStepAdd);
      act(line, QAbstractSlider::SliderSingleStepAdd);
    }
  }

  // Each is a whole visit to the contact in the first row: what the later ones take beyond the
  // first is what the letters and the storing take.
  void MeasureSheet(Ruler& ruler) {
    const auto addRow = [&ruler](const QString& what, QStringView aim) {
      return ruler.AddRow(QStringLiteral("a contact opened, ") + what, aim, Unit::View);
    };
    const int look = addRow(QStringLiteral("closed"), kFrame);
    const int type = addRow(QStringLiteral("%1 letters typed, closed").arg(kLetters), {});
    const int store = addRow(QStringLiteral("a letter typed, stored durably"), {});
    for (Rounds rounds = ruler.NewRounds(); rounds.Another();) {
      ruler.Run(look, [this] { return VisitContact([this] { Screen().Topmost()->OnCancel(); }); });
      ruler.Run(type, [this] {
        return VisitContact([this] { TypeLetters(kLetters), Screen().Topmost()->OnCancel(); });
      });
      ruler.Run(store, [this] {
        return VisitContact([this] { TypeLetters(1), Screen().Topmost()->OnOK(); });
      });
    }
  }

  CScreen& Screen() { return *ScreenAround(&m_view); }

  // Once the sheet is painted, does something in it that closes it. True when the list is painted
  // again.
  bool VisitContact(std::function<void()> work) {
    QTimer::singleShot(0, &m_view, std::move(work));
    return UntilPainted([this] { EditContact(m_view, g_list.Rows[0].Oid); });
  }

  // Into the second row, the job title, each painted.
  static void TypeLetters(int count) {
    for (int row = 0; row < 2; ++row) Press(Qt::Key_Down, {});
    for (int i = 0; i < count; ++i) Press(Qt::Key_X, QStringLiteral("x"));
  }

  static void Press(Qt::Key key, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier, text);
      QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    QCoreApplication::sendPostedEvents();
  }

  CContactsView& m_view;
  CContactListCtrl& m_list;
  PaintCounter m_paints;
};

// From within the program's event loop to whoever started it.
struct Outcome {
  std::vector<Measure> Measures;
  QString Problem;
};
Outcome g_outcome;

// Null until it can be painted.
CContactsView* FindShownView() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    const QWindow* const surface = window->windowHandle();
    auto* const view = window->findChild<CContactsView*>();
    if (view && surface && surface->isExposed()) return view;
  }
  return nullptr;
}

// Empty files with names like those that the program gives.
void MakeMemos(const Places& places, int count) {
  const QString folder = places.DocumentsFolder + QStringLiteral("/Fennick/");
  QDir().mkpath(folder);
  for (int i = 0; i < count; ++i) {
    const QChar letter(u'A' + i % 26);
    QFile memo(
        folder +
        QStringLiteral("%1rown, Ann_20040915_%2.pwi").arg(letter).arg(i, 6, 10, QChar(u'0')));
    // One that cannot be made is missed in the count that is printed.
    (void)memo.open(QIODevice::WriteOnly);
  }
}

// Once the application object is there: its loop runs this until the window is shown.
void MeasureWhenShown() {
  CContactsView* const view = FindShownView();
  if (!view) return QTimer::singleShot(kPauseForWindow, qApp, MeasureWhenShown);
  const Ruler ruler = PageMeasures(*view).Run();
  g_outcome = {ruler.Measures(), ruler.Failure()};
  QApplication::exit(0);
}

}  // namespace

std::optional<std::vector<Measure>> MeasurePages(const Places& places, QString& problem) {
  MakeMemos(places, kMemos);
  ProgramOptions options;
  options.Where = places;
  Program program(std::move(options));
  qAddPreRoutine(MeasureWhenShown);
  char name[] = "quill-page-table";
  char* arguments[] = {name, nullptr};
  int argumentCount = 1;
  RunShell(program, argumentCount, arguments);
  problem = g_outcome.Problem;
  if (!problem.isEmpty()) return std::nullopt;
  return g_outcome.Measures;
}

}  // namespace quill::bench
