#include "exchange/qt/EntryScreen.h"

#include "exchange/Likeness.h"
#include "exchange/TakeOver.h"
#include "masterdata/ClubRegister.h"
#include "platform/qt/BusyPointer.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

namespace {

constexpr int SampleLength = 18, MomentOfWork = 100 /* milliseconds */, LinesAStep = 100;
constexpr int WidestColumn = 20; // lines of text

/// What stands at the top of a column, so that the operator knows it again.
QString sampleOf(const Table &table, qsizetype column) {
  const QString text = table.lines.first()[column];
  return text.size() <= SampleLength ? text : text.left(SampleLength) + QChar(u'…');
}

template <typename Control> Control *named(Control *control, const char *name) {
  control->setObjectName(QLatin1String(name));
  return control;
}

QPushButton *makeButton(const char *name, const QString &caption) {
  auto *button = named(new QPushButton(caption), name);
  button->setProperty("zeichen", caption.size() + 1);
  return button;
}

} // namespace

std::optional<Table> EntryScreen::chosenTable(QWidget *parent) {
  const QString title = QStringLiteral("Meldungen einlesen");
  const QString path =
      QFileDialog::getOpenFileName(parent, title, {}, QStringLiteral("Tabellen (*.csv *.txt *.tsv);;Alle Dateien (*)"));
  if (path.isEmpty())
    return {};
  try {
    return readTable(path);
  } catch (const Fault &fault) {
    QMessageBox::warning(parent, title, fault.report());
    return {};
  }
}

EntryScreen::EntryScreen(Desk &desk, Store &store, Table table, bool race)
    : Screen(desk, QStringLiteral("Meldungen"), 0), m_store(store), m_table(std::move(table)),
      m_columns(recognisedColumns(m_table)), m_race(race), m_model(store, race),
      m_heading(named(new QCheckBox(QStringLiteral("erste Zeile ist Überschrift")), "ueberschrift")),
      m_view(named(new QTableView, "vorschau")), m_line(named(new QLabel, "zeile")),
      m_count(named(new QLabel, "zusammen")), m_progress(named(new QProgressBar, "fortschritt")),
      m_club(named(new QComboBox, "verein")),
      m_makeAll(makeButton("alleVereine", QStringLiteral("alle unbekannten Vereine anlegen"))),
      m_take(makeButton("uebernehmen", QStringLiteral("Übernehmen"))) {
  setWindowTitle(QStringLiteral("Meldungen einlesen"));
  setWindowModality(Qt::ApplicationModal);
  auto *column = new QVBoxLayout(this);
  column->addWidget(makeColumns());
  column->addWidget(m_view, 1);
  column->addWidget(makeChoices());
  column->addWidget(makeButtons());
  m_view->setModel(&m_model);
  m_view->setAccessibleName(QStringLiteral("Zeilen der Tabelle"));
  m_club->setAccessibleName(QStringLiteral("Verein der gewählten Zeilen"));
  m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_view->verticalHeader()->hide();
  m_view->horizontalHeader()->setMaximumSectionSize(WidestColumn * fontMetrics().height());
  m_view->setTabKeyNavigation(false);
  m_heading->setChecked(m_columns.heading);
  setUp();
  connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &EntryScreen::showLine);
  recognise();
  resize(QSize(92, 50) * fontMetrics().height());
  m_view->setFocus();
}

QWidget *EntryScreen::makeColumns() {
  auto *inside = new QWidget;
  auto *grid = new QGridLayout(inside);
  grid->setContentsMargins(0, 0, 0, 0);
  for (int i = 0; i < int(m_table.columns()); ++i) {
    auto *kind = new QComboBox;
    kind->setObjectName(QStringLiteral("spalte%1").arg(i + 1));
    kind->setAccessibleName(QStringLiteral("Spalte %1 enthält").arg(i + 1));
    for (int k = 0; k < ColumnKindCount; ++k)
      kind->addItem(nameOf(ColumnKind(k)));
    kind->setCurrentIndex(int(m_columns.kinds[i]));
    connect(kind, &QComboBox::activated, this, &EntryScreen::recognise);
    grid->addWidget(new QLabel(sampleOf(m_table, i)), 0, i + 1);
    grid->addWidget(kind, 1, i + 1);
    m_kinds << kind;
  }
  grid->addWidget(m_heading, 1, 0);
  grid->setColumnStretch(int(m_table.columns()) + 1, 1);
  connect(m_heading, &QCheckBox::clicked, this, &EntryScreen::recognise);
  auto *scroll = new QScrollArea;
  scroll->setWidget(inside);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFixedHeight(inside->sizeHint().height() + scroll->horizontalScrollBar()->sizeHint().height());
  return scroll;
}

