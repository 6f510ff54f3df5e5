#include "person/Person.h"

namespace {

QPoint middleOf(QAbstractItemView *list, int line) {
  const QModelIndex index = list->model()->index(line, 0);
  list->scrollTo(index);
  return list->visualRect(index).center();
}

} // namespace

QWidget *Person::window(const QString &name) {
  for (auto *widget : QApplication::topLevelWidgets())
    if (widget->objectName() == name && widget->isVisible())
      return widget;
  return nullptr;
}

void Person::type(QWidget *field, const QString &text) {
  QTest::mouseClick(field, Qt::LeftButton);
  QTest::keySequence(field, QKeySequence(QKeySequence::SelectAll));
  QTest::keyClicks(field, text);
}

void Person::chooseLine(QAbstractItemView *list, int line) {
  const QPoint place = middleOf(list, line);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
}

void Person::doubleClickLine(QAbstractItemView *list, int line) {
  chooseLine(list, line);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, middleOf(list, line));
}
