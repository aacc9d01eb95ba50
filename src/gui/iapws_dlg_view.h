#pragma once

#include <QDialog>

#include "catalogue/desktop_words.h"
#include "dialog_layout.h"
#include "workspace/anwendung.h"

class QPushButton;
class QToolButton;

namespace linecalc::gui {

// "Wasser/-dampf (allgemein)": pressure and temperature in, density, specific volume and dynamic
// viscosity of water or steam out; the result can be handed over to the main window's medium fields.
class IAPWSDlgView : public QDialog {
  Q_OBJECT

 public:
  // The dialog takes all its words from the model; `words` is part of every view's making.
  IAPWSDlgView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  const InputRow& pressure() const { return pressure_; }
  const InputRow& temperature() const { return temperature_; }
  const ResultCell& density() const { return density_; }
  const ResultCell& specificVolume() const { return specificVolume_; }
  const ResultCell& viscosity() const { return viscosity_; }
  QPushButton* computeButton() const { return compute_; }
  QPushButton* handOverButton() const { return handOver_; }
  QPushButton* closeButton() const { return close_; }
  QToolButton* infoButton() const { return info_; }

 public slots:
  void refresh();
  // The close button, Escape and the close box.
  void reject() override;

 signals:
  void modelChanged();

 private:
  TIAPWSDlg& model_;
  DialogControls controls_;
  InputRow pressure_{}, temperature_{};
  ResultCell density_{}, specificVolume_{}, viscosity_{};
  QPushButton *compute_ = nullptr, *handOver_ = nullptr, *close_ = nullptr;
  QToolButton* info_ = nullptr;

  QWidget* buildInputs();
  QWidget* buildResults();
  QLayout* buildRange();
  QLayout* buildButtons();
  void handOver();
};

}  // namespace linecalc::gui
