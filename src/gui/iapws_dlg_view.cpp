#include "iapws_dlg_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace linecalc::gui {

IAPWSDlgView::IAPWSDlgView(Anwendung& app, const DesktopWords& /*words*/, QWidget* parent)
    : QDialog(parent), model_(app.IAPWSDlg), controls_([this] { refresh(); }) {
  auto* column = new QVBoxLayout(this);
  column->addWidget(buildInputs());
  column->addWidget(buildResults());
  column->addLayout(buildRange());
  column->addLayout(buildButtons());
  column->setSizeConstraint(QLayout::SetFixedSize);
  refresh();
}

QWidget* IAPWSDlgView::buildInputs() {
  QGroupBox* box = controls_.group(model_.inputHeading);
  auto* grid = new QGridLayout(box);
  pressure_ = addInputRow(grid, 0);
  temperature_ = addInputRow(grid, 1);
  controls_.show(model_.pressureLabel, pressure_.caption);
  controls_.bind(model_.Edit1, pressure_.edit, [this] { model_.Edit1Change(); });
  controls_.bind(model_.ComboBox1, pressure_.unit, [this] { model_.ComboBox1Change(); });
  controls_.show(model_.temperatureLabel, temperature_.caption);
  controls_.bind(model_.Edit2, temperature_.edit, [this] { model_.Edit2Change(); });
  controls_.bind(model_.ComboBox2, temperature_.unit, [this] { model_.ComboBox2Change(); });
  return box;
}

QWidget* IAPWSDlgView::buildResults() {
  QGroupBox* box = controls_.group(model_.resultHeading);
  auto* grid = new QGridLayout(box);
  controls_.show(model_.densityLabel, addCaption(grid, 0));
  controls_.show(model_.specificVolumeLabel, addCaption(grid, 1));
  controls_.show(model_.viscosityLabel, addCaption(grid, 2));
  density_ = addResultCell(grid, 0, 1);
  specificVolume_ = addResultCell(grid, 1, 1);
  viscosity_ = addResultCell(grid, 2, 1);
  controls_.show(model_.Label6, density_.value);
  controls_.bind(model_.ComboBox3, density_.unit, [this] { model_.ComboBox3Change(); });
  controls_.show(model_.Label13, specificVolume_.value);
  controls_.bind(model_.ComboBox4, specificVolume_.unit, [this] { model_.ComboBox4Change(); });
  controls_.show(model_.Label7, viscosity_.value);
  controls_.bind(model_.ComboBox5, viscosity_.unit, [this] { model_.ComboBox5Change(); });
  return box;
}

QLayout* IAPWSDlgView::buildRange() {
  auto* lines = new QVBoxLayout;
  for (const Label* line : {&model_.rangeHeading, &model_.rangeLine1, &model_.rangeLine2}) {
    auto* label = new QLabel;
    controls_.show(*line, label);
    lines->addWidget(label);
  }
  auto* standard = new QLabel;
  controls_.show(model_.standardLabel, standard);
  info_ = new QToolButton;
  info_->setIcon(style()->standardIcon(QStyle::SP_MessageBoxInformation));
  controls_.show(model_.SpeedButton7, info_);
  connect(info_, &QToolButton::clicked, this, [this] { model_.SpeedButton7Click(); });
  auto* standardLine = new QHBoxLayout;
  standardLine->addWidget(standard, 1);
  standardLine->addWidget(info_);
  lines->addLayout(standardLine);
  return lines;
}

QLayout* IAPWSDlgView::buildButtons() {
  compute_ = new QPushButton;
  handOver_ = new QPushButton;
  close_ = new QPushButton;
  compute_->setDefault(true);
  controls_.show(model_.BitBtn1, compute_);
  controls_.show(model_.OKBtn, handOver_);
  controls_.show(model_.BitBtn2, close_);
  connect(compute_, &QPushButton::clicked, this, [this] {
    model_.BitBtn1Click();
    refresh();
  });
  connect(handOver_, &QPushButton::clicked, this, &IAPWSDlgView::handOver);
  connect(close_, &QPushButton::clicked, this, &IAPWSDlgView::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(compute_);
  row->addWidget(handOver_);
  row->addStretch();
  row->addWidget(close_);
  return row;
}

void IAPWSDlgView::handOver() {
  if (model_.OKBtnClick()) {
    QDialog::accept();
    emit modelChanged();
  }
  refresh();
}

void IAPWSDlgView::refresh() {
  setWindowTitle(qs(model_.Caption));
  controls_.showAll();
  controls_.moveFocus(model_);
}

void IAPWSDlgView::reject() {
  model_.BitBtn2Click();
  QDialog::reject();
}

}  // namespace linecalc::gui
