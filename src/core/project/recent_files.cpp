#include "project/recent_files.h"

#include <algorithm>
#include <charconv>

#include "project/registrierung.h"

namespace linecalc {

namespace {

std::string entryName(int number) {
  return "fRecentFile" + std::to_string(number);
}

}  // namespace

void TRecentFileList::AddRecentFile(const std::string& FileName) {
  if (FileName.empty()) return;
  std::erase(files_, FileName);
  files_.insert(files_.begin(), FileName);
  if (files_.size() > static_cast<std::size_t>(MaxEntries)) files_.resize(MaxEntries);
}

void TRecentFileList::LoadFromReg(const Registrierung& store, std::string_view section) {
  int entries = MaxEntries;
  if (const auto stored = store.readString(section, "fMaxEntries")) {
    int value = 0;
    const auto [end, error] = std::from_chars(stored->data(), stored->data() + stored->size(), value);
    if (error == std::errc() && end == stored->data() + stored->size()) entries = std::clamp(value, 0, MaxEntries);
  }
  files_.clear();
  for (int number = 1; number <= entries; ++number) {
    const auto name = store.readString(section, entryName(number));
    if (!name || name->empty() || std::find(files_.begin(), files_.end(), *name) != files_.end()) continue;
    files_.push_back(*name);
  }
}

void TRecentFileList::SaveToReg(Registrierung& store, std::string_view section) const {
  store.writeString(section, "fMaxEntries", std::to_string(MaxEntries));
  store.writeString(section, "fPathFormat", std::to_string(PathFormat));
  for (int number = 1; number <= MaxEntries; ++number) {
    store.writeString(section, entryName(number), GetRecentFileName(number - 1));
  }
}

std::string TRecentFileList::GetRecentFileName(int Index) const {
  return Index >= 0 && Index < Count() ? files_[static_cast<std::size_t>(Index)] : std::string();
}

std::string TRecentFileList::MenuCaption(int Index) const {
  if (Index < 0 || Index >= Count()) return {};
  return "&" + std::to_string(Index + 1) + " " + files_[static_cast<std::size_t>(Index)];
}

}  // namespace linecalc
