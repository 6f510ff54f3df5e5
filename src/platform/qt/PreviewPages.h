#pragma once

#include "platform/print/Recording.h"

#include <QAbstractScrollArea>

/// The pages of documents one below the other, as they come out on paper. Only what is visible is painted.
class PreviewPages : public QAbstractScrollArea {
  Q_OBJECT

public:
  /// What the size of the pages follows, also after the size of the view changes; zooming ends it.
  enum class Fit { None, Width, Page };

  /// What a key or a button makes pages larger by.
  static constexpr double ZoomStep = 1.25;

  explicit PreviewPages(QWidget *parent = nullptr);

  void append(const Recording &recording);
  void clear();
  int pageCount() const { return int(m_sheets.size()); }
  /// The page that fills the upper part of the view, from 0; −1 if there is none.
  int currentPage() const;
  /// Scrolls to the top of a page; held to those there are.
  void showPage(int page);
  /// Makes pages larger or smaller around what is seen.
  void zoom(double factor);
  void fit(Fit fit);
  /// What a key does to the pages; false if it means nothing here.
  bool obey(int key);

Q_SIGNALS:
  /// Another page may be the current one, or there are more.
  void moved();

protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  struct Sheet {
    PrintPage page;
    QSizeF size; ///< Millimetres.
    double top;  ///< Millimetres of pages above it.
  };

  QSizeF largest() const;
  double fitting() const;
  QRectF place(int page) const;
  void arrange();
  void drawSheet(QPainter &painter, int page) const;

  QList<Sheet> m_sheets;
  double m_pixels = 1; ///< A millimetre.
  Fit m_fit = Fit::Page;
};
