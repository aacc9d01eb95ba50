#include "sattdampf_dialog_view.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <iterator>
#include <utility>

namespace linecalc::gui {

SattdampfDialogView::SattdampfDialogView(Anwendung& app, const DesktopWords& /*words*/, QWidget* parent)
    : QDialog(parent), model_(app.SattdampfDialog), controls_([this] { refresh(); }) {
  auto* column = new QVBoxLayout(this);
  column->addLayout(buildInputs());
  column->addLayout(buildResults());
  for (const Label* line : {&model_.standardLabel, &model_.rangeLabel}) {
    auto* label = new QLabel;
    controls_.show(*line, label);
    column->addWidget(label);
  }
  column->addLayout(buildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
  refresh();
}

QLayout* SattdampfDialogView::buildInputs() {
  given_ = controls_.radioGroup(model_.RadioGroup1Caption, model_.RadioGroup1Items, model_.RadioGroup1,
                                [this](int index) { model_.RadioGroup1Click(index); });
  auto* grid = new QGridLayout;
  temperature_ = addInputRow(grid, 0);
  pressure_ = addInputRow(grid, 1);
  const auto inputChange = [this] { model_.inputChange(); };
  controls_.show(model_.temperatureLabel, temperature_.caption);
  controls_.bind(model_.Edit2, temperature_.edit, inputChange);
  controls_.bind(model_.ComboBox2, temperature_.unit, inputChange);
  controls_.show(model_.pressureLabel, pressure_.caption);
  controls_.bind(model_.Edit1, pressure_.edit, inputChange);
  controls_.bind(model_.ComboBox1, pressure_.unit, inputChange);
  controls_.show(model_.computedLabel, addCaption(grid, 2));
  computed_ = addResultCell(grid, 2, 1);
  controls_.show(model_.Label22, computed_.value);
  controls_.bind(model_.ComboBox6, computed_.unit, [this] { model_.resultUnitChange(); });

  auto* row = new QHBoxLayout;
  row->addWidget(given_.box);
  row->addLayout(grid, 1);
  return row;
}

QLayout* SattdampfDialogView::buildResults() {
  struct Row {
    const Label& caption;
    Label& vapour;
    Combo& vapourUnit;
    Label& liquid;
    Combo& liquidUnit;
  };
  TSattdampfDialog& m = model_;
  const Row rows[] = {
      {m.densityLabel, m.Label18, m.ComboBox3, m.Label20, m.ComboBox7},
      {m.specificVolumeLabel, m.Label2, m.ComboBox4, m.Label4, m.ComboBox8},
      {m.viscosityLabel, m.Label19, m.ComboBox5, m.Label21, m.ComboBox9},
  };
  auto* grid = new QGridLayout;
  for (const auto& [heading, column] : {std::pair{&m.vapourHeading, 1}, std::pair{&m.liquidHeading, 3}}) {
    auto* label = new QLabel;
    controls_.show(*heading, label);
    grid->addWidget(label, 0, column, 1, 2);
  }
  const auto resultUnitChange = [this] { model_.resultUnitChange(); };
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const Row& row = rows[i];
    const int gridRow = static_cast<int>(i) + 1;
    controls_.show(row.caption, addCaption(grid, gridRow));
    vapour_[i] = addResultCell(grid, gridRow, 1);
    liquid_[i] = addResultCell(grid, gridRow, 3);
    controls_.show(row.vapour, vapour_[i].value);
    controls_.bind(row.vapourUnit, vapour_[i].unit, resultUnitChange);
    controls_.show(row.liquid, liquid_[i].value);
    controls_.bind(row.liquidUnit, liquid_[i].unit, resultUnitChange);
  }
  return grid;
}

QLayout* SattdampfDialogView::buildButtons() {
  compute_ = new QPushButton;
  handOverLiquid_ = new QPushButton;
  handOverVapour_ = new QPushButton;
  close_ = new QPushButton;
  compute_->setDefault(true);
  controls_.show(model_.BitBtn2, compute_);
  controls_.show(model_.BitBtn1, handOverLiquid_);
  controls_.show(model_.BitBtn3, handOverVapour_);
  controls_.show(model_.closeButton, close_);
  connect(compute_, &QPushButton::clicked, this, [this] {
    model_.BitBtn2Click();
    refresh();
  });
  connect(handOverLiquid_, &QPushButton::clicked, this, [this] { handOver(&TSattdampfDialog::BitBtn1Click); });
  connect(handOverVapour_, &QPushButton::clicked, this, [this] { handOver(&TSattdampfDialog::BitBtn3Click); });
  connect(close_, &QPushButton::clicked, this, &SattdampfDialogView::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(compute_);
  row->addWidget(handOverLiquid_);
  row->addWidget(handOverVapour_);
  row->addStretch();
  row->addWidget(close_);
  return row;
}

QAbstractButton* SattdampfDialogView::givenButton(int index) const {
  return given_.buttons->button(index);
}

void SattdampfDialogView::handOver(bool (TSattdampfDialog::*handOverPhase)()) {
  if ((model_.*handOverPhase)()) {
    QDialog::accept();
    emit modelChanged();
  }
  refresh();
}

void SattdampfDialogView::refresh() {
  setWindowTitle(qs(model_.Caption));
  controls_.showAll();
  controls_.moveFocus(model_);
}

void SattdampfDialogView::reject() {
  model_.closeButtonClick();
  QDialog::reject();
}

}  // namespace linecalc::gui
