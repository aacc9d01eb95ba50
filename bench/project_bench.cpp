// Opening and saving a large project: 20 pages of 100 calculations each (68 000 cells). Target: a
// median of at most 50 ms for each.
#include <benchmark/benchmark.h>

#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <string>

#include "base/meldungen.h"
#include "project/project_file.h"
#include "workspace/anwendung.h"

namespace {

using namespace linecalc;
namespace fs = std::filesystem;

constexpr int kPages = 20, kCalculations = 100;

// A started program in the given language with a project of pipes, bends and height differences
// in water, saved once to a file in a temporary folder.
struct LargeProject {
  RecordingMeldungen meldungen;
  Anwendung app;
  fs::path file;

  LargeProject(char language, char separator) : app(meldungen, separator) {
    app.Sprache.Sprachkennung = language;
    app.start(LINECALC_BUILD_DATA_DIR);
    TMyWindow& form = app.MyWindow;
    const auto choose = [&](int group, int nr) {
      app.BtnBottomDlg.Start_Aktualisierung();
      app.BtnBottomDlg.press(group, nr);
      app.BtnBottomDlg.OKBtnClick();
    };
    for (int page = 0; page < kPages; ++page) {
      if (page > 0) app.Ausgabeneu_Fenster.Tabelle_hinzufuegen();
      for (int i = 0; i < kCalculations; ++i) {
        choose(i % 3 == 2 ? 13 : 1, 1);
        form.Va1_Edit.Text = i % 3 == 2 ? std::to_string(i % 7 - 3) : std::to_string(50 + i);
        form.Va2_Edit.Text = std::to_string(3 + i % 11);
        form.Eingabe_Volumenstrom.Text = std::to_string(10 + i);
        form.Berechnen(0);
      }
    }
    std::string pattern = (fs::temp_directory_path() / "linecalc-bench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) return;
    file = fs::path(pattern) / "gross.slf";
    saveProjectAs(app, file);
  }
  ~LargeProject() {
    std::error_code ignored;
    fs::remove_all(file.parent_path(), ignored);
  }

  bool sound() const {
    int calculations = 0;
    for (const ResultTable& page : app.Ausgabeneu_Fenster.pages) calculations += page.Anzahl_Berechnungen();
    return calculations == kPages * kCalculations && meldungen.messages().empty() && fs::exists(file);
  }
};

void OpenProject(benchmark::State& bench, char language) {
  LargeProject project(language, ',');
  if (!project.sound()) return bench.SkipWithError("the project could not be built");
  for (auto _ : bench) {
    if (!Datei_oeffnen(project.app, project.file)) return bench.SkipWithError("the project did not open");
  }
  bench.counters["bytes"] = static_cast<double>(fs::file_size(project.file));
}
BENCHMARK_CAPTURE(OpenProject, German, 'D')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenProject, English, 'E')->Unit(benchmark::kMillisecond);

// Saving writes a temporary file, flushes it to the disk and renames it over the project.
void SaveProject(benchmark::State& bench, char language) {
  LargeProject project(language, '.');
  if (!project.sound()) return bench.SkipWithError("the project could not be built");
  for (auto _ : bench) {
    if (!Datei_speichern_Vers7(project.app, project.file, false)) return bench.SkipWithError("the save failed");
  }
}
BENCHMARK_CAPTURE(SaveProject, German, 'D')->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveProject, English, 'E')->Unit(benchmark::kMillisecond);

// The file's text alone, without the disk.
void ProjectText(benchmark::State& bench) {
  LargeProject project('D', ',');
  if (!project.sound()) return bench.SkipWithError("the project could not be built");
  for (auto _ : bench) benchmark::DoNotOptimize(projectFileBytes(project.app));
}
BENCHMARK(ProjectText)->Unit(benchmark::kMillisecond);

}  // namespace
