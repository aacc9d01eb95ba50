#include "qt_meldungen.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "control_binding.h"

namespace linecalc::gui {

namespace {

QMessageBox::Icon iconOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::Error: return QMessageBox::Critical;
    case MessageKind::Warning: return QMessageBox::Warning;
    case MessageKind::Information: return QMessageBox::Information;
    case MessageKind::YesNo:
    case MessageKind::YesNoCancel: return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

QtMeldungen::QtMeldungen() {
  words.yes = "&Yes";
  words.no = "&No";
  words.cancel = "Cancel";
  words.ok = "OK";
}

Answer QtMeldungen::show(MessageKind kind, const std::string& caption, const std::string& text) {
  QMessageBox box(iconOf(kind), qs(caption), qs(text), QMessageBox::NoButton, QApplication::activeWindow());
  if (kind == MessageKind::YesNo || kind == MessageKind::YesNoCancel) {
    QPushButton* yes = box.addButton(qs(words.yes), QMessageBox::YesRole);
    QPushButton* no = box.addButton(qs(words.no), QMessageBox::NoRole);
    QPushButton* cancel = kind == MessageKind::YesNoCancel ? box.addButton(qs(words.cancel), QMessageBox::RejectRole)
                                                           : nullptr;
    box.setDefaultButton(yes);
    box.setEscapeButton(cancel != nullptr ? cancel : no);
    box.exec();
    if (box.clickedButton() == yes) return Answer::Yes;
    if (box.clickedButton() == no) return Answer::No;
    return Answer::Cancel;
  }
  box.setDefaultButton(box.addButton(qs(words.ok), QMessageBox::AcceptRole));
  box.exec();
  return Answer::Yes;
}

}  // namespace linecalc::gui