QPushButton *EntryScreen::addChoice(QLayout *row, const char *name, const QString &caption, Choice choice) {
  auto *button = makeButton(name, caption);
  connect(button, &QPushButton::clicked, this, [this, choice] { chooseForSelected(choice); });
  row->addWidget(button);
  m_choices << button;
  return button;
}

QWidget *EntryScreen::makeChoices() {
  auto *inside = new QWidget;
  auto *rows = new QVBoxLayout(inside);
  rows->setContentsMargins(0, 0, 0, 0);
  m_line->setWordWrap(true);
  m_line->setMinimumHeight(2 * fontMetrics().height());
  rows->addWidget(m_line);
  auto *row = new QHBoxLayout;
  addChoice(row, "dieselbe", QStringLiteral("dieselbe Person"), Choice::Same);
  addChoice(row, "neue", QStringLiteral("neue Person"), Choice::New);
  addChoice(row, "weglassen", QStringLiteral("weglassen"), Choice::LeaveOut);
  row->addSpacing(20);
  row->addWidget(m_club);
  row->addWidget(m_makeAll);
  row->addStretch();
  rows->addLayout(row);
  connect(m_club, &QComboBox::activated, this, &EntryScreen::answerClub);
  connect(m_makeAll, &QPushButton::clicked, this, &EntryScreen::makeAllClubs);
  return inside;
}

QWidget *EntryScreen::makeButtons() {
  auto *inside = new QWidget;
  auto *row = new QHBoxLayout(inside);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_count, 1);
  row->addWidget(m_progress);
  m_progress->hide();
  row->addWidget(m_take);
  auto *cancel = makeButton("abbrechen", QStringLiteral("abbrechen"));
  row->addWidget(cancel);
  connect(m_take, &QPushButton::clicked, this, &EntryScreen::take);
  connect(cancel, &QPushButton::clicked, this, &QWidget::close);
  return inside;
}

// A kind that was given to another column leaves the one that had it.
void EntryScreen::recognise() {
  const auto *changed = sender();
  for (auto *kind : m_kinds)
    if (const auto *other = qobject_cast<const QComboBox *>(changed);
        other && kind != other && kind->currentIndex() == other->currentIndex())
      kind->setCurrentIndex(0);
  for (qsizetype i = 0; i < m_kinds.size(); ++i)
    m_columns.kinds[i] = ColumnKind(m_kinds[i]->currentIndex());
  m_columns.heading = m_heading->isChecked();
  m_model.setPlan(makePlan());
  fillClubs();
  m_view->resizeColumnsToContents();
  m_view->selectRow(0);
  showLine();
}

// Painted at once, without turning to other events, so that nothing can change meanwhile.
EntryProgress EntryScreen::progressFromNow() {
  QElapsedTimer time;
  time.start();
  return [this, time](qsizetype done, qsizetype all) {
    if (time.elapsed() < MomentOfWork || done % LinesAStep != 0)
      return;
    m_progress->setRange(0, int(all));
    m_progress->setValue(int(done));
    m_progress->show();
    m_progress->parentWidget()->layout()->activate();
    m_progress->parentWidget()->repaint();
  };
}

EntryPlan EntryScreen::makePlan() {
  const BusyPointer busy;
  EntryPlan plan = planFor(m_store, entriesOf(m_table, m_columns, m_store.umgebung.today()), progressFromNow());
  m_progress->hide();
  return plan;
}

void EntryScreen::fillClubs() {
  m_club->clear();
  m_club->addItem(QStringLiteral("Verein wählen …"), ClubAnswer::Open);
  m_club->addItem(QStringLiteral("als neuen Verein anlegen"), ClubAnswer::MakeNew);
  const QStringList clubs = clubChoices(m_store);
  for (int n = 1; n < clubs.size(); ++n)
    if (!clubs[n].isEmpty())
      m_club->addItem(clubs[n], n);
}

