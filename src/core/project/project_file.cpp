#include "project/project_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <utility>

#include "base/cp1252.h"
#include "catalogue/language_tables.h"
#include "workspace/anwendung.h"

namespace linecalc {

namespace fs = std::filesystem;

namespace {

// Global word rows.
constexpr int kSaveCaption = 8, kReadOnlyWord = 137, kNothingToSaveCaption = 78, kUntitled = 153,
              kNothingToSaveText = 201, kSaveQuestion = 203;

constexpr int kUnitLines = kResultRows;

// ---- Words of the block "Projektdatei", in the order of its rows

enum Word {
  kCaption,
  kLineWord,
  kNotOpened,
  kNotFound,
  kUnreadable,
  kFormatNotRead,
  kFormatRead,
  kBadPageCount,
  kBadColumnCount,
  kBadFontNumber,
  kBadWidths,
  kTruncated,
  kTrailing,
  kNotSaved,
  kOldFileKept,
  kNoPermission,
  kDiskFull,
  kFolderMissing,
  kInUse,
  kWriteProtected,
  kSystemMessage,
  kWordCount
};

std::array<std::string, kWordCount> projectWords(const Anwendung& app) {
  WordBlock block = app.Sprache.block("Projektdatei");
  std::array<std::string, kWordCount> words;
  for (std::string& word : words) word = block.next();
  return words;
}

// ---- Lines

// The lines of a file: CR LF, LF or CR end a line; a line break at the very end starts no new line.
std::vector<std::string_view> splitLines(std::string_view bytes) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] != '\r' && bytes[i] != '\n') continue;
    lines.push_back(bytes.substr(start, i - start));
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
    start = i + 1;
  }
  if (start < bytes.size()) lines.push_back(bytes.substr(start));
  return lines;
}

