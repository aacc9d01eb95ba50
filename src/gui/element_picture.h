#pragma once

#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QWidget>
#include <utility>
#include <vector>

class QPainter;

namespace linecalc::gui {

// Draws the schematic picture of a catalogue picture number into rect; false (nothing drawn) for an unknown number.
bool drawElementPicture(QPainter& painter, const QRectF& rect, int pictureNumber);

// The picture on a white pixmap of the given size.
QPixmap elementPixmap(int pictureNumber, QSize size);

// A contact sheet: every picture with its caption below it, in a grid of `columns` columns.
QImage pictureContactSheet(const std::vector<std::pair<int, QString>>& pictures, int columns,
                           QSize cell = QSize(220, 170));

// The picture of the element panel: shows one picture number, scales with its size.
class ElementPictureWidget : public QWidget {
  Q_OBJECT
 public:
  explicit ElementPictureWidget(QWidget* parent = nullptr);
  void setPictureNumber(int n);
  int pictureNumber() const;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int pictureNumber_ = 0;
};

}  // namespace linecalc::gui
