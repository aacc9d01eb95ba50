#include "btn_bottom_dlg_view.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "control_binding.h"
#include "element_picture.h"
#include "workspace/anwendung.h"

namespace linecalc::gui {

namespace {

constexpr QSize kPictureSize(96, 72);

}  // namespace

BtnBottomDlgView::BtnBottomDlgView(Anwendung& app, const DesktopWords& words, QWidget* parent)
    : QDialog(parent), app_(app) {
  setObjectName(QStringLiteral("BtnBottomDlg"));
  const ChooserWords& w = app.BtnBottomDlg.words;
  setWindowTitle(qs(w.caption));
  buttons_ = new QButtonGroup(this);
  buttons_->setExclusive(true);
  tabs_ = new QTabWidget(this);
  tabs_->addTab(makePage(1, kGroupCount - 1), qs(w.elementsTab));
  tabs_->addTab(makePage(kGroupCount, kGroupCount), qs(w.reversibleTab));

  auto* box = new QDialogButtonBox(this);
  box->addButton(qs(w.ok), QDialogButtonBox::AcceptRole)->setDefault(true);
  box->addButton(qs(w.cancel.empty() ? words.cancel : w.cancel), QDialogButtonBox::RejectRole);
  connect(box, &QDialogButtonBox::accepted, this, &BtnBottomDlgView::take);
  connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(this, &QDialog::finished, this, [this] { app_.BtnBottomDlg.Visible = false; });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_);
  layout->addWidget(box);
  resize(1220, 720);
}

QWidget* BtnBottomDlgView::makePage(int firstGroup, int lastGroup) {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  for (int group = firstGroup; group <= lastGroup; ++group) {
    auto* frame = new QGroupBox(qs(app_.Sprache.Gruppe_Name[static_cast<std::size_t>(group)]), page);
    auto* row = new QHBoxLayout(frame);
    for (int nr = 1; nr <= kElementsPerGroup; ++nr) {
      if (findElement(group, nr) == nullptr) continue;
      auto* button = new QToolButton(frame);
      button->setCheckable(true);
      button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
      button->setIcon(QIcon(elementPixmap(pictureNumber(group, nr), kPictureSize)));
      button->setIconSize(kPictureSize);
      const QString name = qs(app_.Sprache.Untergruppe_Name[static_cast<std::size_t>(group)][static_cast<std::size_t>(nr)]);
      button->setText(QFontMetrics(button->font()).elidedText(name, Qt::ElideRight, kPictureSize.width() + 16));
      button->setToolTip(name);
      button->setFixedWidth(kPictureSize.width() + 24);
      button->installEventFilter(this);
      connect(button, &QToolButton::clicked, this, [this, group, nr] { app_.BtnBottomDlg.press(group, nr); });
      buttons_->addButton(button);
      byElement_[{group, nr}] = button;
      row->addWidget(button);
    }
    row->addStretch();
    column->addWidget(frame);
  }
  column->addStretch();
  auto* scroll = new QScrollArea;
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  return scroll;
}

bool BtnBottomDlgView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonDblClick) {
    static_cast<QAbstractButton*>(watched)->click();
    take();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void BtnBottomDlgView::start() {
  app_.BtnBottomDlg.Start_Aktualisierung();
  app_.BtnBottomDlg.Visible = true;
  refresh();
}

void BtnBottomDlgView::refresh() {
  const TBtnBottomDlg& model = app_.BtnBottomDlg;
  tabs_->setCurrentIndex(model.PageIndex);
  if (QAbstractButton* pressed = elementButton(model.pressedGroup, model.pressedNr)) {
    pressed->setChecked(true);
    pressed->setFocus();
  }
}

void BtnBottomDlgView::take() {
  app_.BtnBottomDlg.OKBtnClick();
  accept();
  emit modelChanged();
}

QAbstractButton* BtnBottomDlgView::elementButton(int group, int nr) const {
  const auto found = byElement_.find({group, nr});
  return found == byElement_.end() ? nullptr : found->second;
}

}  // namespace linecalc::gui
