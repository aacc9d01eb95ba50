#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "base/meldungen.h"

namespace linecalc::cli {

// The program's message boxes on the command line: kept for the JSON answer, and in text mode printed
// to standard error as they come. Questions are answered with `answer` and never wait for input.
class CliMeldungen final : public Meldungen {
 public:
  CliMeldungen(std::ostream* echo, Answer answer) : echo_(echo), answer_(answer) {}

  Answer show(MessageKind kind, const std::string& caption, const std::string& text) override;

  const std::vector<RecordedMessage>& messages() const { return messages_; }
  bool anyError() const;

 private:
  std::ostream* echo_;
  Answer answer_;
  std::vector<RecordedMessage> messages_;
};

std::string_view kindName(MessageKind kind);

}  // namespace linecalc::cli
