#include "platform/print/Recording.h"

#include <QFileInfo>

namespace {

QString positions(std::initializer_list<double> values) {
  QString text;
  for (const double value : values)
    text += QLatin1Char(' ') + QString::number(value, 'f', 2);
  return text;
}

QString hex(unsigned color) {
  return QStringLiteral(" %1").arg(color, 6, 16, QLatin1Char('0')).toUpper();
}

struct Describe {
  QString operator()(const TextOperation &o) const {
    return QStringLiteral("text") + positions({o.x, o.y}) + QLatin1Char(' ') + o.font.name + QLatin1Char(' ') +
           QString::number(o.font.size) + (o.font.bold ? QStringLiteral(" bold") : QString()) +
           (o.font.italic ? QStringLiteral(" italic") : QString()) + QStringLiteral(" |") + o.text + QLatin1Char('|');
  }
  QString operator()(const LineOperation &o) const {
    return QStringLiteral("line") + positions({o.x1, o.y1, o.x2, o.y2}) + width(o.lineWidth) + hex(o.color);
  }
  QString operator()(const BoxOperation &o) const {
    return QStringLiteral("box") + positions({o.x1, o.y1, o.x2, o.y2}) + width(o.lineWidth) + hex(o.color);
  }
  QString operator()(const FillOperation &o) const {
    return QStringLiteral("fill") + positions({o.x1, o.y1, o.x2, o.y2}) + hex(o.color);
  }
  QString operator()(const PictureOperation &o) const {
    return QStringLiteral("picture") + positions({o.x, o.y, o.width, o.height}) + QLatin1Char(' ') +
           QFileInfo(o.path).fileName();
  }

private:
  static QString width(int lineWidth) { return QStringLiteral(" width %1").arg(lineWidth); }
};

} // namespace

void RecordedList::begin(const QStringList &names, const QStringList &values) {
  if (sections.isEmpty() || sections.last().values != values)
    sections.append({names, values, {}});
}

void RecordedList::add(const QStringList &row) {
  if (sections.isEmpty())
    sections.append(RecordedSection());
  sections.last().rows.append(row);
}

QStringList asText(const Recording &recording) {
  QStringList lines;
  for (const PrintPage &page : recording.pages) {
    lines.append(recording.landscape ? QStringLiteral("page landscape") : QStringLiteral("page"));
    for (const PrintOperation &operation : page)
      lines.append(std::visit(Describe(), operation));
  }
  return lines;
}
