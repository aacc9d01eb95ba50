#include "my_window_view.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "element_picture.h"
#include "project/project_file.h"
#include "workspace/anwendung.h"

namespace linecalc::gui {

namespace {

template <typename Widget, typename Control>
Widget* findWidget(const std::vector<std::pair<const Control*, Widget*>>& pairs, const Control& control) {
  for (const auto& [model, widget] : pairs) {
    if (model == &control) return widget;
  }
  return nullptr;
}

}  // namespace

MyWindowView::MyWindowView(Anwendung& app, const DesktopWords& words, QWidget* parent)
    : QMainWindow(parent), app_(app), words_(words) {
  setObjectName(QStringLiteral("MyWindow"));
  menu_.build(*this, app.MyWindow.words, qs(words.notYetAvailable), app.Sprache.Sprachkennung);
  menu_.setWaterCaptions(qs(app.IAPWSDlg.Caption), qs(app.SattdampfDialog.Caption));

  auto* central = new QWidget(this);
  auto* layout = new QHBoxLayout(central);
  layout->addWidget(makeMediumPanel(), 0, Qt::AlignTop);
  layout->addWidget(makeElementPanel(), 1, Qt::AlignTop);
  setCentralWidget(central);
  statusBar();
  connectCommands();
  refresh();
}

QLineEdit* MyWindowView::addEdit(Edit& control) {
  auto* field = new QLineEdit(this);
  field->setMinimumWidth(110);
  field->setAlignment(Qt::AlignRight);
  field->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(field, &QLineEdit::textEdited, this, [&control](const QString& text) { control.Text = ss(text); });
  connect(field, &QLineEdit::returnPressed, this, &MyWindowView::calculate);
  connect(field, &QLineEdit::customContextMenuRequested, this,
          [this, field](const QPoint& at) { showFieldMenu(field, at); });
  edits_.emplace_back(&control, field);
  focus_.add(control, field);
  return field;
}

QComboBox* MyWindowView::addCombo(Combo& control, std::function<void()> changed) {
  auto* box = new QComboBox(this);
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(box, &QComboBox::activated, this, [this, &control, changed](int index) {
    control.ItemIndex = index;
    if (changed) changed();
    refresh();
  });
  combos_.emplace_back(&control, box);
  focus_.add(control, box);
  return box;
}

QLabel* MyWindowView::addLabel(const Label& control) {
  auto* text = new QLabel(this);
  labels_.emplace_back(&control, text);
  return text;
}

QRadioButton* MyWindowView::addRadio(Check& control, std::function<void()> chosen) {
  auto* button = new QRadioButton(this);
  connect(button, &QRadioButton::clicked, this, [this, chosen] {
    chosen();
    refresh();
  });
  radios_.emplace_back(&control, button);
  focus_.add(control, button);
  return button;
}

QWidget* MyWindowView::makeMediumPanel() {
  TMyWindow& m = app_.MyWindow;
  mediumPanel_ = new QGroupBox(qs(words_.mediumPanel), this);
  auto* grid = new QGridLayout(mediumPanel_);
  const auto row = [&](int r, const Label& title, Edit& field, Combo& unit) {
    QLabel* caption = addLabel(title);
    QLineEdit* edit = addEdit(field);
    caption->setBuddy(edit);
    grid->addWidget(caption, r, 0);
    grid->addWidget(edit, r, 1);
    grid->addWidget(addCombo(unit), r, 2);
  };
  grid->addWidget(addLabel(m.Medium_Titel), 0, 0);
  QLineEdit* medium = addEdit(m.Eingabe_Medium);
  medium->setAlignment(Qt::AlignLeft);
  grid->addWidget(medium, 0, 1, 1, 3);

  grid->addWidget(addLabel(m.Label3), 1, 0);
  auto* state = new QHBoxLayout;
  state->addWidget(addRadio(m.Radio_fluessig, [&m] { m.selectLiquid(true); }));
  state->addWidget(addRadio(m.Radio_gas, [&m] { m.selectLiquid(false); }));
  state->addStretch();
  grid->addLayout(state, 1, 1, 1, 3);

  row(2, m.Volumenstrom_Titel, m.Eingabe_Volumenstrom, m.ComboBox1);
  QComboBox* flowKind = addCombo(m.ComboBox4, [&m] { m.Einheiten_Volumenstrom_aktualisieren(); });
  flowKind->setToolTip(qs(m.words.hint("ComboBox4")));
  grid->addWidget(flowKind, 2, 3);
  row(3, m.Dichte_Titel, m.Eingabe_Dichte, m.ComboBox2);
  row(4, m.Visko_Titel, m.Eingabe_Viskositaet, m.ComboBox3);
  QComboBox* viscosityKind = addCombo(m.ComboBox5, [&m] { m.Einheiten_Visko_aktualisieren(); });
  viscosityKind->setToolTip(qs(m.words.hint("ComboBox5")));
  grid->addWidget(viscosityKind, 4, 3);

  QLabel* gasHeading = addLabel(m.Label2N);
  gasHeading->setStyleSheet(QStringLiteral("font-weight: bold; margin-top: 8px"));
  grid->addWidget(gasHeading, 5, 0, 1, 4);
  row(6, m.Label4N, m.Edit_EingangsdruckN, m.ComboBox6N);
  row(7, m.Label5N, m.Edit_EingangstemperaturN, m.ComboBox7N);
  row(8, m.Label6N, m.Edit_AusgangstemperaturN, m.ComboBox8N);
  grid->setRowStretch(9, 1);
  return mediumPanel_;
}

QWidget* MyWindowView::makeElementPanel() {
  TMyWindow& m = app_.MyWindow;
  elementPanel_ = new QGroupBox(qs(words_.elementPanel), this);
  auto* outer = new QVBoxLayout(elementPanel_);

  auto* head = new QHBoxLayout;
  elementCaption_ = addLabel(m.Statisch_Element_Name1);
  elementCaption_->setStyleSheet(QStringLiteral("font-weight: bold"));
  elementCaption_->setWordWrap(true);
  head->addWidget(elementCaption_, 1);
  information_ = new QToolButton(this);
  information_->setIcon(style()->standardIcon(QStyle::SP_MessageBoxInformation));
  connect(information_, &QToolButton::clicked, this, &MyWindowView::showElementInformation);
  head->addWidget(information_);
  chooseElement_ = new QPushButton(qs(words_.chooseElement), this);
  connect(chooseElement_, &QPushButton::clicked, this, [this] { emit windowRequested(QStringLiteral("BtnBottomDlg")); });
  head->addWidget(chooseElement_);
  outer->addLayout(head);

  auto* body = new QHBoxLayout;
  picture_ = new ElementPictureWidget(this);
  picture_->setMinimumSize(260, 182);
  body->addWidget(picture_, 0, Qt::AlignTop);
  auto* grid = new QGridLayout;
  for (int r = 1; r <= kPanelRows; ++r) {
    QLabel* caption = addLabel(m.vaStatic(r));
    QLineEdit* edit = addEdit(m.vaEdit(r));
    caption->setBuddy(edit);
    grid->addWidget(caption, r, 0);
    grid->addWidget(edit, r, 1);
    grid->addWidget(addLabel(m.labelVar(r)), r, 2);
    grid->addWidget(addCombo(m.comboVar(r)), r, 3);
  }
  const auto row = [&](int r, const Label& title, Edit& field) {
    QLabel* caption = addLabel(title);
    QLineEdit* edit = addEdit(field);
    caption->setBuddy(edit);
    grid->addWidget(caption, r, 0);
    grid->addWidget(edit, r, 1);
    return edit;
  };
  row(6, m.VaAnz_Titel, m.VaAnz_Edit);
  row(7, m.Label2, m.Edit1)->setAlignment(Qt::AlignLeft);
  grid->addWidget(addLabel(m.Label5), 8, 0);
  auto* choice = new QHBoxLayout;
  choice->addWidget(addRadio(m.RadioButton1, [&m] {
    m.RadioButton1.Checked = true;
    m.RadioButton2.Checked = false;
  }));
  choice->addWidget(addRadio(m.RadioButton2, [&m] {
    m.RadioButton1.Checked = false;
    m.RadioButton2.Checked = true;
  }));
  grid->addLayout(choice, 8, 1, 1, 3);
  row(9, m.Label4, m.Edit2);
  grid->addWidget(addCombo(m.ComboBox6), 9, 3);
  roughnessDatabase_ = new QToolButton(this);
  roughnessDatabase_->setText(QStringLiteral("…"));
  grid->addWidget(roughnessDatabase_, 9, 4);
  row(10, m.Label6, m.Edit3);
  grid->addWidget(addLabel(m.Label7), 10, 2, 1, 2);
  grid->setColumnStretch(1, 1);
  body->addLayout(grid, 1);
  outer->addLayout(body);

  auto* foot = new QHBoxLayout;
  foot->addStretch();
  calculate_ = new QPushButton(qs(words_.calculate), this);
  calculate_->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
  calculate_->setToolTip(qs(m.words.hint("BitBtn1")));
  connect(calculate_, &QPushButton::clicked, this, &MyWindowView::calculate);
  foot->addWidget(calculate_);
  outer->addLayout(foot);
  return elementPanel_;
}

void MyWindowView::connectCommands() {
  const auto on = [this](std::string_view name, auto&& slot) { connect(action(name), &QAction::triggered, this, slot); };
  const auto request = [this](std::string_view name, const char* form) {
    connect(action(name), &QAction::triggered, this, [this, form] { emit windowRequested(QString::fromLatin1(form)); });
  };
  on("Neu1", [this] { newProject(); });
  on("ffnen1", [this] { openProject(); });
  on("Speichern1", [this] {
    Datei_speichern(app_);
    emit modelChanged();
  });
  on("Speichernunter1", [this] {
    Speichernunter1Click(app_);
    emit modelChanged();
  });
  on("Beenden1", [this] { close(); });
  on("Stromlauf1", [this] { calculate(); });
  on("berStromlauf1", [this] { showAbout(); });
  request("Rohrleitungselementwhlen1", "BtnBottomDlg");
  request("abelleanzeigen1", "Ausgabeneu_Fenster");
  request("Einstellungen2", "EinstellungenDlg");
  request("IAPWSDlg", "IAPWSDlg");
  request("SattdampfDialog", "SattdampfDialog");

  connect(menu_.menu("Datei1"), &QMenu::aboutToShow, this, &MyWindowView::refreshRecentFiles);
  // The table entries that work on calculations are offered only while the table holds some.
  const auto enableTableEntries = [this] {
    const bool any = app_.Ausgabeneu_Fenster.Anzahl_Berechnungen() > 0;
    for (const char* entry : {"KopiereninZwischenablage1", "GewhlteSpalteentfernen1", "KopiereninEingabefelder1"}) {
      action(entry)->setEnabled(any);
    }
  };
  connect(menu_.menu("Tabelle1"), &QMenu::aboutToShow, this, enableTableEntries);
  connect(menu_.menu("abellenSpalte1"), &QMenu::aboutToShow, this, enableTableEntries);
  connect(menu_.menu("Bearbeiten1"), &QMenu::aboutToShow, this, [this] {
    enableEditCommands(action("Kopieren1"), action("Einfgen1"), action("Lschen1"), focusWidget());
  });
  // The edit entries act on the field that has the focus; a change is written into its control.
  const auto onField = [this, &on](std::string_view name, const std::function<void(QLineEdit*)>& command) {
    on(name, [this, command] {
      if (auto* field = qobject_cast<QLineEdit*>(focusWidget())) {
        command(field);
        emit field->textEdited(field->text());
      }
    });
  };
  onField("Kopieren1", [](QLineEdit* field) { field->copy(); });
  onField("Einfgen1", [](QLineEdit* field) { field->paste(); });
  onField("Lschen1", [](QLineEdit* field) { field->del(); });
}

void MyWindowView::refresh() {
  TMyWindow& m = app_.MyWindow;
  setWindowTitle(qs(app_.productTitle));
  for (const auto& [control, widget] : edits_) showEdit(widget, *control);
  for (const auto& [control, widget] : combos_) showCombo(widget, *control);
  for (const auto& [control, widget] : labels_) showLabel(widget, *control);
  for (const auto& [control, widget] : radios_) showCheck(widget, *control);
  // A row's unit shows either as a fixed word or as a unit list: only the visible one takes room.
  for (int r = 1; r <= kPanelRows; ++r) label(m.labelVar(r))->setHidden(!m.labelVar(r).Visible);
  picture_->setPictureNumber(m.Image1);
  showButton(information_, m.ToolButton15);
  showButton(roughnessDatabase_, m.SpeedButton1);
  // The roughness database is a window of a later version; its button only says so.
  roughnessDatabase_->setEnabled(false);
  roughnessDatabase_->setToolTip(qs(m.SpeedButton1.Hint) + "\n" + qs(words_.notYetAvailable));
  focus_.apply(m);
}

void MyWindowView::calculate() {
  app_.MyWindow.Berechnen(0);
  emit modelChanged();
  refresh();
}

void MyWindowView::showElementInformation() {
  const TMyWindow& m = app_.MyWindow;
  const std::string& text = m.words.SV_Elementinfo[static_cast<std::size_t>(app_.state.ElementGruppe)]
                                                  [static_cast<std::size_t>(app_.state.ElementNr)];
  if (!text.empty()) app_.meldungen.information(m.Statisch_Element_Name1.Caption, text);
}

void MyWindowView::showAbout() {
  app_.meldungen.information(app_.productTitle, app_.productTitle + "\n\n" + words_.about);
}

QLineEdit* MyWindowView::edit(const Edit& control) const { return findWidget(edits_, control); }
QComboBox* MyWindowView::combo(const Combo& control) const { return findWidget(combos_, control); }
QRadioButton* MyWindowView::radio(const Check& control) const { return findWidget(radios_, control); }
QLabel* MyWindowView::label(const Label& control) const { return findWidget(labels_, control); }

// ---- file menu

void MyWindowView::newProject() {
  Leere_Tabelle_erstellen(app_, false);
  emit modelChanged();
}

void MyWindowView::openProject() {
  if (!askToSaveChanges(app_) || !fileDialog) return;
  if (const std::optional<std::filesystem::path> file = fileDialog(false)) {
    openProjectFile(app_, *file);
    emit modelChanged();
  }
}

void MyWindowView::refreshRecentFiles() {
  QMenu* fileMenu = menu_.menu("Datei1");
  for (QAction* old : fileMenu->actions()) {
    if (old->property("recentFile").isValid()) {
      fileMenu->removeAction(old);
      old->deleteLater();
    }
  }
  QAction* before = action("RecentFiles");
  for (int i = 0; i < app_.RecentFiles.Count(); ++i) {
    auto* entry = new QAction(qs(app_.RecentFiles.MenuCaption(i)), fileMenu);
    entry->setProperty("recentFile", i);
    connect(entry, &QAction::triggered, this, [this, i] {
      openRecentFile(app_, i);
      emit modelChanged();
    });
    fileMenu->insertAction(before, entry);
  }
  const bool any = hasCalculations(app_);
  action("Speichern1")->setEnabled(any);
  action("Speichernunter1")->setEnabled(any);
}

void MyWindowView::closeEvent(QCloseEvent* event) {
  if (mayClose && !mayClose()) {
    event->ignore();
    return;
  }
  event->accept();
}

// ---- edit menu and the context menu of the fields

void MyWindowView::enableEditCommands(QAction* copy, QAction* paste, QAction* remove, QWidget* target) const {
  auto* field = qobject_cast<QLineEdit*>(target);
  const bool selection = field != nullptr && field->hasSelectedText();
  copy->setEnabled(selection);
  remove->setEnabled(selection);
  paste->setEnabled(field != nullptr && !QGuiApplication::clipboard()->text().isEmpty());
}

void MyWindowView::showFieldMenu(QLineEdit* field, const QPoint& at) {
  const MainFormWords& w = app_.MyWindow.words;
  QMenu menu(this);
  QAction* copy = menu.addAction(qs(w.menu("Kopieren2")), field, &QLineEdit::copy);
  QAction* paste = menu.addAction(qs(w.menu("Einfgen2")), field, [field] {
    field->paste();
    emit field->textEdited(field->text());
  });
  QAction* remove = menu.addAction(qs(w.menu("Lschen2")), field, [field] {
    field->del();
    emit field->textEdited(field->text());
  });
  enableEditCommands(copy, paste, remove, field);
  menu.exec(field->mapToGlobal(at));
}

}  // namespace linecalc::gui
