#pragma once

#include <deque>
#include <string>
#include <vector>

namespace linecalc {

enum class MessageKind { Error, Warning, Information, YesNo, YesNoCancel };
enum class Answer { Yes, No, Cancel };

// The modal message boxes of the program. The desktop shows them as dialogs, the command-line
// tool prints them (and answers questions from its options), tests record them.
class Meldungen {
 public:
  virtual ~Meldungen() = default;

  // Shows a box and waits for the user; returns Answer::Yes for the plain boxes.
  virtual Answer show(MessageKind kind, const std::string& caption, const std::string& text) = 0;

  void error(const std::string& caption, const std::string& text) { show(MessageKind::Error, caption, text); }
  void warning(const std::string& caption, const std::string& text) { show(MessageKind::Warning, caption, text); }
  void information(const std::string& caption, const std::string& text) {
    show(MessageKind::Information, caption, text);
  }
  bool askYesNo(const std::string& caption, const std::string& text) {
    return show(MessageKind::YesNo, caption, text) == Answer::Yes;
  }
  Answer askYesNoCancel(const std::string& caption, const std::string& text) {
    return show(MessageKind::YesNoCancel, caption, text);
  }
};

struct RecordedMessage {
  MessageKind kind;
  std::string caption;
  std::string text;
  bool operator==(const RecordedMessage&) const = default;
};

// Keeps every box shown, in order; questions take their answers from a queue (Yes when it is empty).
class RecordingMeldungen final : public Meldungen {
 public:
  Answer show(MessageKind kind, const std::string& caption, const std::string& text) override;

  void queueAnswer(Answer answer) { answers_.push_back(answer); }
  const std::vector<RecordedMessage>& messages() const { return messages_; }
  void clear() { messages_.clear(); }

 private:
  std::vector<RecordedMessage> messages_;
  std::deque<Answer> answers_;
};

}  // namespace linecalc

namespace linecalc {

// The wrong-input box: the caption word, and as text the intro word, a line break and the field's
// label in double quotes followed by "!".
void reportWrongInput(Meldungen& meldungen, const std::string& caption, const std::string& intro,
                      const std::string& label);

}  // namespace linecalc