std::string_view trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<int> parseInteger(std::string_view text, bool allowNegative) {
  text = trimBlanks(text);
  if (text.empty() || (!allowNegative && text.front() == '-')) return std::nullopt;
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// Reads the lines of a project one after the other and notes the first problem.
class ProjectParser {
 public:
  explicit ProjectParser(std::string_view bytes) : lines_(splitLines(bytes)) {}

  // The calculations of each page as the file holds them, until they are translated.
  std::vector<StringGrid> grids;

  ProjectReading run() {
    ProjectReading reading;
    ProjectContent content;
    if (!parse(content)) {
      reading.problem = problem_;
      reading.line = problemLine_;
      reading.found = found_;
      return reading;
    }
    reading.content = std::move(content);
    return reading;
  }

 private:
  std::vector<std::string_view> lines_;
  std::size_t next_ = 0;
  ProjectProblem problem_ = ProjectProblem::None;
  std::size_t problemLine_ = 0;
  std::string found_;

  bool fail(ProjectProblem problem, std::size_t line, std::string_view found = {}) {
    problem_ = problem;
    problemLine_ = line;
    constexpr std::size_t kShown = 60;  // a long line is shown by its start
    found_ = cp1252ToUtf8(found.substr(0, kShown)) + (found.size() > kShown ? "..." : "");
    return false;
  }
  bool available(std::size_t count) const { return lines_.size() - next_ >= count; }
  bool truncated() { return fail(ProjectProblem::Truncated, lines_.size() + 1); }
  // The next line as raw bytes; only after `available` said it is there.
  std::string_view take() { return lines_[next_++]; }
  std::string takeText() { return cp1252ToUtf8(take()); }

  bool takeInteger(ProjectProblem problem, bool allowNegative, int& value) {
    if (!available(1)) return truncated();
    const std::size_t line = next_ + 1;
    const std::string_view text = take();
    const std::optional<int> parsed = parseInteger(text, allowNegative);
    if (!parsed) return fail(problem, line, text);
    value = *parsed;
    return true;
  }

  bool parse(ProjectContent& content) {
    if (!available(1)) return truncated();
    const std::string_view version = take();
    if (version != kProjectVersion) return fail(ProjectProblem::Version, 1, version);
    if (!available(7)) return truncated();
    take();  // "Diagramm:"
    for (std::string& line : content.lossCurve) line = takeText();
    content.title = takeText();
    int pageCount = 0;
    if (!takeInteger(ProjectProblem::PageCount, false, pageCount)) return false;
    if (!available(1)) return truncated();
    content.font.name = takeText();
    if (!takeInteger(ProjectProblem::FontNumber, true, content.font.colour)) return false;
    if (!takeInteger(ProjectProblem::FontNumber, false, content.font.size)) return false;
    if (!available(4)) return truncated();
    for (bool* flag : {&content.font.bold, &content.font.italic, &content.font.underline, &content.font.strikeOut}) {
      *flag = take() == "1";
    }
    for (int page = 0; page < pageCount; ++page) {
      if (!parsePage(content.pages.emplace_back())) return false;
    }
    for (std::size_t line = next_; line < lines_.size(); ++line) {
      if (!lines_[line].empty()) return fail(ProjectProblem::TrailingLines, line + 1);
    }
    return true;
  }

  bool parsePage(ProjectPageContent& page) {
    if (!available(1)) return truncated();
    page.caption = takeText();
    int n = 0;
    if (!takeInteger(ProjectProblem::ColumnCount, false, n)) return false;
    const auto columns = static_cast<std::size_t>(n);
    // The width line, the unit column and the calculations must all be there before anything is kept.
    if (lines_.size() - next_ < 1 + kUnitLines || (lines_.size() - next_ - 1 - kUnitLines) / kResultRows < columns) {
      return truncated();
    }
    if (!parseWidths(page, columns)) return false;
    for (std::string& unit : page.unitCells) unit = takeText();
    StringGrid& grid = grids.emplace_back();
    grid.columns.resize(columns);
    for (FileColumn& column : grid.columns) {
      for (std::string& cell : column) cell = takeText();
    }
    return true;
  }

  bool parseWidths(ProjectPageContent& page, std::size_t columns) {
    const std::size_t line = next_ + 1;
    const std::string_view text = take();
    std::vector<int> widths;
    std::size_t start = 0;
    while (start < text.size() && widths.size() < columns + 3) {
      const std::size_t tab = text.find('\t', start);
      const std::string_view field =
          text.substr(start, tab == std::string_view::npos ? text.size() - start : tab - start);
      const std::optional<int> width = parseInteger(field, false);
      if (!width) return fail(ProjectProblem::Widths, line, text);
      widths.push_back(*width);
      if (tab == std::string_view::npos) break;
      start = tab + 1;
    }
    if (widths.size() < columns + 3) return fail(ProjectProblem::Widths, line, text);
    std::copy_n(widths.begin(), 3, page.fixedWidths.begin());
    page.columnWidths.assign(widths.begin() + 3, widths.end());
    return true;
  }
};

// One line of the file: a line break inside a text would split it, so it becomes a blank.
void appendLine(std::string& out, std::string_view utf8) {
  const std::size_t start = out.size();
  out += utf8ToCp1252(utf8);
  for (std::size_t i = start; i < out.size(); ++i) {
    if (out[i] == '\r' || out[i] == '\n') out[i] = ' ';
  }
  out += "\r\n";
}

// ---- Files

bool sameFile(int a, int b) {
  struct stat first {
  }, second{};
  if (a < 0 || b < 0 || ::fstat(a, &first) != 0 || ::fstat(b, &second) != 0) return false;
  return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool tryLock(int fd) {
  while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(fd, bytes.data(), bytes.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool readAll(int fd, std::string& bytes) {
  char buffer[65536];
  for (;;) {
    const ssize_t count = ::read(fd, buffer, sizeof buffer);
    if (count < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    if (count == 0) return true;
    bytes.append(buffer, static_cast<std::size_t>(count));
  }
}

mode_t creationMode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

// Writes `bytes` as the new content of `target`: into a temporary file beside it, flushed to the disk
// and renamed over the target, so that a crash or a full disk leaves the old file whole. The new file
// keeps the old one's permissions and comes back open and locked. Returns 0 or the error number.
int replaceFile(const fs::path& target, std::string_view bytes, LockedFile& result) {
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  std::string name = ".";
  name.append(target.filename().string()).append(".XXXXXX");
  std::string pattern = (folder / name).string();
  const int fd = ::mkostemp(pattern.data(), O_CLOEXEC);
  if (fd < 0) return errno;
  LockedFile temporary(fd, false);
  temporary.lock();
  struct stat old {};
  const mode_t mode = ::stat(target.c_str(), &old) == 0 ? (old.st_mode & 07777) : creationMode();
  int error = 0;
  if (::fchmod(fd, mode) != 0 || !writeAll(fd, bytes) || ::fsync(fd) != 0 ||
      ::rename(pattern.c_str(), target.c_str()) != 0) {
    error = errno;
    ::unlink(pattern.c_str());
    return error;
  }
  // The rename itself reaches the disk with the folder.
  const int folderFd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folderFd >= 0) {
    ::fsync(folderFd);
    ::close(folderFd);
  }
  result = std::move(temporary);
  return 0;
}

std::string reasonText(const std::array<std::string, kWordCount>& words, int error) {
  switch (error) {
    case EACCES:
    case EPERM:
    case EROFS:
      return words[kNoPermission];
    case ENOSPC:
    case EDQUOT:
      return words[kDiskFull];
    case ENOENT:
    case ENOTDIR:
      return words[kFolderMissing];
    default:
      return words[kSystemMessage] + " " + std::strerror(error);
  }
}

void reportNotSaved(Anwendung& app, const fs::path& file, const std::string& reason, bool oldFileExists) {
  const auto words = projectWords(app);
  std::string text = words[kNotSaved] + "\n" + file.string() + "\n" + reason;
  if (oldFileExists) text += "\n" + words[kOldFileKept];
  app.meldungen.error(words[kCaption], text);
}

void reportNotOpened(Anwendung& app, const fs::path& file, const std::string& problem) {
  const auto words = projectWords(app);
  app.meldungen.error(words[kCaption], file.string() + "\n" + problem + "\n" + words[kNotOpened]);
}

std::string problemText(const std::array<std::string, kWordCount>& words, const ProjectReading& reading) {
  const std::string quoted = " \"" + reading.found + "\"";
  std::string text = words[kLineWord] + " " + std::to_string(reading.line) + ": ";
  switch (reading.problem) {
    case ProjectProblem::Version:
      return text + words[kFormatNotRead] + quoted + ". " + words[kFormatRead];
    case ProjectProblem::PageCount:
      return text + words[kBadPageCount] + quoted;
    case ProjectProblem::FontNumber:
      return text + words[kBadFontNumber] + quoted;
    case ProjectProblem::ColumnCount:
      return text + words[kBadColumnCount] + quoted;
    case ProjectProblem::Widths:
      return text + words[kBadWidths] + quoted;
    case ProjectProblem::Truncated:
      return text + words[kTruncated];
    case ProjectProblem::TrailingLines:
      return text + words[kTrailing];
    case ProjectProblem::None:
      break;
  }
  return text;
}

std::string fileTitle(const fs::path& file) {
  return file.filename().string();
}

}  // namespace

// ---- LockedFile

LockedFile::LockedFile(LockedFile&& other) noexcept
    : fd_(std::exchange(other.fd_, -1)), locked_(std::exchange(other.locked_, false)) {}

LockedFile& LockedFile::operator=(LockedFile&& other) noexcept {
  if (this != &other) {
    reset();
    fd_ = std::exchange(other.fd_, -1);
    locked_ = std::exchange(other.locked_, false);
  }
  return *this;
}

bool LockedFile::lock() {
  if (fd_ >= 0 && !locked_) locked_ = tryLock(fd_);
  return locked_;
}

void LockedFile::reset() {
  if (fd_ >= 0) ::close(fd_);  // closing the last descriptor of the file releases its lock
  fd_ = -1;
  locked_ = false;
}

// ---- Reading

ProjectReading readProjectFile(std::string_view bytes, const LanguageTables& Sprache, char separator) {
  ProjectParser parser(bytes);
  ProjectReading reading = parser.run();
  if (!reading.content) return reading;
  std::vector<ProjectPageContent>& pages = reading.content->pages;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    StringGrid& StringGrid1 = parser.grids[i];
    repairOldElementNames(StringGrid1, Sprache);
    Zwischentabelle_bearbeiten_nach_Oeffnen(StringGrid1, 7, Sprache);
    Zwischentabelle_Dezimaltrennzeichen(StringGrid1, ',', separator);
    pages[i].columns.reserve(StringGrid1.columns.size());
    for (const FileColumn& column : StringGrid1.columns) pages[i].columns.push_back(fromFileColumn(column));
  }
  return reading;
}

// ---- Writing

std::string projectFileBytes(const Anwendung& app) {
  const TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  const char separator = app.Dezimaltrennzeichen;
  std::string out;
  appendLine(out, kProjectVersion);
  appendLine(out, "Diagramm:");
  // The loss curve's units, limits and state; five times "0" while no curve belongs to the project.
  for (int i = 0; i < 5; ++i) appendLine(out, "0");
  appendLine(out, window.Edit1.Text);
  appendLine(out, std::to_string(window.pages.size()));
  const TableFont& font = window.font;
  appendLine(out, font.name);
  appendLine(out, std::to_string(font.colour));
  appendLine(out, std::to_string(font.size));
  for (const bool flag : {font.bold, font.italic, font.underline, font.strikeOut}) appendLine(out, flag ? "1" : "0");

  StringGrid StringGrid1;
  for (const ResultTable& page : window.pages) {
    const int n = page.Anzahl_Berechnungen();
    appendLine(out, page.caption);
    appendLine(out, std::to_string(n));
    std::string widths;
    for (const int width : page.fixedWidths) widths += std::to_string(width) + "\t";
    for (int i = 0; i < n; ++i) widths += std::to_string(page.get_Spalte(i).width) + "\t";
    appendLine(out, widths);
    for (const std::string& unit : page.unitCells) appendLine(out, unit);

    StringGrid1.columns.clear();
    for (int i = 0; i < n; ++i) StringGrid1.columns.push_back(toFileColumn(page.get_Spalte(i), separator));
    if (app.Sprache.Sprachkennung != 'D')
      Zwischentabelle_bearbeiten_vor_SpeichernV7(StringGrid1, app.Sprache, separator);
    Zwischentabelle_Dezimaltrennzeichen(StringGrid1, separator, ',');
    for (const FileColumn& column : StringGrid1.columns) {
      for (const std::string& cell : column) appendLine(out, cell);
    }
  }
  return out;
}

fs::path chartFileOf(const fs::path& projectFile) {
  fs::path chart = projectFile;
  return chart.replace_extension(".tee");
}

// ---- Commands

bool hasCalculations(const Anwendung& app) {
  for (const ResultTable& page : app.Ausgabeneu_Fenster.pages) {
    if (page.Anzahl_Berechnungen() >= 1) return true;
  }
  return false;
}

bool Datei_speichern_Vers7(Anwendung& app, const fs::path& Dateiname, bool Neu) {
  const std::string bytes = projectFileBytes(app);
  std::error_code ignored;
  fs::path target = fs::weakly_canonical(Dateiname, ignored);  // a link is followed, not replaced
  if (target.empty()) target = Dateiname;
  const bool exists = fs::exists(target, ignored);

  if (Neu && exists) {
    // Another file than the open one may be overwritten only when no other instance holds it and it is
    // not write-protected.
    const auto words = projectWords(app);
    const int fd = ::open(target.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd >= 0) {
      const bool ours = app.Projekt.Projektstream.locked() && sameFile(fd, app.Projekt.Projektstream.descriptor());
      const bool heldElsewhere = !ours && !tryLock(fd);
      ::close(fd);
      if (heldElsewhere) {
        reportNotSaved(app, Dateiname, words[kInUse], true);
        return false;
      }
    }
    if (::access(target.c_str(), W_OK) != 0 && errno == EACCES) {
      reportNotSaved(app, Dateiname, words[kWriteProtected], true);
      return false;
    }
  }

  LockedFile written;
  if (const int error = replaceFile(target, bytes, written); error != 0) {
    reportNotSaved(app, Dateiname, reasonText(projectWords(app), error), exists);
    return false;
  }
  app.Projekt.Projektstream = std::move(written);
  // The loss curve's chart goes to chartFileOf(Dateiname) here, once the loss curve belongs to the
  // project; without a curve no chart file is written and an old one stays.
  return true;
}

bool Datei_speichern(Anwendung& app) {
  if (!hasCalculations(app)) {
    app.meldungen.information(app.Sprache.globalWord(kNothingToSaveCaption),
                              app.Sprache.globalWord(kNothingToSaveText));
    return false;
  }
  if (!app.Projekt.isOpen() || app.Projekt.Nur_Lesen) return Speichernunter1Click(app);
  if (!Datei_speichern_Vers7(app, app.Projekt.Dateiname_Projekt, false)) return false;
  app.Projekt_gespeichert = true;
  return true;
}

bool Speichernunter1Click(Anwendung& app) {
  if (!app.Projekt.saveAsDialog) return false;
  const std::optional<fs::path> name = app.Projekt.saveAsDialog();
  return name && !name->empty() && saveProjectAs(app, *name);
}

bool saveProjectAs(Anwendung& app, const fs::path& Dateiname) {
  if (!Datei_speichern_Vers7(app, Dateiname, true)) return false;
  ProjectFile& project = app.Projekt;
  project.Dateiname_Projekt = Dateiname.string();
  project.Nur_Lesen = false;
  project.Caption = fileTitle(Dateiname);
  app.RecentFiles.AddRecentFile(Dateiname.string());
  app.Projekt_gespeichert = true;
  return true;
}

bool Datei_oeffnen(Anwendung& app, const fs::path& Dateiname) {
  const auto words = projectWords(app);
  bool readOnly = false;
  int fd = ::open(Dateiname.c_str(), O_RDWR | O_CLOEXEC);
  if (fd < 0 && (errno == EACCES || errno == EPERM || errno == EROFS)) {
    fd = ::open(Dateiname.c_str(), O_RDONLY | O_CLOEXEC);
    readOnly = true;
  }
  if (fd < 0) {
    const int error = errno;
    reportNotOpened(
        app, Dateiname,
        error == ENOENT || error == ENOTDIR ? words[kNotFound] : words[kUnreadable] + " " + std::strerror(error));
    return false;
  }
  // A file this project already holds is locked again once the old descriptor is closed.
  bool lockAfterSwitch = false;
  if (!readOnly && !tryLock(fd)) {
    lockAfterSwitch = sameFile(fd, app.Projekt.Projektstream.descriptor());
    readOnly = !lockAfterSwitch;
  }
  LockedFile file(fd, !readOnly && !lockAfterSwitch);

  std::string bytes;
  if (!readAll(fd, bytes)) {
    reportNotOpened(app, Dateiname, words[kUnreadable] + " " + std::strerror(errno));
    return false;
  }
  ProjectReading reading = readProjectFile(bytes, app.Sprache, app.Dezimaltrennzeichen);
  if (!reading.content) {
    reportNotOpened(app, Dateiname, problemText(words, reading));
    return false;
  }

  // The file is a complete project: from here on the open project is replaced.
  app.Projekt.Projektstream.reset();
  if (lockAfterSwitch) readOnly = !file.lock();
  app.Projekt.Projektstream = std::move(file);
  app.Projekt.Dateiname_Projekt = Dateiname.string();
  app.Projekt.Nur_Lesen = readOnly;
  Datei_oeffnen_Vers7(app, std::move(*reading.content), readOnly);
  if (app.EinstellungenDlg.CheckBox2.Checked) {
    // Every page takes the units now set in the settings; the first page is shown again.
    TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
    for (std::size_t i = 0; i < window.pages.size(); ++i) {
      window.activePage = static_cast<int>(i);
      window.Tabellen_Einheiten_umrechnen();
    }
    window.activePage = 0;
  }
  app.Projekt_gespeichert = true;
  return true;
}

void Datei_oeffnen_Vers7(Anwendung& app, ProjectContent content, bool Nur_Lesen) {
  TAusgabeneu_Fenster& window = app.Ausgabeneu_Fenster;
  window.Tabelle_Leeren();
  const std::string title = fileTitle(app.Projekt.Dateiname_Projekt);
  app.Projekt.Caption = Nur_Lesen ? title + " [" + app.Sprache.globalWord(kReadOnlyWord) + "]" : title;
  // Lines 2 to 6 set the loss curve's units, limits and state once the loss curve belongs to the
  // project; its chart file is read only when line 2 is not "0".
  window.Edit1.Text = std::move(content.title);
  window.font = content.font;
  for (std::size_t i = 0; i < content.pages.size(); ++i) {
    ProjectPageContent& source = content.pages[i];
    ResultTable& page = i == 0 ? window.pages.front() : window.Tabelle_hinzufuegen();
    page.caption = std::move(source.caption);
    page.fixedWidths = source.fixedWidths;
    page.unitCells = std::move(source.unitCells);
    page.columns.clear();
    for (std::size_t j = 0; j < source.columns.size(); ++j) {
      CalcColumn& column = page.columns.emplace_back();
      column.cells = std::move(source.columns[j]);
      if (j < source.columnWidths.size()) column.width = source.columnWidths[j];
    }
    page.Leere_Spalte_anhaengen();
    page.Spalten_nummerieren();
  }
  for (std::size_t i = 0; i < window.pages.size(); ++i) {
    window.activePage = static_cast<int>(i);
    window.Neue_Summen_bilden();
  }
  window.activePage = 0;
}

bool askToSaveChanges(Anwendung& app) {
  if (app.Projekt_gespeichert || !hasCalculations(app)) return true;
  if (!app.meldungen.askYesNo(app.Sprache.globalWord(kSaveCaption), app.Sprache.globalWord(kSaveQuestion))) return true;
  return Datei_speichern(app);
}

bool openProjectFile(Anwendung& app, const fs::path& Dateiname) {
  if (!Datei_oeffnen(app, Dateiname)) return false;
  app.RecentFiles.AddRecentFile(Dateiname.string());
  return true;
}

bool openRecentFile(Anwendung& app, int index) {
  const std::string name = app.RecentFiles.GetRecentFileName(index);
  if (name.empty()) return false;
  if (!app.Projekt_gespeichert && hasCalculations(app)) {
    const Answer answer =
        app.meldungen.askYesNoCancel(app.Sprache.globalWord(kSaveCaption), app.Sprache.globalWord(kSaveQuestion));
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes && !Datei_speichern(app)) return false;
  }
  return openProjectFile(app, name);
}

bool Leere_Tabelle_erstellen(Anwendung& app, bool Stumm) {
  if (!Stumm && !askToSaveChanges(app)) return false;
  ProjectFile& project = app.Projekt;
  project.Projektstream.reset();
  project.Nur_Lesen = false;
  project.Dateiname_Projekt = app.Sprache.globalWord(kUntitled);
  project.Caption = project.Dateiname_Projekt;
  app.Ausgabeneu_Fenster.Tabelle_Leeren();
  app.Ausgabeneu_Fenster.Edit1.Text.clear();
  app.Projekt_gespeichert = true;
  return true;
}

bool closeProject(Anwendung& app) {
  if (!askToSaveChanges(app)) return false;
  app.Projekt.Projektstream.reset();
  return true;
}

}  // namespace linecalc
