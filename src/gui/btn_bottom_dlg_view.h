#pragma once

#include <QDialog>
#include <map>
#include <utility>

#include "catalogue/desktop_words.h"

class QAbstractButton;
class QButtonGroup;
class QTabWidget;

namespace linecalc {
class Anwendung;
}

namespace linecalc::gui {

// The element chooser over TBtnBottomDlg: on two tabs (groups 1 to 12, group 13) a button with
// picture and name for every element; a click presses it, a double click or OK takes it.
class BtnBottomDlgView : public QDialog {
  Q_OBJECT

 public:
  BtnBottomDlgView(Anwendung& app, const DesktopWords& words, QWidget* parent = nullptr);

  QAbstractButton* elementButton(int group, int nr) const;
  QTabWidget* tabs() const { return tabs_; }

 public slots:
  void refresh();
  // Opens the chooser on the current element (Start_Aktualisierung).
  void start();

 signals:
  void modelChanged();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Anwendung& app_;
  QTabWidget* tabs_ = nullptr;
  QButtonGroup* buttons_ = nullptr;
  std::map<std::pair<int, int>, QAbstractButton*> byElement_;

  QWidget* makePage(int firstGroup, int lastGroup);
  void take();
};

}  // namespace linecalc::gui
