#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace linecalc {

class Registrierung;

// The recently used project files, newest first, as the file menu shows them after "Save as".
class TRecentFileList {
 public:
  static constexpr int MaxEntries = 6;
  // How paths are kept and shown: only as local paths, the one format the program has.
  static constexpr int PathFormat = 0;

  // Puts a name at the top; an entry of the same name further down is removed, and the oldest entry
  // drops out beyond MaxEntries. An empty name is ignored.
  void AddRecentFile(const std::string& FileName);

  // Replaces the list by the entries of a section: fRecentFile1 to fRecentFile<n>, with n the stored
  // fMaxEntries (at most MaxEntries; MaxEntries when absent or unreadable). Empty values and names
  // already listed are skipped.
  void LoadFromReg(const Registrierung& store, std::string_view section = "RecentFiles");
  // Writes fMaxEntries, fPathFormat and fRecentFile1 to fRecentFile<MaxEntries>, an unused place as
  // an empty value, so that no entry of an older, longer list survives.
  void SaveToReg(Registrierung& store, std::string_view section = "RecentFiles") const;

  int Count() const { return static_cast<int>(files_.size()); }
  // The path of entry Index (0 = newest); empty outside the list.
  std::string GetRecentFileName(int Index) const;
  // The menu caption of entry Index: "&<Index + 1> " and the path.
  std::string MenuCaption(int Index) const;
  const std::vector<std::string>& Files() const { return files_; }

 private:
  std::vector<std::string> files_;
};

}  // namespace linecalc
