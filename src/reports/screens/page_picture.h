#pragma once
#include <QWidget>

#include "reports/canvas.h"

/// A sheet of paper on the screen, an inch to 96 pixels, as sharp as the screen is.
class PagePicture : public QWidget {
 public:
  explicit PagePicture(QWidget* parent);

  void SetPage(const Pages& pages, int number);  ///< number from 1

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Page page_;
};
