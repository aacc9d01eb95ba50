#include "base/meldungen.h"

namespace linecalc {

Answer RecordingMeldungen::show(MessageKind kind, const std::string& caption, const std::string& text) {
  messages_.push_back({kind, caption, text});
  const bool question = kind == MessageKind::YesNo || kind == MessageKind::YesNoCancel;
  if (!question || answers_.empty()) return Answer::Yes;
  const Answer answer = answers_.front();
  answers_.pop_front();
  return answer;
}

}  // namespace linecalc

namespace linecalc {

void reportWrongInput(Meldungen& meldungen, const std::string& caption, const std::string& intro,
                      const std::string& label) {
  meldungen.error(caption, intro + "\n\"" + label + "\"!");
}

}  // namespace linecalc
