#pragma once

#include <QDialog>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/desktop_words.h"
#include "dialog_layout.h"
#include "workspace/anwendung.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QWidget;

namespace linecalc::gui {

// The settings dialog: general settings on one page, the master unit lists on the other. OK keeps the
// settings (or stays open on a bad number), Cancel and Escape bring back those of the opening.
class EinstellungenDlgView : public QDialog {
  Q_OBJECT

 public:
  EinstellungenDlgView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  QTabWidget* pages() const { return pages_; }
  // The unit box of a master list by the list's name ("combo_Laenge", "Combo_SI_US"); nullptr when unknown.
  QComboBox* unitBox(std::string_view comboName) const;
  QComboBox* programLanguageBox() const { return programLanguage_; }
  QComboBox* substanceLanguageBox() const { return substanceLanguage_; }
  QComboBox* frictionMethodBox() const { return frictionMethod_; }
  QLineEdit* diagramPointsEdit() const { return diagramPoints_; }
  QLineEdit* decimalsEdit() const { return decimals_; }
  QAbstractButton* lineWrapCheck() const { return lineWrap_; }
  QAbstractButton* gasUpdateButton(int index) const;
  QPushButton* siButton() const { return siButton_; }
  QPushButton* usButton() const { return usButton_; }
  QPushButton* okButton() const { return okButton_; }
  QPushButton* cancelButton() const { return cancelButton_; }

 public slots:
  void refresh();
  // OK: the model checks the numbers; a refusal keeps the dialog open with the focus on the field.
  void accept() override;
  // Cancel, Escape and the close box: the model restores the settings of the opening.
  void reject() override;

 signals:
  void modelChanged();

 private:
  Anwendung& app_;
  TEinstellungenDlg& model_;
  const DesktopWords& words_;
  DialogControls controls_;
  QTabWidget* pages_;
  QComboBox *programLanguage_ = nullptr, *substanceLanguage_ = nullptr, *frictionMethod_ = nullptr;
  QLineEdit *diagramPoints_ = nullptr, *decimals_ = nullptr;
  QAbstractButton* lineWrap_ = nullptr;
  RadioGroup gasUpdate_{};
  QPushButton *siButton_ = nullptr, *usButton_ = nullptr, *okButton_ = nullptr, *cancelButton_ = nullptr;
  std::vector<std::pair<std::string_view, QComboBox*>> unitBoxes_;

  // A caption and a list box in a grid, showing and changing the model's control.
  QComboBox* addChoice(QGridLayout* grid, int row, int column, const Label& caption, Combo& combo,
                       std::function<void()> handler = {});
  QWidget* buildGeneralPage();
  QWidget* buildUnitsPage();
  std::function<void()> unitSystemHandler(std::string_view comboName);
  QWidget* buildButtons();
};

}  // namespace linecalc::gui
