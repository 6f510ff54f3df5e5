#pragma once

#include <QPixmap>
#include <QWidget>

/// Shows a picture as large as it fits, undistorted and centred. The file is read when it is first painted.
class Picture : public QWidget {
  Q_OBJECT

public:
  using QWidget::QWidget;
  /// A file or resource; one that cannot be read shows nothing.
  void setFile(const QString &path);
  QSize sizeHint() const override { return {480, 360}; }
  QSize minimumSizeHint() const override { return {160, 120}; }

protected:
  void paintEvent(QPaintEvent *event) override;

private:
  QString m_path;
  QPixmap m_pixmap;
};
