#include "einstellungen_dlg_view.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "base/unit_lists.h"

namespace linecalc::gui {

namespace {

// The unit lists whose choice moves the other lists of lengths and areas into the same unit system.
constexpr int kUnitRowsPerColumn = 9;  // the 18 unit boxes in two columns
constexpr int kNumberWidth = 80;       // a field for a small whole number

}  // namespace

EinstellungenDlgView::EinstellungenDlgView(Anwendung& app, const DesktopWords& words, QWidget* parent)
    : QDialog(parent),
      app_(app),
      model_(app.EinstellungenDlg),
      words_(words),
      controls_([this] { refresh(); }),
      pages_(new QTabWidget) {
  pages_->addTab(buildGeneralPage(), QString());
  pages_->addTab(buildUnitsPage(), QString());
  auto* column = new QVBoxLayout(this);
  column->addWidget(pages_);
  column->addWidget(buildButtons());
  refresh();
}

QComboBox* EinstellungenDlgView::addChoice(QGridLayout* grid, int row, int column, const Label& caption, Combo& combo,
                                           std::function<void()> handler) {
  const ChoiceRow choice = addChoiceRow(grid, row, column);
  controls_.show(caption, choice.caption);
  controls_.bind(combo, choice.box, std::move(handler));
  return choice.box;
}

QWidget* EinstellungenDlgView::buildGeneralPage() {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  auto* grid = new QGridLayout;
  column->addLayout(grid);
  programLanguage_ = addChoice(grid, 0, 0, model_.programLanguageLabel, model_.ComboBox2);
  substanceLanguage_ = addChoice(grid, 1, 0, model_.substanceLanguageLabel, model_.ComboBox1);
  addChoice(grid, 2, 0, model_.userDatabaseUnitsLabel, model_.ComboBox3);
  frictionMethod_ = addChoice(grid, 3, 0, model_.frictionMethodLabel, model_.ComboBox4);
  const auto addNumber = [&](int row, const Label& caption, Edit& edit) {
    QLabel* label = addCaption(grid, row);
    auto* field = new QLineEdit;
    field->setMaximumWidth(kNumberWidth);
    label->setBuddy(field);
    grid->addWidget(field, row, 1, Qt::AlignLeft);
    controls_.show(caption, label);
    controls_.bind(edit, field);
    return field;
  };
  diagramPoints_ = addNumber(4, model_.diagramPointsLabel, model_.Edit1);
  decimals_ = addNumber(5, model_.decimalsLabel, model_.Edit2);
  grid->setColumnStretch(1, 1);

  lineWrap_ = new QCheckBox;
  controls_.bind(model_.CheckBox1, lineWrap_);
  auto* convertTables = new QCheckBox;
  controls_.bind(model_.CheckBox2, convertTables);
  gasUpdate_ = controls_.radioGroup(model_.RadioGroup1Caption, model_.RadioGroup1Items, model_.RadioGroup1,
                                    [this](int index) { model_.RadioGroup1 = index; });
  column->addWidget(lineWrap_);
  column->addWidget(convertTables);
  column->addWidget(gasUpdate_.box);
  column->addStretch();
  return page;
}

// Length, diameter and section boxes keep the three in one unit system; the other boxes need no handler.
// (Plain lambdas: calls through member pointers misbehave under the sanitizers of GCC 12.)
std::function<void()> EinstellungenDlgView::unitSystemHandler(std::string_view comboName) {
  if (comboName == "combo_Laenge") return [this] { model_.combo_LaengeChange(); };
  if (comboName == "combo_Durchmesser") return [this] { model_.combo_DurchmesserChange(); };
  if (comboName == "Combo_Querschnitt") return [this] { model_.Combo_QuerschnittChange(); };
  return {};
}

QWidget* EinstellungenDlgView::buildUnitsPage() {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  auto* grid = new QGridLayout;
  column->addLayout(grid);
  int place = 0;
  const auto addUnitChoice = [&](std::string_view name, const Label& caption, std::function<void()> handler) {
    const int row = place % kUnitRowsPerColumn, gridColumn = 2 * (place / kUnitRowsPerColumn);
    ++place;
    unitBoxes_.emplace_back(name, addChoice(grid, row, gridColumn, caption, *model_.unitCombo(name), handler));
  };
  for (const UnitList& list : masterUnitLists()) {
    addUnitChoice(list.comboName, *model_.unitLabel(list.comboName), unitSystemHandler(list.comboName));
  }
  addUnitChoice("Combo_SI_US", model_.unitSystemLabel, {});
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);

  siButton_ = new QPushButton;
  usButton_ = new QPushButton;
  controls_.show(model_.Button1, siButton_);
  controls_.show(model_.Button2, usButton_);
  connect(siButton_, &QPushButton::clicked, this, [this] {
    model_.Button1Click();
    refresh();
  });
  connect(usButton_, &QPushButton::clicked, this, [this] {
    model_.Button2Click();
    refresh();
  });
  auto* sets = new QHBoxLayout;
  sets->addWidget(siButton_);
  sets->addWidget(usButton_);
  sets->addStretch();
  column->addLayout(sets);
  column->addStretch();
  return page;
}

QWidget* EinstellungenDlgView::buildButtons() {
  auto* box = new QDialogButtonBox;
  okButton_ = box->addButton(QString(), QDialogButtonBox::AcceptRole);
  cancelButton_ = box->addButton(QString(), QDialogButtonBox::RejectRole);
  okButton_->setDefault(true);
  controls_.show(model_.OKBtn, okButton_);
  controls_.show(model_.CancelBtn, cancelButton_);
  connect(box, &QDialogButtonBox::accepted, this, &EinstellungenDlgView::accept);
  connect(box, &QDialogButtonBox::rejected, this, &EinstellungenDlgView::reject);
  return box;
}

QComboBox* EinstellungenDlgView::unitBox(std::string_view comboName) const {
  for (const auto& [name, box] : unitBoxes_) {
    if (name == comboName) return box;
  }
  return nullptr;
}

QAbstractButton* EinstellungenDlgView::gasUpdateButton(int index) const {
  return gasUpdate_.buttons->button(index);
}

void EinstellungenDlgView::refresh() {
  setWindowTitle(qs(model_.Caption));
  pages_->setTabText(0, qs(model_.TabSheet1.Caption));
  pages_->setTabText(1, qs(model_.TabSheet2.Caption));
  controls_.showAll();
  controls_.moveFocus(model_);
}

void EinstellungenDlgView::accept() {
  if (!model_.OKBtnClick()) {
    // The model has reported the bad number and asks for the focus on its field; both numbers it checks
    // are on the general page.
    pages_->setCurrentIndex(0);
    refresh();
    return;
  }
  const bool languageChanged = model_.languageChanged();
  QDialog::accept();
  if (languageChanged) app_.meldungen.information(model_.Caption, words_.languageChange);
  emit modelChanged();
}

void EinstellungenDlgView::reject() {
  model_.CancelBtnClick();
  QDialog::reject();
  emit modelChanged();
}

}  // namespace linecalc::gui
