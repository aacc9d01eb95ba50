#include "element_picture.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <array>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui {

namespace picture {

const PictureEntry* findPicture(int number) {
  const std::array families{straightPipePictures(), bendPictures(),        branchPictures(),
                            valvePictures(),        restrictionPictures(), screenPictures()};
  for (const auto& family : families) {
    const auto found = std::ranges::find(family, number, &PictureEntry::number);
    if (found != family.end()) return &*found;
  }
  return nullptr;
}

}  // namespace picture

namespace {

constexpr int kCaptionHeight = 34;
constexpr int kWidgetMargin = 4;

}  // namespace

bool drawElementPicture(QPainter& painter, const QRectF& rect, int pictureNumber) {
  const picture::PictureEntry* entry = picture::findPicture(pictureNumber);
  if (!entry || rect.isEmpty()) return false;
  painter.save();
  // The canvas keeps its proportions and sits in the middle of the rectangle.
  const double scale = std::min(rect.width() / picture::kCanvasWidth, rect.height() / picture::kCanvasHeight);
  painter.translate(rect.center());
  painter.scale(scale, scale);
  painter.translate(-picture::kCanvasWidth / 2, -picture::kCanvasHeight / 2);
  painter.setClipRect(QRectF(0, 0, picture::kCanvasWidth, picture::kCanvasHeight), Qt::IntersectClip);
  picture::Sketch sketch(painter);
  entry->draw(sketch);
  painter.restore();
  return true;
}

QPixmap elementPixmap(int pictureNumber, QSize size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::white);
  QPainter painter(&pixmap);
  drawElementPicture(painter, QRectF(QPointF(0, 0), QSizeF(size)), pictureNumber);
  return pixmap;
}

QImage pictureContactSheet(const std::vector<std::pair<int, QString>>& pictures, int columns, QSize cell) {
  if (pictures.empty() || columns < 1 || cell.isEmpty()) return {};
  const int count = static_cast<int>(pictures.size());
  const int rows = (count + columns - 1) / columns;
  QImage sheet(columns * cell.width(), rows * cell.height(), QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  QFont captionFont = painter.font();
  captionFont.setPixelSize(11);
  for (int index = 0; index < count; ++index) {
    const QRect box(QPoint(index % columns * cell.width(), index / columns * cell.height()), cell);
    const QRect pictureBox = box.adjusted(4, 4, -4, -kCaptionHeight);
    const QRect captionBox(pictureBox.left(), pictureBox.bottom() + 2, pictureBox.width(), kCaptionHeight - 4);
    drawElementPicture(painter, pictureBox, pictures[index].first);
    painter.setFont(captionFont);
    painter.setPen(Qt::black);
    painter.drawText(captionBox, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, pictures[index].second);
    painter.setPen(QColor(210, 210, 210));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
  }
  return sheet;
}

ElementPictureWidget::ElementPictureWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(100, 70);
}

void ElementPictureWidget::setPictureNumber(int n) {
  if (n == pictureNumber_) return;
  pictureNumber_ = n;
  update();
}

int ElementPictureWidget::pictureNumber() const {
  return pictureNumber_;
}

QSize ElementPictureWidget::sizeHint() const {
  return {240, 168};
}

void ElementPictureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  drawElementPicture(painter, QRectF(rect()).adjusted(kWidgetMargin, kWidgetMargin, -kWidgetMargin, -kWidgetMargin),
                     pictureNumber_);
}

}  // namespace linecalc::gui
