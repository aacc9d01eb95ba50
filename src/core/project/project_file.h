#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "project/intermediate_table.h"
#include "tables/ausgabe_fenster.h"
#include "tables/result_table.h"

namespace linecalc {

class Anwendung;
class LanguageTables;

// The format mark on the first line of a project file (.slf).
inline constexpr std::string_view kProjectVersion = "7.0";

// A file kept open while its project is open. Unless the project is open read-only it holds an
// exclusive advisory lock (flock), so that a second instance of the program opens the file read-only
// and cannot write it. Closing the descriptor releases the lock.
class LockedFile {
 public:
  LockedFile() = default;
  LockedFile(int descriptor, bool locked) : fd_(descriptor), locked_(locked) {}
  LockedFile(LockedFile&& other) noexcept;
  LockedFile& operator=(LockedFile&& other) noexcept;
  LockedFile(const LockedFile&) = delete;
  LockedFile& operator=(const LockedFile&) = delete;
  ~LockedFile() { reset(); }

  bool isOpen() const { return fd_ >= 0; }
  bool locked() const { return locked_; }
  int descriptor() const { return fd_; }
  // Takes the exclusive lock without waiting; false when another holder has it.
  bool lock();
  void reset();

 private:
  int fd_ = -1;
  bool locked_ = false;
};

// The open project's file: its name, the open file with its lock, whether it is open read-only, and the
// caption of the result window that names it.
struct ProjectFile {
  std::string Dateiname_Projekt;  // the path; the untitled word for a new project
  LockedFile Projektstream;       // closed for a new project
  bool Nur_Lesen = false;         // opened read-only: Save asks for a new name
  std::string Caption;            // the result window's caption: the file name, " [read-only word]"

  // Asks the user for the name of Save As; no value when the user cancels. The desktop program shows
  // its file dialog here, the command-line tool takes the name from its options.
  std::function<std::optional<std::filesystem::path>()> saveAsDialog;

  bool isOpen() const { return Projektstream.isOpen(); }
};

// ---- A project file read and checked, before it replaces the open project

struct ProjectPageContent {
  std::string caption;
  std::array<int, 3> fixedWidths{};  // columns 0 (hidden), 1 and 2
  std::vector<int> columnWidths;     // one per calculation
  std::array<std::string, kResultRows> unitCells;
  std::vector<std::array<Cell, kResultRows>> columns;  // table row order, in the program's language
};

struct ProjectContent {
  // Lines 2 to 6: the loss curve's flow unit, loss unit, lower and upper flow limit and state; five
  // times "0" when the project has no curve.
  std::array<std::string, 5> lossCurve;
  std::string title;
  TableFont font;
  std::vector<ProjectPageContent> pages;
};

enum class ProjectProblem {
  None,
  Version,        // the first line is not "7.0"
  PageCount,      // the number of pages is no number
  FontNumber,     // colour or size of the font is no number
  ColumnCount,    // a page's number of calculations is no number
  Widths,         // a page's width line lacks widths or holds a text that is no number
  Truncated,      // the file ends before the line the format needs next
  TrailingLines,  // text follows the last page
};

struct ProjectReading {
  std::optional<ProjectContent> content;  // set when the file is a complete project
  ProjectProblem problem = ProjectProblem::None;
  std::size_t line = 0;  // the line of the problem, counted from 1 as an editor shows it
  std::string found;     // the text found there (for the version and the numbers)
};

// Reads the bytes of a project file completely and checks them: 16 + sum of (37 + 34 n) lines, the
// counts and widths numbers. The words and decimal marks of the file are translated to the language of
// the tables and the separator given. Nothing outside the result is touched.
ProjectReading readProjectFile(std::string_view bytes, const LanguageTables& Sprache, char separator);

// The bytes of the open project as its file holds them: Windows-1252, CR LF after every line, German
// words, decimal comma, the pages' columns and widths in display order.
std::string projectFileBytes(const Anwendung& app);

// The chart file of the loss curve that belongs to a project: the same name with the extension ".tee".
// The loss curve writes it beside the project once it exists; a project without a curve has none.
std::filesystem::path chartFileOf(const std::filesystem::path& projectFile);

// ---- Commands

// Whether any page holds a calculation.
bool hasCalculations(const Anwendung& app);

// Writes the project to Dateiname by a temporary file beside it, flushed and renamed over the old file,
// so that a failure leaves the old file as it was. With Neu the file may be another than the open one:
// a file that another instance holds or that is write-protected is refused. On success the new file is
// kept open and locked as the project's file. A failure shows a message and returns false.
bool Datei_speichern_Vers7(Anwendung& app, const std::filesystem::path& Dateiname, bool Neu);

// Save: a note when no page holds a calculation; Save As when no file is open or it is open read-only;
// otherwise the open file is written. Clears the changed flag on success.
bool Datei_speichern(Anwendung& app);

// Save As with the name from saveAsDialog; false when the user cancels.
bool Speichernunter1Click(Anwendung& app);
// Save As with a given name: the project takes the name, the caption and a place in the recent files.
bool saveProjectAs(Anwendung& app, const std::filesystem::path& Dateiname);

// Opens a project file. The whole file is read and checked first; a file that cannot be opened or is
// not a complete project of format 7.0 gives a message naming the file, the line and the problem, and
// the open project stays exactly as it was. A file that another instance holds, or that is
// write-protected, opens read-only.
bool Datei_oeffnen(Anwendung& app, const std::filesystem::path& Dateiname);

// Puts a project read by readProjectFile into the result window: pages, captions, widths, unit cells,
// columns, title and font; the first page is shown and the sums are formed again.
void Datei_oeffnen_Vers7(Anwendung& app, ProjectContent content, bool Nur_Lesen);

// Asks whether to save the project when it has changed since the last save and any page holds a
// calculation (yes/no, caption global word 8, text global word 203), and saves on yes. Returns false
// when the user wanted to save and the save did not happen (cancelled or failed): the caller stops.
bool askToSaveChanges(Anwendung& app);

// Open from the file menu after the file dialog: opens the file and puts it into the recent files.
bool openProjectFile(Anwendung& app, const std::filesystem::path& Dateiname);
// Open an entry of the recent files: asks first with yes/no/cancel when there are unsaved calculations.
bool openRecentFile(Anwendung& app, int index);

// New: asks to save unless Stumm, then starts an empty project with the untitled name and no file.
// Returns false when the user wanted to save and the save did not happen; nothing changes then.
bool Leere_Tabelle_erstellen(Anwendung& app, bool Stumm);

// The project part of closing the program: asks to save (no cancel) and closes the project's file.
// Returns false when the user wanted to save and the save did not happen, so that the window can stay.
bool closeProject(Anwendung& app);

}  // namespace linecalc
