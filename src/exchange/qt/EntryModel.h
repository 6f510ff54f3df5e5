#pragma once

#include "exchange/EntryPlan.h"

#include <QAbstractTableModel>

/// The preview of a table of entries: for each line what will happen, by sign, words and colour, and how the register
/// will keep it.
class EntryModel : public QAbstractTableModel {
  Q_OBJECT

public:
  /// `race`: the persons are entered into the open race as well.
  EntryModel(const Store &store, bool race) : m_store(store), m_race(race) {}

  const EntryPlan &plan() const { return m_plan; }
  void setPlan(EntryPlan plan);
  void choose(int line, Choice choice);
  /// Answers for a club of the table, by its folded name.
  void answerClub(const QString &folded, int club);

  int rowCount(const QModelIndex &parent = {}) const override;
  int columnCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  QString text(const PlannedEntry &line, int column) const;
  void linesChanged();

  const Store &m_store;
  const bool m_race;
  EntryPlan m_plan;
};
