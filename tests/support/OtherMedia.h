#pragma once

#include "platform/print/CsvFile.h"
#include "platform/print/HtmlFile.h"
#include "support/Print.h"

#include <algorithm>

/// What a list tells other media than paper, compared with its paper.
class OtherMedia {
public:
  explicit OtherMedia(const Recording &recording) : m_recording(recording) {}

  /// Whatever differs, in words.
  QStringList differences() const {
    if (m_recording.list.columns.isEmpty()) // no list
      return {};
    QStringList found;
    const QString html = QString::fromUtf8(htmlOf(m_recording, QDateTime(QDate(2026, 1, 15), QTime(12, 0))));
    const QString csv = csvOf(m_recording);
    qsizetype rows = 0;
    for (const auto &section : m_recording.list.sections)
      for (const QStringList &row : section.rows) {
        ++rows;
        if (!isOnPaper(row))
          found << QString("not on paper: ") + row.join(u'|');
        for (const QString &cell : section.values + row)
          if (!html.contains(cell.toHtmlEscaped()) || !csv.contains(QString(cell).replace(u'"', "\"\"")))
            found << QString("not in a file: ") + cell;
      }
    if (rows != namesOnPaper())
      found << QString("%1 rows, %2 on paper").arg(rows).arg(namesOnPaper());
    return found;
  }

private:
  static constexpr double RowHeight = 4.4, HeadEnd = 40;
  using Texts = QList<std::pair<int, TextOperation>>; // with their pages

  // A club may be cut on paper.
  static bool shows(const QStringList &line, const QString &cell) {
    const QString whole = line.join(u'|');
    const QStringList words = cell.split(u' ');
    return std::all_of(words.begin(), words.end(), [&](const QString &word) { return whole.contains(word); }) ||
           std::any_of(line.begin(), line.end(),
                       [&](const QString &text) { return text.size() > 2 && cell.startsWith(text); });
  }

  bool isOnPaper(const QStringList &row) const {
    const Texts texts = all();
    return std::any_of(texts.begin(), texts.end(), [&](const auto &first) {
      const QStringList line = lineAt(texts, first.first, first.second.y);
      return std::all_of(row.begin(), row.end(), [&](const QString &cell) { return shows(line, cell); });
    });
  }

  static QStringList lineAt(const Texts &texts, int page, double y) {
    QStringList line;
    for (const auto &[onPage, text] : texts)
      if (onPage == page && text.y > y - 0.5 && text.y < y + RowHeight)
        line << text.text.trimmed();
    return line;
  }

  /// How many names stand below the heads, each at the place of the first one.
  qsizetype namesOnPaper() const {
    const QStringList names = namesInRows();
    const Texts texts = all();
    const auto isName = [&](const auto &text) {
      return text.second.y > HeadEnd && names.contains(text.second.text.trimmed());
    };
    const auto first = std::find_if(texts.begin(), texts.end(), isName);
    return std::count_if(texts.begin(), texts.end(),
                         [&](const auto &text) { return isName(text) && text.second.x == first->second.x; });
  }

  QStringList namesInRows() const {
    const auto &columns = m_recording.list.columns;
    qsizetype name = 0;
    while (!columns[name].head.startsWith("Name") && columns[name].head != "Läufer")
      ++name;
    QStringList names;
    for (const auto &section : m_recording.list.sections)
      for (const QStringList &row : section.rows)
        names << row[name];
    return names;
  }

  Texts all() const {
    Texts texts;
    for (int page = 0; page < int(m_recording.pages.size()); ++page)
      for (const PrintOperation &operation : m_recording.pages[page])
        if (const auto *text = std::get_if<TextOperation>(&operation))
          texts.append({page, *text});
    return texts;
  }

  const Recording &m_recording;
};
