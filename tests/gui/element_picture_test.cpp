#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <vector>

#include "catalogue/element_catalogue.h"
#include "element_picture.h"
#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui {
namespace {

const QSize kPictureSize(200, 140);
const QColor kFlowBlue(21, 101, 192);     // the flow arrow
const QColor kMediumBlue(214, 234, 248);  // the flowing medium

std::vector<int> cataloguePictureNumbers() {
  std::set<int> numbers;
  for (const ElementDefinition& element : allElements()) numbers.insert(element.picture);
  return {numbers.begin(), numbers.end()};
}

QImage whiteImage(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

QImage render(int number, QSize size = kPictureSize) {
  return elementPixmap(number, size).toImage().convertToFormat(QImage::Format_RGB32);
}

bool isInk(QRgb pixel) {
  return pixel != qRgb(255, 255, 255);
}

bool near(QRgb pixel, const QColor& colour) {
  return std::abs(qRed(pixel) - colour.red()) <= 3 && std::abs(qGreen(pixel) - colour.green()) <= 3 &&
         std::abs(qBlue(pixel) - colour.blue()) <= 3;
}

template <typename Predicate>
int countPixels(const QImage& image, const QRect& area, Predicate predicate) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) count += predicate(image.pixel(x, y)) ? 1 : 0;
  }
  return count;
}

int inkPixels(const QImage& image) {
  return countPixels(image, image.rect(), isInk);
}

QRect inkBounds(const QImage& image) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (isInk(image.pixel(x, y))) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds;
}

double differingShare(const QImage& first, const QImage& second) {
  int differing = 0;
  for (int y = 0; y < first.height(); ++y) {
    for (int x = 0; x < first.width(); ++x) differing += first.pixel(x, y) != second.pixel(x, y) ? 1 : 0;
  }
  return double(differing) / (first.width() * first.height());
}

// The letter a row's label ends with: " D1:" -> "D1", ":" -> "".
QString rowLetter(std::string_view suffix) {
  return QString::fromUtf8(suffix.data(), qsizetype(suffix.size())).remove(QLatin1Char(':')).trimmed();
}

QStringList labelsOf(int number) {
  const picture::PictureEntry* entry = picture::findPicture(number);
  if (!entry) return {};
  QImage image = whiteImage(kPictureSize);
  QPainter painter(&image);
  picture::Sketch sketch(painter);
  entry->draw(sketch);
  return sketch.labels();
}

// --- every picture of the catalogue ---------------------------------------------------------------

class CataloguePicture : public ::testing::TestWithParam<int> {};

TEST_P(CataloguePicture, DrawsOverMostOfItsCanvas) {
  QImage image = whiteImage(kPictureSize);
  QPainter painter(&image);
  EXPECT_TRUE(drawElementPicture(painter, QRectF(QPointF(0, 0), QSizeF(kPictureSize)), GetParam()));
  painter.end();
  EXPECT_GT(inkPixels(image), image.width() * image.height() / 8) << "hardly anything drawn";
  EXPECT_GT(inkBounds(image).width(), image.width() * 6 / 10) << "the drawing is squeezed into a corner";
}

TEST_P(CataloguePicture, ShowsTheMediumAndItsFlowDirection) {
  const QImage image = render(GetParam());
  EXPECT_GT(countPixels(image, image.rect(), [](QRgb pixel) { return near(pixel, kFlowBlue); }), 25);
  EXPECT_GT(countPixels(image, image.rect(), [](QRgb pixel) { return near(pixel, kMediumBlue); }), 400);
}

TEST_P(CataloguePicture, LabelsEveryDimensionItsElementsAskFor) {
  const QStringList labels = labelsOf(GetParam());
  for (const ElementDefinition& element : allElements()) {
    if (element.picture != GetParam()) continue;
    for (const PanelRow& row : element.rows) {
      const QString letter = rowLetter(row.suffix);
      if (!row.used() || letter.isEmpty()) continue;
      EXPECT_TRUE(labels.contains(letter)) << "element (" << element.group << "," << element.nr << ") asks for "
                                           << letter.toStdString() << ", drawn: " << labels.join(' ').toStdString();
    }
  }
}

// Letters a picture may show besides its elements' rows: the section numbers of the dynamic
// pressure changes, the coefficient's sign and the venturi diffuser's angle (a choice, not a row).
QStringList annotationsBesidesRows(int number) {
  switch (number) {
    case 3202:
    case 3203:
      return {"1", "2"};
    case 2802:
      return {QString(QChar(0x03B6))};
    case 2606:
      return {"w"};
    default:
      return {};
  }
}

