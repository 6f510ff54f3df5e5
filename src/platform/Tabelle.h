#pragma once

#include "platform/Faults.h"

#include <algorithm>
#include <array>
#include <vector>

/// The whole numbers from `first` to `last`, to be walked over.
class Numbered {
public:
  class Iterator {
  public:
    explicit constexpr Iterator(int at) : m_at(at) {}
    constexpr int operator*() const { return m_at; }
    constexpr Iterator &operator++() { return ++m_at, *this; }
    constexpr bool operator==(const Iterator &) const = default;

  private:
    int m_at;
  };

  constexpr Numbered(int first, int last) : m_first(first), m_last(last) {}
  constexpr Iterator begin() const { return Iterator(m_first); }
  constexpr Iterator end() const { return Iterator(m_last + 1); }

private:
  int m_first, m_last;
};

/// A table of fixed bounds `First` to `Last`, both inclusive. An index outside is a RangeFault that names the table.
template <typename T, int First, int Last> class Tabelle {
public:
  explicit Tabelle(const char *name) : m_name(name), m_rows(std::size_t(Last - First + 1)) {}

  T &operator[](int index) { return m_rows[position(index)]; }
  const T &operator[](int index) const { return m_rows[position(index)]; }

  /// The row, or an empty value behind the last one: for an index that a file may carry without harm.
  T valueOrEmpty(int index) const { return index > Last ? T() : (*this)[index]; }

  void fill(const T &value) { std::fill(m_rows.begin(), m_rows.end(), value); }
  static constexpr int last() { return Last; }
  /// The numbers of the rows, without a row 0.
  static constexpr Numbered rows() { return {std::max(First, 1), Last}; }

private:
  std::size_t position(int index) const {
    if (index < First || index > Last)
      throw RangeFault(QString::fromUtf8(m_name), index, First, Last);
    return std::size_t(index - First);
  }

  const char *m_name;
  std::vector<T> m_rows;
};

/// A table of two dimensions, such as person x round.
template <typename T, int FirstRow, int LastRow, int FirstColumn, int LastColumn> class Tabelle2 {
public:
  explicit Tabelle2(const char *name) : m_name(name), m_rows(std::size_t(LastRow - FirstRow + 1)) {}

  T &operator()(int row, int column) {
    return m_rows[place(row, FirstRow, LastRow)][place(column, FirstColumn, LastColumn)];
  }
  const T &operator()(int row, int column) const {
    return m_rows[place(row, FirstRow, LastRow)][place(column, FirstColumn, LastColumn)];
  }

  void fill(const T &value) {
    for (auto &row : m_rows)
      row.fill(value);
  }

private:
  std::size_t place(int index, int first, int last) const {
    if (index < first || index > last)
      throw RangeFault(QString::fromUtf8(m_name), index, first, last);
    return std::size_t(index - first);
  }

  const char *m_name;
  std::vector<std::array<T, LastColumn - FirstColumn + 1>> m_rows;
};
