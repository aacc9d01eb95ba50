#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <string>

#include "base/meldungen.h"
#include "catalogue/desktop_words.h"
#include "control_binding.h"
#include "workspace/anwendung.h"

namespace linecalc::test {

// A started application in German with the decimal comma, its message boxes recorded, and the
// desktop words; the views under test are made on it.
class GuiTest : public ::testing::Test {
 protected:
  RecordingMeldungen meldungen;
  Anwendung app{meldungen, ','};
  DesktopWords words;

  void SetUp() override {
    app.Sprache.Sprachkennung = 'D';
    app.start(LINECALC_BUILD_DATA_DIR);
    words = readDesktopWords(app.Sprache);
  }

  // Replaces the text of a field as a user does: select all, type.
  static void typeInto(QLineEdit* field, const std::string& text) {
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, gui::qs(text));
  }
  static void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
  const std::vector<RecordedMessage>& messages() const { return meldungen.messages(); }
};

}  // namespace linecalc::test
