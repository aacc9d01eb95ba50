#include "base/meldungen.h"

#include <gtest/gtest.h>

namespace linecalc {
namespace {

TEST(Meldungen, RecordsBoxesInOrderAndAnswersQuestionsFromTheQueue) {
  RecordingMeldungen meldungen;
  meldungen.queueAnswer(Answer::No);
  meldungen.queueAnswer(Answer::Cancel);
  meldungen.warning("Achtung", "laminar");
  EXPECT_FALSE(meldungen.askYesNo("Speichern", "Projekt speichern?"));
  EXPECT_EQ(meldungen.askYesNoCancel("Speichern", "Projekt speichern?"), Answer::Cancel);
  EXPECT_TRUE(meldungen.askYesNo("Speichern", "Noch einmal?"));  // an empty queue answers yes
  ASSERT_EQ(meldungen.messages().size(), 4u);
  EXPECT_EQ(meldungen.messages()[0], (RecordedMessage{MessageKind::Warning, "Achtung", "laminar"}));
  EXPECT_EQ(meldungen.messages()[2].kind, MessageKind::YesNoCancel);
}

TEST(Meldungen, WrongInputNamesTheFieldInQuotes) {
  RecordingMeldungen meldungen;
  reportWrongInput(meldungen, "Falsche Eingabe", "Bitte prüfen Sie die Eingabe im Feld", "Rohrdurchmesser D:");
  ASSERT_EQ(meldungen.messages().size(), 1u);
  EXPECT_EQ(meldungen.messages()[0],
            (RecordedMessage{MessageKind::Error, "Falsche Eingabe",
                             "Bitte prüfen Sie die Eingabe im Feld\n\"Rohrdurchmesser D:\"!"}));
}

}  // namespace
}  // namespace linecalc
