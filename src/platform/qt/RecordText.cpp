#include "platform/qt/RecordText.h"

#include "platform/Numbers.h"

#include <QLineEdit>
#include <QVariant>

namespace {

constexpr auto ShownText = "shownText";

} // namespace

void RecordText::show(QLineEdit *field, const QString &text) {
  field->setProperty(ShownText, text);
  field->setText(shownText(text));
  field->setCursorPosition(0);
}

QString RecordText::of(QLineEdit *field) {
  const QString shown = field->property(ShownText).toString();
  if (shownText(shown) == field->text())
    return shown;
  field->setProperty(ShownText, field->text());
  return field->text();
}
