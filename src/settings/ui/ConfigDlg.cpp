#include "settings/ui/ConfigDlg.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

#include <utility>

#include "platform/ScreenLayout.h"
#include "platform/ui/DropDown.h"
#include "platform/ui/InputCommit.h"
#include "platform/ui/RowPainter.h"
#include "resources/SettingsDialogs.h"

namespace quill {

namespace {

constexpr Rgb kHeaderText = 0x0000FF;
constexpr Rgb kHeaderLine = 0x000000;

PaintedRow Header() {
  PaintedRow row{.Rectangle = {0, 0, kScreenWidth, 26}};
  row.Items.push_back({.Rectangle = {5, 0, 220, 25},
                       .Text = QStringLiteral("Configurations"),
                       .Color = kHeaderText});
  row.Items.push_back({.Rectangle = {0, 25, kScreenWidth, 1}, .Fill = kHeaderLine});
  return row;
}

}  // namespace

CConfigDlg::CConfigDlg(CScreen& screen, ConfigActions actions)
    : CDialog(screen, resources::kConfigDialog), m_actions(std::move(actions)) {
  AreaCodeEdit().setAccessibleName(QStringLiteral("Area code"));
  connect(&Check(ConfigIds::kAutoAreaCode), &QCheckBox::toggled, this,
          [this] { EnableAreaCode(); });
  FollowButton(ConfigIds::kDeleteAll, m_actions.DeleteAll);
  FollowButton(ConfigIds::kReceive, m_actions.Receive);
}

QCheckBox& CConfigDlg::Check(int id) const { return *qobject_cast<QCheckBox*>(Control(id)); }

QLineEdit& CConfigDlg::AreaCodeEdit() const {
  return *qobject_cast<QLineEdit*>(Control(ConfigIds::kAreaCodeEdit));
}

void CConfigDlg::FollowButton(int id, const std::function<void()>& action) {
  if (action) connect(qobject_cast<QPushButton*>(Control(id)), &QPushButton::clicked, this, action);
}

void CConfigDlg::OnInitDialog() {
  ShowEntries(EntriesOf(g_settings));
  EnableAreaCode();
}

void CConfigDlg::ShowEntries(const ConfigEntries& entries) {
  Check(ConfigIds::kShowIndex).setChecked(entries.ShowIndex);
  Check(ConfigIds::kAutoAreaCode).setChecked(entries.AutoAreaCode);
  AreaCodeEdit().setText(entries.AreaCode);
  auto* const list = qobject_cast<CDropDown*>(Control(ConfigIds::kAreaCodeList));
  for (const QStringView code : kAreaCodes) list->addItem(code.toString());
  list->setCurrentIndex(AreaCodeIndex(entries.AreaCode));
}

void CConfigDlg::EnableAreaCode() {
  const bool automatic = Check(ConfigIds::kAutoAreaCode).isChecked();
  Control(ConfigIds::kAreaCodeList)->setEnabled(automatic);
  AreaCodeEdit().setEnabled(automatic);
}

void CConfigDlg::OnOK() {
  TakeEntries({.ShowIndex = Check(ConfigIds::kShowIndex).isChecked(),
               .AutoAreaCode = Check(ConfigIds::kAutoAreaCode).isChecked(),
               .AreaCode = EditorText(AreaCodeEdit())},
              g_settings);
  CDialog::OnOK();
}

void CConfigDlg::paintEvent(QPaintEvent* event) {
  CDialog::paintEvent(event);
  QPainter painter(this);
  DrawRow(painter, Header());
}

}  // namespace quill
