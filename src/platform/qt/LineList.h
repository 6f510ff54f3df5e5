#pragma once

#include "platform/ListTable.h"

#include <QAbstractListModel>
#include <QListView>

#include <functional>

/// The lines of a list, one text each.
class LineModel : public QAbstractListModel {
  Q_OBJECT

public:
  using QAbstractListModel::QAbstractListModel;
  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  const QStringList &lines() const { return m_lines; }
  void setLines(QStringList lines);

private:
  QStringList m_lines;
};

/// A list of text lines; 30,000 of them feel instant. A line that ends in at least five blanks and a number (its row or
/// record) is drawn with that number pale at the right edge; its text stays whole.
///
/// Ctrl+C copies the chosen lines; the context menu has the actions that were added to the widget, and the whole list
/// for the clipboard or as a table in a file.
class LineList : public QListView {
  Q_OBJECT

public:
  explicit LineList(QWidget *parent = nullptr);

  /// Sets the lines anew: nothing is chosen, the scroll position is kept.
  void fill(QStringList lines);
  /// The same with the line that ends in `number` highlighted, without scrolling to it.
  void refill(QStringList lines, int number);
  /// The numbers at the end of the lines are not painted at all.
  void hideNumbers();
  /// Lines that end in a value of their own, which stays where it stands.
  void showWholeLines();
  /// Saved as a table, the list gives this one instead of its lines.
  void saveAs(std::function<QList<QStringList>()> table) { m_table = std::move(table); }
  /// Highlights a line (from 0; −1 = none) without `chosen`, and scrolls to it.
  void choose(int line);
  /// Highlights the line that ends in `number`; none if there is none.
  void chooseByNumber(int number);
  /// Position of the line that ends in `number`, −1 if there is none.
  int lineOfNumber(int number) const;
  const QStringList &lines() const { return m_model.lines(); }
  /// The highlighted line, from 0; −1 = none.
  int chosenLine() const { return currentIndex().row(); }
  /// Chooses a line as a press on it does.
  void pick(int line);
  /// The next arrow key starts from here although no line is chosen, until the list is filled anew.
  void startKeysAt(int line) { m_keysFrom = line; }
  /// The width of its lines in pixels; on a small monitor it gives way a little.
  void setGoodWidth(int lines);
  QSize sizeHint() const override;
  /// The press that follows before the next painting aims at the lines as they are now, whatever fills the list until
  /// then: it finds its line again by the number at the end.
  void aim();

Q_SIGNALS:
  /// The operator chose a line: a left press, also on the line already chosen, or keys. Never by code, never by focus.
  void chosen(int line);
  /// Comes after `chosen`.
  void doubleChosen(int line);

protected:
  void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void contextMenuEvent(QContextMenuEvent *event) override;
  bool event(QEvent *event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;

private:
  QModelIndex aimedAt(QPoint at);
  QStringList shown(const QStringList &lines) const;
  void saveAsTable();

  LineModel m_model;
  std::function<QList<QStringList>()> m_table = [this] { return tableOf(shown(lines())); };
  int m_goodWidth = 0;
  bool m_byCode = false;
  int m_keysFrom = -1;
  QStringList m_aimedLines;
};

/// A list whose lines are marked each for itself, by a click or the blank key; arrow keys mark nothing.
class MarkList : public LineList {
  Q_OBJECT

public:
  explicit MarkList(QWidget *parent = nullptr);
  /// Marked lines, ascending from 0.
  QList<int> marked() const;
  void setMarked(int line, bool on);

Q_SIGNALS:
  /// The operator toggled a line.
  void markToggled(int line);

protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
  void mousePressEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
};