QList<int> EntryScreen::selectedLines() const {
  QList<int> lines;
  for (const auto &index : m_view->selectionModel()->selectedRows())
    lines << index.row();
  return lines;
}

void EntryScreen::chooseForSelected(Choice choice) {
  for (const int row : selectedLines()) {
    const PlannedEntry &line = m_model.plan().lines[row];
    if (line.verdict != Verdict::Refused && (choice != Choice::Same || line.record != 0))
      m_model.choose(row, choice);
  }
  showLine();
}

// The one for which the line waits; if for none, one that was answered.
QString EntryScreen::openClub() const {
  const auto lines = selectedLines();
  if (lines.isEmpty())
    return {};
  const PlannedEntry &line = m_model.plan().lines[lines.first()];
  if (const QString open = m_model.plan().openClub(line); !open.isEmpty())
    return foldedClub(open);
  for (const QString &text : line.entry.clubs)
    if (m_model.plan().unknownClubs.contains(foldedClub(text)))
      return foldedClub(text);
  return {};
}

void EntryScreen::answerClub() {
  m_model.answerClub(openClub(), m_club->currentData().toInt());
  showLine();
}

void EntryScreen::makeAllClubs() {
  const auto clubs = m_model.plan().unknownClubs;
  for (auto club = clubs.begin(); club != clubs.end(); ++club)
    if (club->club == ClubAnswer::Open)
      m_model.answerClub(club.key(), ClubAnswer::MakeNew);
  showLine();
}

void EntryScreen::showLine() {
  const auto lines = selectedLines();
  const bool any = !lines.isEmpty();
  const PlannedEntry line = any ? m_model.plan().lines[lines.first()] : PlannedEntry();
  const QStringList words = QStringList(wordsFor(m_store, m_model.plan(), line, m_race)) + line.entry.remarks;
  m_line->setText(any ? QStringLiteral("Zeile %1: %2 – %3")
                            .arg(line.entry.line)
                            .arg(line.entry.athlete.Name, words.join(QStringLiteral("; ")))
                      : QString());
  const bool choosable = any && line.verdict != Verdict::Refused;
  m_choices[0]->setEnabled(choosable && line.record != 0);
  m_choices[1]->setEnabled(choosable && line.verdict != Verdict::Known);
  m_choices[2]->setEnabled(choosable);
  const QString club = openClub();
  m_club->setEnabled(!club.isEmpty());
  m_club->setCurrentIndex(m_club->findData(m_model.plan().unknownClubs.value(club).club));
  showCount();
}

void EntryScreen::showCount() {
  const EntryCount all = count(m_model.plan());
  QString text = QStringLiteral("Übernommen werden %1: %2 neu, %3 aus dem Register.")
                     .arg(all.taken())
                     .arg(all.newPersons)
                     .arg(all.known);
  if (all.newClubs > 0)
    text += QStringLiteral(" Neue Vereine: %1.").arg(all.newClubs);
  if (all.open > 0)
    text += QStringLiteral(" Noch offen und nicht dabei: %1.").arg(all.open);
  if (all.leftOut > 0)
    text += QStringLiteral(" Weg bleiben: %1.").arg(all.leftOut);
  m_count->setText(text);
  m_take->setEnabled(m_race ? all.taken() > 0 : all.newPersons > 0);
  const auto &clubs = m_model.plan().unknownClubs;
  m_makeAll->setEnabled(std::any_of(clubs.begin(), clubs.end(),
                                    [](const ClubAnswer &answer) { return answer.club == ClubAnswer::Open; }));
}

void EntryScreen::take() {
  try {
    const BusyPointer busy;
    takeOver(m_store, m_model.plan(), m_race, progressFromNow());
  } catch (const Fault &fault) {
    m_progress->hide();
    QMessageBox::warning(this, windowTitle(), fault.report() + QStringLiteral(" Übernommen wurde nichts."));
    return;
  }
  Q_EMIT takenOver();
  close();
}

void EntryScreen::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    Screen::keyPressEvent(event);
}
