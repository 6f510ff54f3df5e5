#include "platform/qt/LineList.h"

#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/qt/Look.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <optional>

namespace {

constexpr int GapBeforeNumber = 5;
constexpr int GoodHeight = 22;      // lines
constexpr int SmallestPercent = 80; // of the good width

/// Where the trailing number of a line begins; nothing if the line has none.
std::optional<qsizetype> numberStart(const QString &line) {
  qsizetype start = line.size();
  while (start > 0 && line[start - 1].isDigit())
    --start;
  const qsizetype gap = start - GapBeforeNumber;
  if (start == line.size() || gap < 0 || !trimmedBlanks(QStringView(line).sliced(gap, GapBeforeNumber)).isEmpty())
    return {};
  return start;
}

/// What stands before the number, without the blanks between.
QString withoutGap(const QString &line, qsizetype numberStart) {
  while (numberStart > 0 && line[numberStart - 1] == QLatin1Char(' '))
    --numberStart;
  return line.left(numberStart);
}

/// Draws the number at the end of a line pale at the right edge, if there is room.
class LineDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    const QString line = index.data().toString();
    const auto start = numberStart(line);
    QStyledItemDelegate::paint(painter, option, index);
    if (!start || numbers != Numbers::Pale)
      return;
    const QRect area = option.rect.adjusted(0, 0, -6, 0);
    if (option.fontMetrics.horizontalAdvance(withoutGap(line, *start) + line.mid(*start - 1)) > area.width())
      return;
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter->setFont(option.font);
    painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::PlaceholderText));
    painter->drawText(area, int(Qt::AlignRight | Qt::AlignVCenter), line.mid(*start));
  }

  /// The text of a line as the operator knows it.
  QString shown(const QString &line) const {
    const auto start = numberStart(line);
    return shownText(start && numbers == Numbers::Hidden ? withoutGap(line, *start) : line);
  }

  enum class Numbers { Pale, Hidden, PartOfTheLine } numbers = Numbers::Pale;

protected:
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (const auto start = numberStart(option->text); start && numbers != Numbers::PartOfTheLine)
      option->text = option->text.left(*start);
    option->text = shownText(option->text);
  }
};

} // namespace

int LineModel::rowCount(const QModelIndex &parent) const {
  return parent.isValid() ? 0 : int(m_lines.size());
}

QVariant LineModel::data(const QModelIndex &index, int role) const {
  return role == Qt::DisplayRole ? QVariant(m_lines.at(index.row())) : QVariant();
}

void LineModel::setLines(QStringList lines) {
  beginResetModel();
  m_lines = std::move(lines);
  endResetModel();
}

LineList::LineList(QWidget *parent) : QListView(parent) {
  setModel(&m_model);
  setItemDelegate(new LineDelegate(this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setCurrentIndex({});
}

void LineList::fill(QStringList lines) {
  const int scrolled = verticalScrollBar()->value();
  m_model.setLines(std::move(lines));
  m_keysFrom = -1;
  choose(-1);
  verticalScrollBar()->setValue(scrolled);
}

void LineList::refill(QStringList lines, int number) {
  setAutoScroll(false);
  fill(std::move(lines));
  chooseByNumber(number);
  setAutoScroll(true);
}

void LineList::hideNumbers() {
  static_cast<LineDelegate *>(itemDelegate())->numbers = LineDelegate::Numbers::Hidden;
}

void LineList::showWholeLines() {
  static_cast<LineDelegate *>(itemDelegate())->numbers = LineDelegate::Numbers::PartOfTheLine;
}

void LineList::choose(int line) {
  m_byCode = true;
  setCurrentIndex(line < 0 ? QModelIndex() : m_model.index(line));
  if (line < 0)
    clearSelection();
  m_byCode = false;
}

void LineList::chooseByNumber(int number) {
  choose(lineOfNumber(number));
}

int LineList::lineOfNumber(int number) const {
  const auto found = std::find_if(lines().begin(), lines().end(),
                                  [number](const QString &line) { return numberAtEnd(line) == number; });
  return found == lines().end() ? -1 : int(found - lines().begin());
}

void LineList::setGoodWidth(int lines) {
  m_goodWidth = lines + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
  setMinimumWidth(m_goodWidth * SmallestPercent / 100);
}

QSize LineList::sizeHint() const {
  return {m_goodWidth > 0 ? m_goodWidth : QListView::sizeHint().width(), GoodHeight * fontMetrics().height()};
}

void LineList::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
  QListView::currentChanged(current, previous);
  if (!m_byCode && current.isValid())
    Q_EMIT chosen(current.row());
}

// The press that gives this list the focus first makes another field store its value, which may refill this very list:
// the lines that the operator aimed at are kept for the press that follows.
void LineList::focusInEvent(QFocusEvent *event) {
  if (event->reason() == Qt::MouseFocusReason)
    aim();
  QListView::focusInEvent(event);
  update();
}

// One press may activate the window and then bring the focus here, and each may refill: the first lines are the ones
// that were seen.
void LineList::aim() {
  if (m_aimedLines.isEmpty())
    m_aimedLines = lines();
}

void LineList::focusOutEvent(QFocusEvent *event) {
  QListView::focusOutEvent(event);
  update();
}

// What has been painted since is what the operator sees.
void LineList::paintEvent(QPaintEvent *event) {
  m_aimedLines.clear();
  QListView::paintEvent(event);
}

// A list without a chosen line shows by its frame that it has the focus.
bool LineList::event(QEvent *event) {
  const bool handled = QListView::event(event);
  if (event->type() == QEvent::Paint && hasFocus()) {
    QPainter painter(this);
    Look::drawFrame(painter, rect(), palette().color(QPalette::Highlight), Look::FocusWidth);
  }
  return handled;
}

QModelIndex LineList::aimedAt(QPoint at) {
  const QStringList before = std::exchange(m_aimedLines, {});
  const QModelIndex now = indexAt(at);
  if (before.isEmpty() || before == lines())
    return now;
  const int height = sizeHintForRow(0);
  const int line = height > 0 ? (at.y() + verticalOffset()) / height : -1;
  if (line < 0 || line >= before.size())
    return {};
  const bool numbered =
      !before[line].isEmpty() && before[line].back().isDigit(); // other lines are known by their position alone
  return m_model.index(numbered ? lineOfNumber(numberAtEnd(before[line])) : line);
}

// With nothing chosen yet, Qt would go to the first line by every key.
QModelIndex LineList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int last = int(lines().size()) - 1;
  if (currentIndex().isValid())
    return QListView::moveCursor(action, modifiers);
  if (action == MoveEnd)
    return m_model.index(last);
  if (m_keysFrom >= 0 && (action == MoveDown || action == MoveUp))
    return m_model.index(std::clamp(action == MoveDown ? m_keysFrom : m_keysFrom - 1, 0, std::max(last, 0)));
  return QListView::moveCursor(action, modifiers);
}

