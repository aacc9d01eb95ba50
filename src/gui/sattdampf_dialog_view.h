#pragma once

#include <QDialog>
#include <array>

#include "catalogue/desktop_words.h"
#include "dialog_layout.h"
#include "workspace/anwendung.h"

class QPushButton;

namespace linecalc::gui {

// "Wasser/-dampf (Sättigungszustand)": from a given temperature the vapour pressure, or from a given
// pressure the boiling temperature, with the properties of both phases; either phase can be handed over
// to the main window's medium fields.
class SattdampfDialogView : public QDialog {
  Q_OBJECT

 public:
  // The results of a phase in this order.
  enum Quantity { Density, SpecificVolume, Viscosity };

  // The dialog takes all its words from the model; `words` is part of every view's making.
  SattdampfDialogView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  QAbstractButton* givenButton(int index) const;  // 0 temperature, 1 pressure
  const InputRow& temperature() const { return temperature_; }
  const InputRow& pressure() const { return pressure_; }
  const ResultCell& computed() const { return computed_; }
  const ResultCell& vapour(Quantity quantity) const { return vapour_[quantity]; }
  const ResultCell& liquid(Quantity quantity) const { return liquid_[quantity]; }
  QPushButton* computeButton() const { return compute_; }
  QPushButton* liquidButton() const { return handOverLiquid_; }
  QPushButton* vapourButton() const { return handOverVapour_; }
  QPushButton* closeButton() const { return close_; }

 public slots:
  void refresh();
  // The close button, Escape and the close box.
  void reject() override;

 signals:
  void modelChanged();

 private:
  TSattdampfDialog& model_;
  DialogControls controls_;
  RadioGroup given_{};
  InputRow temperature_{}, pressure_{};
  ResultCell computed_{};
  std::array<ResultCell, 3> vapour_{}, liquid_{};
  QPushButton *compute_ = nullptr, *handOverLiquid_ = nullptr, *handOverVapour_ = nullptr, *close_ = nullptr;

  QLayout* buildInputs();
  QLayout* buildResults();
  QLayout* buildButtons();
  // Runs a hand-over of the model; when it took place, the dialog closes and the main window refreshes.
  void handOver(bool (TSattdampfDialog::*handOverPhase)());
};

}  // namespace linecalc::gui
