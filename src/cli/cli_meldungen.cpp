#include "cli_meldungen.h"

#include <algorithm>

namespace linecalc::cli {

std::string_view kindName(MessageKind kind) {
  switch (kind) {
    case MessageKind::Error:
      return "error";
    case MessageKind::Warning:
      return "warning";
    case MessageKind::Information:
      return "information";
    default:
      return "question";
  }
}

Answer CliMeldungen::show(MessageKind kind, const std::string& caption, const std::string& text) {
  messages_.push_back({kind, caption, text});
  if (echo_) *echo_ << "linecalc-cli: " << kindName(kind) << ": " << caption << ": " << text << '\n';
  return answer_;
}

bool CliMeldungen::anyError() const {
  return std::any_of(messages_.begin(), messages_.end(),
                     [](const RecordedMessage& m) { return m.kind == MessageKind::Error; });
}

}  // namespace linecalc::cli