QStringList LineList::shown(const QStringList &lines) const {
  QStringList texts;
  for (const QString &line : lines)
    texts << static_cast<LineDelegate *>(itemDelegate())->shown(line);
  return texts;
}

void LineList::keyPressEvent(QKeyEvent *event) {
  if (!event->matches(QKeySequence::Copy))
    return QListView::keyPressEvent(event);
  QModelIndexList chosen = selectedIndexes();
  std::sort(chosen.begin(), chosen.end());
  QStringList texts;
  for (const QModelIndex &index : chosen)
    texts << lines()[index.row()];
  QGuiApplication::clipboard()->setText(clipboardText(shown(texts)));
}

void LineList::contextMenuEvent(QContextMenuEvent *event) {
  auto *menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addActions(actions());
  menu->addSeparator();
  menu->addAction(QStringLiteral("Liste kopieren"), this,
                  [this] { QGuiApplication::clipboard()->setText(clipboardText(shown(lines()))); });
  menu->addAction(QStringLiteral("Als Tabelle (CSV) speichern …"), this, &LineList::saveAsTable);
  menu->popup(event->globalPos());
}

void LineList::saveAsTable() {
  QFileDialog dialog(this, QStringLiteral("Als Tabelle speichern"), {}, QStringLiteral("Tabellen (*.csv)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("csv"));
  dialog.selectFile(QStringLiteral("Liste.csv"));
  if (dialog.exec() == QDialog::Rejected)
    return;
  try {
    replaceFile(dialog.selectedFiles().first(), csvOf(m_table()));
  } catch (const Fault &fault) {
    QMessageBox::warning(this, QStringLiteral("Als Tabelle speichern"), fault.report());
  }
}

void LineList::pick(int line) {
  const QModelIndex index = m_model.index(line);
  const bool again = index == currentIndex();
  setCurrentIndex(index);
  if (again)
    Q_EMIT chosen(line);
}

void LineList::mousePressEvent(QMouseEvent *event) {
  const QModelIndex index = aimedAt(event->pos());
  if (event->button() == Qt::LeftButton && index.isValid())
    pick(index.row());
}

void LineList::mouseMoveEvent(QMouseEvent *) {} // no choosing by dragging

void LineList::mouseDoubleClickEvent(QMouseEvent *event) {
  const QModelIndex index = indexAt(event->pos());
  m_aimedLines.clear();
  if (event->button() != Qt::LeftButton || !index.isValid())
    return;
  setCurrentIndex(index);
  Q_EMIT doubleChosen(index.row());
}

QItemSelectionModel::SelectionFlags LineList::selectionCommand(const QModelIndex &index, const QEvent *) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

MarkList::MarkList(QWidget *parent) : LineList(parent) {
  setSelectionMode(MultiSelection);
}

QList<int> MarkList::marked() const {
  QList<int> rows;
  for (const auto &index : selectionModel()->selectedIndexes())
    rows.append(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

void MarkList::setMarked(int line, bool on) {
  selectionModel()->select(model()->index(line, 0), on ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

QItemSelectionModel::SelectionFlags MarkList::selectionCommand(const QModelIndex &, const QEvent *) const {
  return QItemSelectionModel::NoUpdate;
}

void MarkList::mousePressEvent(QMouseEvent *event) {
  const QModelIndex index = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !index.isValid())
    return;
  setCurrentIndex(index);
  selectionModel()->select(index, QItemSelectionModel::Toggle);
  Q_EMIT markToggled(index.row());
}

void MarkList::keyPressEvent(QKeyEvent *event) {
  if (event->matches(QKeySequence::SelectAll)) // each line is marked for itself
    return;
  if (event->key() == Qt::Key_Space && !currentIndex().isValid())
    choose(0);
  if (event->key() != Qt::Key_Space || !currentIndex().isValid())
    return LineList::keyPressEvent(event);
  selectionModel()->select(currentIndex(), QItemSelectionModel::Toggle);
  Q_EMIT markToggled(currentIndex().row());
}