TEST_P(CataloguePicture, WritesNoLetterItsElementsDoNotKnow) {
  QStringList known = annotationsBesidesRows(GetParam());
  for (const ElementDefinition& element : allElements()) {
    if (element.picture != GetParam()) continue;
    for (const PanelRow& row : element.rows) known << rowLetter(row.suffix);
  }
  for (const QString& label : labelsOf(GetParam())) {
    EXPECT_TRUE(known.contains(label)) << "picture " << GetParam() << " writes " << label.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(AllElements, CataloguePicture, ::testing::ValuesIn(cataloguePictureNumbers()),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return "Picture" + std::to_string(info.param);
                         });

TEST(ElementPicture, DrawsExactlyTheCataloguePictures) {
  std::multiset<int> drawn;
  for (const auto& family : {picture::straightPipePictures(), picture::bendPictures(), picture::branchPictures(),
                             picture::valvePictures(), picture::restrictionPictures(), picture::screenPictures()}) {
    for (const picture::PictureEntry& entry : family) drawn.insert(entry.number);
  }
  const std::vector<int> catalogue = cataloguePictureNumbers();
  EXPECT_EQ(std::vector<int>(drawn.begin(), drawn.end()), catalogue) << "a picture is missing, extra or drawn twice";
}

TEST(ElementPicture, EveryPictureLooksDifferentFromEveryOther) {
  const std::vector<int> numbers = cataloguePictureNumbers();
  std::vector<QImage> images;
  for (int number : numbers) images.push_back(render(number));
  for (size_t i = 0; i < images.size(); ++i) {
    for (size_t j = i + 1; j < images.size(); ++j) {
      const double share = differingShare(images[i], images[j]);
      EXPECT_GT(share, 0.01) << numbers[i] << " and " << numbers[j] << " look alike: " << share;
    }
  }
}

TEST(ElementPicture, UnknownNumbersDrawNothing) {
  for (int number : {0, -1, 9999, 1600, 1607, 2607, 2803, 26052}) {
    QImage image = whiteImage(kPictureSize);
    QPainter painter(&image);
    EXPECT_FALSE(drawElementPicture(painter, QRectF(0, 0, 200, 140), number)) << number;
    painter.end();
    EXPECT_EQ(inkPixels(image), 0) << number;
    EXPECT_EQ(inkPixels(render(number)), 0) << number;
  }
}

TEST(ElementPicture, AnEmptyRectangleDrawsNothing) {
  QImage image = whiteImage(kPictureSize);
  QPainter painter(&image);
  EXPECT_FALSE(drawElementPicture(painter, QRectF(20, 20, 0, 50), 1601));
  EXPECT_FALSE(drawElementPicture(painter, QRectF(20, 20, 80, 0), 1601));
  painter.end();
  EXPECT_EQ(inkPixels(image), 0);
}

TEST(ElementPicture, StaysInsideItsRectangleAndLeavesThePainterAsItWas) {
  QImage image = whiteImage(QSize(400, 300));
  QPainter painter(&image);
  painter.translate(5, 7);
  painter.setPen(QPen(Qt::red, 3));
  const QTransform transform = painter.transform();
  const QRectF target(50, 40, 200, 140);
  EXPECT_TRUE(drawElementPicture(painter, target, 2406));
  EXPECT_EQ(painter.transform(), transform);
  EXPECT_EQ(painter.pen(), QPen(Qt::red, 3));
  EXPECT_FALSE(painter.hasClipping());
  painter.end();
  EXPECT_TRUE(target.translated(5, 7).adjusted(-1, -1, 1, 1).contains(inkBounds(image)));
}

TEST(ElementPicture, KeepsItsProportionsInTheMiddleOfAWideRectangle) {
  const QImage image = render(2101, QSize(600, 140));
  const QRect bounds = inkBounds(image);
  EXPECT_LE(bounds.width(), 201);
  EXPECT_NEAR(bounds.center().x(), 300, 25);
}

TEST(ElementPicture, ScalesWithItsTarget) {
  const QRect small = inkBounds(render(1606, QSize(100, 70)));
  for (int factor : {2, 4}) {
    const QRect large = inkBounds(render(1606, QSize(100 * factor, 70 * factor)));
    EXPECT_NEAR(double(large.width()) / small.width(), factor, 0.1 * factor) << factor;
    EXPECT_NEAR(double(large.height()) / small.height(), factor, 0.1 * factor) << factor;
  }
}

// --- the contact sheet ------------------------------------------------------------------------------

TEST(ElementPictureContactSheet, PutsEachPictureWithItsCaptionIntoItsCell) {
  const QSize cell(220, 170);
  const std::vector<std::pair<int, QString>> pictures{{1601, "kreisförmig"},
                                                      {2101, "Kreiskrümmer"},
                                                      {2401, "Geradsitzventil"},
                                                      {2601, "Normblende"},
                                                      {3018, "Hutsieb"}};
  const QImage sheet = pictureContactSheet(pictures, 2, cell);
  ASSERT_EQ(sheet.size(), QSize(2 * cell.width(), 3 * cell.height()));
  for (int index = 0; index < 6; ++index) {
    const QRect box(QPoint(index % 2 * cell.width(), index / 2 * cell.height()), cell);
    const QRect pictureArea = box.adjusted(6, 6, -6, -40);
    const QRect captionArea(box.left() + 6, box.bottom() - 30, box.width() - 12, 26);
    const int pictureInk = countPixels(sheet, pictureArea, isInk);
    const int captionText = countPixels(sheet, captionArea, [](QRgb pixel) { return qGray(pixel) < 100; });
    if (index < 5) {
      EXPECT_GT(pictureInk, pictureArea.width() * pictureArea.height() / 10) << "cell " << index;
      EXPECT_GT(captionText, 20) << "cell " << index;
    } else {
      EXPECT_EQ(pictureInk + captionText, 0) << "the cell after the last picture stays empty";
    }
  }
}

TEST(ElementPictureContactSheet, NothingToShowGivesANullImage) {
  EXPECT_TRUE(pictureContactSheet({}, 3).isNull());
  EXPECT_TRUE(pictureContactSheet({{1601, "kreisförmig"}}, 0).isNull());
}

// Writes the contact sheet of the whole catalogue and every picture as PNG files for review, when
// LINECALC_PICTURE_DIR names a directory.
TEST(ElementPictureContactSheet, WritesTheCatalogueForReviewWhenAsked) {
  const QString directory = qEnvironmentVariable("LINECALC_PICTURE_DIR");
  if (directory.isEmpty()) GTEST_SKIP() << "LINECALC_PICTURE_DIR not set";
  ASSERT_TRUE(QDir().mkpath(directory));
  std::vector<std::pair<int, QString>> pictures;
  for (const ElementDefinition& element : allElements()) {
    const bool shown = std::ranges::any_of(pictures, [&](const auto& entry) { return entry.first == element.picture; });
    if (!shown)
      pictures.emplace_back(element.picture,
                            QString::fromUtf8(element.germanName.data(), qsizetype(element.germanName.size())));
  }
  EXPECT_TRUE(pictureContactSheet(pictures, 8).save(directory + "/contact_sheet.png"));
  for (const auto& [number, caption] : pictures) {
    EXPECT_TRUE(elementPixmap(number, QSize(600, 420)).save(directory + QString("/%1.png").arg(number)));
  }
}

// --- the widget of the element panel ---------------------------------------------------------------

TEST(ElementPictureWidget, ShowsNothingUntilGivenAPicture) {
  ElementPictureWidget widget;
  widget.resize(widget.sizeHint());
  EXPECT_EQ(widget.pictureNumber(), 0);
  EXPECT_EQ(inkPixels(widget.grab().toImage().convertToFormat(QImage::Format_RGB32)), 0);
}

TEST(ElementPictureWidget, ShowsThePictureOfItsNumber) {
  ElementPictureWidget widget;
  widget.resize(300, 210);
  widget.setPictureNumber(2101);
  EXPECT_EQ(widget.pictureNumber(), 2101);
  const QImage bend = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_GT(countPixels(bend, bend.rect(), [](QRgb pixel) { return near(pixel, kFlowBlue); }), 25);
  widget.setPictureNumber(2102);
  const QImage segmentBend = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  EXPECT_GT(differingShare(bend, segmentBend), 0.03);
  widget.setPictureNumber(9999);
  EXPECT_EQ(inkPixels(widget.grab().toImage().convertToFormat(QImage::Format_RGB32)), 0);
}

TEST(ElementPictureWidget, AsksForRoomInTheCanvasProportions) {
  const QSize hint = ElementPictureWidget().sizeHint();
  EXPECT_GE(hint.width(), 200);
  EXPECT_NEAR(double(hint.width()) / hint.height(), picture::kCanvasWidth / picture::kCanvasHeight, 0.05);
}

TEST(ElementPictureWidget, ScalesThePictureWithItsSize) {
  ElementPictureWidget widget;
  widget.setPictureNumber(2404);
  widget.resize(200, 140);
  const QRect small = inkBounds(widget.grab().toImage().convertToFormat(QImage::Format_RGB32));
  widget.resize(400, 280);
  const QRect large = inkBounds(widget.grab().toImage().convertToFormat(QImage::Format_RGB32));
  EXPECT_NEAR(double(large.width()) / small.width(), 2, 0.2);
  EXPECT_TRUE(QRect(0, 0, 400, 280).contains(large));
}

// --- the drawing vocabulary --------------------------------------------------------------------------

// The area of a path, its curves flattened finely (at eight times the scale).
double polygonArea(const QPainterPath& path) {
  constexpr double scale = 8;
  double area = 0;
  for (const QPolygonF& polygon : path.toFillPolygons(QTransform::fromScale(scale, scale))) {
    for (qsizetype i = 0; i < polygon.size(); ++i) {
      const QPointF a = polygon[i];
      const QPointF b = polygon[(i + 1) % polygon.size()];
      area += a.x() * b.y() - b.x() * a.y();
    }
  }
  return std::abs(area) / 2 / (scale * scale);
}

TEST(ElementPictureSketch, PolarCountsDegreesCounterClockwiseAsSeen) {
  struct Case {
    double degrees;
    QPointF expected;
  };
  for (const Case& c : {Case{0, {110, 50}}, Case{90, {100, 40}}, Case{180, {90, 50}}, Case{270, {100, 60}},
                        Case{45, {100 + 10 / std::numbers::sqrt2, 50 - 10 / std::numbers::sqrt2}}}) {
    const QPointF point = picture::polar(QPointF(100, 50), 10, c.degrees);
    EXPECT_NEAR(point.x(), c.expected.x(), 1e-9) << c.degrees;
    EXPECT_NEAR(point.y(), c.expected.y(), 1e-9) << c.degrees;
  }
}

TEST(ElementPictureSketch, FilletFillsTheCornerOutsideItsArc) {
  // The corner piece between two rays at angle a and a tangent arc of radius r has the area
  // r^2 (cot(a/2) - (pi - a)/2): the kite of the tangent points less the arc's sector.
  constexpr double radius = 100;
  for (double opening : {45.0, 90.0, 135.0}) {
    const double half = opening / 2 * std::numbers::pi / 180;
    const double expected = radius * radius * (1 / std::tan(half) - (std::numbers::pi - 2 * half) / 2);
    const QPainterPath corner = picture::fillet(QPointF(50, 50), 20, 20 + opening, radius);
    EXPECT_NEAR(polygonArea(corner), expected, expected * 0.005) << opening;
  }
}

TEST(ElementPictureSketch, RoundedCornerShortensTheRunByTheArc) {
  // A right-angled corner of 60 + 40 units rounded with r: 100 - 2 r + pi r / 2.
  for (double radius : {5.0, 10.0, 20.0}) {
    const QPainterPath run = picture::roundedPolyline({{0, 0}, {60, 0}, {60, 40}}, radius);
    EXPECT_NEAR(run.length(), 100 - 2 * radius + std::numbers::pi * radius / 2, 0.05) << radius;
  }
}

TEST(ElementPictureSketch, StraightPipeHasItsBoreBetweenTwoWalls) {
  QPainterPath axis(QPointF(20, 50));
  axis.lineTo(180, 50);
  const picture::Duct pipe = picture::ductAlong(axis, 40);
  EXPECT_NEAR(polygonArea(pipe.bore), 160 * 40, 1);
  EXPECT_NEAR(polygonArea(pipe.outer) - polygonArea(pipe.bore), 2 * 160 * picture::kWall, 1);

  QImage image = whiteImage(QSize(200, 100));
  QPainter painter(&image);
  picture::Sketch(painter).ducts({pipe});
  painter.end();
  const QRect column(100, 0, 1, 100);
  EXPECT_NEAR(countPixels(image, column, [](QRgb pixel) { return near(pixel, kMediumBlue); }), 40, 2);
  EXPECT_NEAR(countPixels(image, column, isInk), 40 + 2 * picture::kWall, 2);
}

TEST(ElementPictureSketch, PassageOfVaryingBoreKeepsItsWallThickness) {
  // A pipe of radius 10 widening suddenly to radius 20: the step face is a wall too, so each wall
  // covers its thickness times the 100 units along plus the 10 of the step.
  const picture::Duct passage = picture::ductBetween({{0, 40}, {50, 40}, {50, 30}, {100, 30}}, 50);
  EXPECT_NEAR(polygonArea(passage.bore), 50 * 20 + 50 * 40, 1);
  EXPECT_NEAR(polygonArea(passage.outer) - polygonArea(passage.bore), 2 * (100 + 10) * picture::kWall, 2);
}

TEST(ElementPictureSketch, CrossingOfTwoLines) {
  struct Case {
    QPointF onFirst;
    double firstDegrees;
    QPointF onSecond;
    double secondDegrees;
    QPointF expected;
  };
  for (const Case& c : {Case{{0, 10}, 0, {30, 0}, 90, {30, 10}},       // a horizontal and a vertical line
                        Case{{0, 0}, -45, {0, 20}, 0, {20, 20}},       // falling to the right, as seen
                        Case{{10, 50}, 45, {10, 30}, 0, {30, 30}}}) {  // rising to the right
    const QPointF point = picture::crossing(c.onFirst, c.firstDegrees, c.onSecond, c.secondDegrees);
    EXPECT_NEAR(point.x(), c.expected.x(), 1e-9);
    EXPECT_NEAR(point.y(), c.expected.y(), 1e-9);
  }
}

TEST(ElementPictureSketch, BarCoversItsLengthTimesItsWidthInAnyDirection) {
  for (double degrees : {0.0, 30.0, 90.0, 135.0}) {
    const QPointF from(50, 50);
    const QPainterPath stem = picture::bar(from, picture::polar(from, 40, degrees), 6);
    EXPECT_NEAR(polygonArea(stem), 240, 1e-6) << degrees;
    EXPECT_TRUE(stem.contains(picture::polar(from, 20, degrees))) << degrees;
    EXPECT_FALSE(stem.contains(picture::polar(picture::polar(from, 20, degrees), 4, degrees + 90))) << degrees;
  }
}

TEST(ElementPictureSketch, ChamberGetsAWallAllRound) {
  // A round chamber of radius 30 inside a wall of 5: the wall is the ring between 30 and 35 (within
  // the flattening of the stroked circle).
  const picture::Duct chamber = picture::ductAround(picture::disc(QPointF(100, 70), 30));
  const double ring = std::numbers::pi * (35 * 35 - 30 * 30);
  EXPECT_NEAR(polygonArea(chamber.outer) - polygonArea(chamber.bore), ring, ring * 0.015);
}

TEST(ElementPictureSketch, FlangesSitOutsideThePipeOnBothSidesOfTheInsert) {
  const QPainterPath flanges = picture::flangePair(100, 110, 70, 35);
  EXPECT_NEAR(polygonArea(flanges), 4 * picture::kFlange * picture::kFlange, 1e-6);
  for (QPointF inside : {QPointF(95, 30), QPointF(115, 30), QPointF(95, 110), QPointF(115, 110)}) {
    EXPECT_TRUE(flanges.contains(inside)) << inside.x() << "," << inside.y();
  }
  for (QPointF outside : {QPointF(105, 30), QPointF(95, 70), QPointF(95, 40)}) {  // the insert, the bore, the wall
    EXPECT_FALSE(flanges.contains(outside)) << outside.x() << "," << outside.y();
  }
}

// The ink of a dimension line drawn along y = 50 between x = 90 and x = 90 + length.
QImage horizontalDimension(double length) {
  QImage image = whiteImage(QSize(200, 100));
  QPainter painter(&image);
  picture::Sketch(painter).dimension(QPointF(90, 50), QPointF(90 + length, 50), QStringLiteral("L"), -1);
  return image;
}

TEST(ElementPictureSketch, ShortDimensionTakesItsArrowsFromOutside) {
  const QRect beforeStart(80, 48, 8, 5);
  for (double length : {40.0, 30.0}) {
    const QImage image = horizontalDimension(length);
    EXPECT_EQ(countPixels(image, beforeStart, isInk), 0) << length;
    EXPECT_GT(countPixels(image, QRect(95, 48, 10, 5), isInk), 10) << "arrow at the start of " << length;
  }
  for (double length : {8.0, 4.0}) {
    EXPECT_GT(countPixels(horizontalDimension(length), beforeStart, isInk), 4) << length;
  }
}

TEST(ElementPictureSketch, RecordsEveryLetterInDrawingOrder) {
  QImage image = whiteImage(QSize(200, 140));
  QPainter painter(&image);
  picture::Sketch sketch(painter);
  sketch.dimension(QPointF(10, 10), QPointF(60, 10), QStringLiteral("D1"));
  sketch.angle(QPointF(100, 100), 30, 0, 45);
  sketch.radius(QPointF(100, 100), 30, 300);
  sketch.label(QPointF(150, 50), QStringLiteral("A"));
  sketch.flowArrow(QPointF(10, 120), QPointF(60, 120));
  EXPECT_EQ(sketch.labels(), QStringList({"D1", "w", "R", "A"}));
}

}  // namespace
}  // namespace linecalc::gui
