#include "toolbar_icons.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QTransform>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "element_picture_sketch.h"

namespace linecalc::gui {

namespace {

using picture::circleBox;
using picture::disc;
using picture::polar;
using picture::polygon;
using picture::rectangle;
using picture::segment;

// Every icon is drawn on a square of 24 × 24 units, scaled to the pixels of the size being made.
constexpr double kGrid = 24;
constexpr int kSizes[] = {16, 24, 32, 48};

// Dark grey edges, blue flow and light blue medium as in the element pictures; paper, metal, steam.
const QColor kEdge(60, 60, 60);
const QColor kFlow(21, 101, 192);
const QColor kMedium(214, 234, 248);
const QColor kMetal(210, 210, 210);
const QColor kPaper(Qt::white);
const QColor kSteam(125, 125, 125);

// Width of the drawn strokes (arrows, symbols, swirls) in units.
constexpr double kStroke = 2;

// A painter scaled to the 24-unit square, with the flat style of the toolbar: shapes filled and edged
// in dark grey with an edge of whole pixels, free strokes with round ends, straight lines kept sharp.
class Canvas {
 public:
  Canvas(QPainter& painter, int pixels)
      : painter_(painter), scale_(pixels / kGrid), edgePixels_(std::max(1.0, std::floor(pixels / 16.0))) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.scale(scale_, scale_);
  }

  // A closed shape filled with `colour` and edged.
  void shape(const QPainterPath& path, const QColor& colour) {
    fill(path, colour);
    edge(path);
  }
  void fill(const QPainterPath& path, const QColor& colour) { painter_.fillPath(path, colour); }
  void edge(const QPainterPath& path) { stroke(path, kEdge, edgePixels_ / scale_); }
  void stroke(const QPainterPath& path, const QColor& colour, double width) {
    painter_.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  // A filled triangle pointing along `direction` (a unit vector) with its tip at `tip`.
  void arrowHead(QPointF tip, QPointF direction, double length, const QColor& colour) {
    const QPointF base = tip - direction * length;
    const QPointF side = QPointF(direction.y(), -direction.x()) * (length * 0.6);
    fill(polygon({tip, base + side, base - side}), colour);
  }

  // A straight line about `width` units wide, widened to whole pixels and moved by less than a pixel
  // so that it covers whole pixels; gives the line as drawn.
  QLineF crispLine(QPointF from, QPointF to, const QColor& colour, double width) {
    const double pixels = std::max(1.0, std::round(width * scale_));
    const QLineF line(onPixels(from, pixels), onPixels(to, pixels));
    painter_.strokePath(segment(line.p1(), line.p2()), QPen(colour, pixels / scale_, Qt::SolidLine, Qt::FlatCap));
    return line;
  }

  // The point moved by less than a pixel so that an edge through it covers whole pixels.
  QPointF crisp(QPointF point) const { return onPixels(point, edgePixels_); }
  QRectF crisp(const QRectF& box) const { return {crisp(box.topLeft()), crisp(box.bottomRight())}; }
  QPolygonF crisp(const QPolygonF& corners) const {
    QPolygonF moved;
    for (const QPointF& corner : corners) moved << crisp(corner);
    return moved;
  }

 private:
  // A line of an odd number of pixels is centred on a pixel, one of an even number between two.
  QPointF onPixels(QPointF point, double linePixels) const {
    const bool odd = static_cast<int>(linePixels) % 2 == 1;
    const auto snap = [&](double units) {
      const double pixels = units * scale_;
      return (odd ? std::floor(pixels) + 0.5 : std::round(pixels)) / scale_;
    };
    return {snap(point.x()), snap(point.y())};
  }

  QPainter& painter_;
  double scale_;
  double edgePixels_;
};

// ---- shapes shared by several icons

QPainterPath roundedBox(const QRectF& box, double radius) {
  QPainterPath path;
  path.addRoundedRect(box, radius, radius);
  return path;
}

// The part of a shape between two heights (a row of a table, the liquid in a vessel).
QPainterPath slice(const QPainterPath& shape, double top, double bottom) {
  const QRectF box = shape.boundingRect();
  return shape.intersected(rectangle(QRectF(box.left(), top, box.width(), bottom - top)));
}

// A sheet of paper with its upper right corner folded down by `fold`.
void sheet(Canvas& canvas, const QRectF& page, double fold) {
  const QRectF box = canvas.crisp(page);
  const QPointF foldTop = canvas.crisp(QPointF(box.right() - fold, box.top()));
  const QPointF foldSide = canvas.crisp(QPointF(box.right(), box.top() + fold));
  canvas.shape(polygon({box.topLeft(), foldTop, foldSide, box.bottomRight(), box.bottomLeft()}), kPaper);
  canvas.shape(polygon({foldTop, QPointF(foldTop.x(), foldSide.y()), foldSide}), kMetal);
}

// A round blue plate for a white symbol.
void badge(Canvas& canvas, QPointF centre, double radius) {
  canvas.shape(disc(centre, radius), kFlow);
}

// A horizontal piece of pipe, cut open at both ends: the medium between the two walls.
void pipeStub(Canvas& canvas, const QRectF& bore) {
  const QRectF box = canvas.crisp(bore);
  canvas.fill(rectangle(box), kMedium);
  canvas.edge(segment(box.topLeft(), box.topRight()));
  canvas.edge(segment(box.bottomLeft(), box.bottomRight()));
}

// A straight blue arrow from `from` to the tip `to`.
void flowArrow(Canvas& canvas, QPointF from, QPointF to) {
  constexpr double headLength = 6;
  const QPointF direction = (to - from) / QLineF(from, to).length();
  const QLineF shaft = canvas.crispLine(from, to - direction * headLength * 0.8, kFlow, kStroke);
  canvas.arrowHead(shaft.p2() + direction * headLength * 0.8, direction, headLength, kFlow);
}

// The letters Δp of the pressure loss, drawn as strokes from the lower left corner of the Δ.
void pressureDropMark(Canvas& canvas, QPointF origin, double height) {
  const QPointF up(0, -height);
  const double width = height * 1.05;
  canvas.stroke(polygon({origin, origin + QPointF(width / 2, 0) + up, origin + QPointF(width, 0)}), kEdge, kStroke);
  const double bowl = height * 0.32;
  const double stemX = origin.x() + width + 2.4;
  const QPointF bowlCentre(stemX + bowl, origin.y() - bowl - 0.2);
  canvas.stroke(segment({stemX, bowlCentre.y() - bowl}, {stemX, origin.y() + height * 0.3}), kEdge, kStroke);
  canvas.stroke(disc(bowlCentre, bowl), kEdge, kStroke);
}

// ---- the icons

void drawNewProject(Canvas& canvas) {
  sheet(canvas, QRectF(QPointF(4, 2), QPointF(18, 21)), 5);
  const QPointF centre(16.5, 16.5);
  badge(canvas, centre, 5.25);
  canvas.crispLine(centre - QPointF(3, 0), centre + QPointF(3, 0), kPaper, kStroke);
  canvas.crispLine(centre - QPointF(0, 3), centre + QPointF(0, 3), kPaper, kStroke);
}

void drawOpenProject(Canvas& canvas) {
  canvas.shape(polygon(canvas.crisp(QPolygonF{{2, 4}, {8, 4}, {10, 6}, {18, 6}, {18, 20}, {2, 20}})), kMedium);
  canvas.shape(polygon(canvas.crisp(QPolygonF{{2, 20}, {6, 10}, {22, 10}, {18, 20}})), kFlow);
}

void drawSave(Canvas& canvas) {
  canvas.shape(polygon(canvas.crisp(QPolygonF{{3, 3}, {17, 3}, {21, 7}, {21, 21}, {3, 21}})), kFlow);
  canvas.shape(rectangle(canvas.crisp(QRectF(QPointF(7, 3), QPointF(16, 9)))), kMetal);
  canvas.fill(rectangle(canvas.crisp(QRectF(QPointF(12.5, 4.5), QPointF(14.5, 7.5)))), kEdge);
  canvas.shape(rectangle(canvas.crisp(QRectF(QPointF(6, 13), QPointF(18, 21)))), kPaper);
}

void drawPressureLoss(Canvas& canvas) {
  pressureDropMark(canvas, QPointF(4, 9.5), 7);
  const QRectF bore(QPointF(2, 13.5), QPointF(22, 21.5));
  pipeStub(canvas, bore);
  flowArrow(canvas, QPointF(4, bore.center().y()), QPointF(20, bore.center().y()));
}

// The pictogram of a pipe element in a tile, on the unit square.
QPainterPath straightPipe() {
  return segment({0.2, 0.5}, {0.8, 0.5});
}
QPainterPath bend() {
  QPainterPath path({0.2, 0.3});
  path.lineTo(0.4, 0.3);
  path.quadTo(0.7, 0.3, 0.7, 0.6);
  path.lineTo(0.7, 0.8);
  return path;
}
QPainterPath valve() {
  return polygon({{0.2, 0.3}, {0.8, 0.7}, {0.8, 0.3}, {0.2, 0.7}});
}
QPainterPath tee() {
  QPainterPath path = segment({0.2, 0.35}, {0.8, 0.35});
  path.addPath(segment({0.5, 0.35}, {0.5, 0.8}));
  return path;
}

void drawElementChoice(Canvas& canvas) {
  struct Tile {
    QPointF corner;
    QPainterPath pictogram;
    bool chosen;
  };
  const Tile tiles[] = {
      {{2, 2}, straightPipe(), true}, {{13, 2}, bend(), false}, {{2, 13}, valve(), false}, {{13, 13}, tee(), false}};
  constexpr double side = 9;
  for (const Tile& tile : tiles) {
    const QRectF box = canvas.crisp(QRectF(tile.corner, QSizeF(side, side)));
    canvas.shape(roundedBox(box, 1.5), tile.chosen ? kFlow : kPaper);
    const QTransform onTile = QTransform::fromTranslate(box.left(), box.top()).scale(box.width(), box.height());
    canvas.stroke(onTile.map(tile.pictogram), tile.chosen ? kPaper : kFlow, 1.6);
  }
}

void drawResultTable(Canvas& canvas) {
  const QRectF frame = canvas.crisp(QRectF(QPointF(2, 3), QPointF(22, 21)));
  const QPainterPath table = roundedBox(frame, 1.5);
  const double rows[] = {frame.top(), canvas.crisp(QPointF(0, 7.5)).y(), canvas.crisp(QPointF(0, 12)).y(),
                         canvas.crisp(QPointF(0, 16.5)).y(), frame.bottom()};
  canvas.fill(table, kPaper);
  canvas.fill(slice(table, rows[0], rows[1]), kMetal);
  canvas.fill(slice(table, rows[3], rows[4]), kFlow);
  for (int border = 1; border <= 3; ++border)
    canvas.edge(segment({frame.left(), rows[border]}, {frame.right(), rows[border]}));
  for (double x : {9.0, 15.5}) {
    const double column = canvas.crisp(QPointF(x, 0)).x();
    canvas.edge(segment({column, frame.top()}, {column, frame.bottom()}));
  }
  canvas.edge(table);
}

// A drop of liquid hanging from its tip above a round belly.
QPainterPath drop(QPointF tip, QPointF bellyCentre, double radius) {
  const double reach = QLineF(bellyCentre, tip).length();
  const double tangent = qRadiansToDegrees(std::acos(radius / reach));
  QPainterPath path(tip);
  path.lineTo(polar(bellyCentre, radius, 90 + tangent));
  path.arcTo(circleBox(bellyCentre, radius), 90 + tangent, 360 - 2 * tangent);
  path.closeSubpath();
  return path;
}

// A rising wisp of steam: a gentle S from the bottom point to the top point.
QPainterPath wisp(QPointF bottom, QPointF top) {
  const double third = (bottom.y() - top.y()) / 3;
  QPainterPath path(bottom);
  path.cubicTo(bottom + QPointF(2.5, -third), top + QPointF(-2.5, third), top);
  return path;
}

void drawWaterAndSteam(Canvas& canvas) {
  canvas.shape(drop({9, 4}, {9, 15.5}, 6), kFlow);
  canvas.stroke(wisp({17, 14}, {17, 3}), kSteam, kStroke);
  canvas.stroke(wisp({20.5, 12}, {20.5, 5}), kSteam, kStroke);
}

// A gust of air: a straight line ending in a curl of `radius`, turning up or down.
QPainterPath gust(QPointF start, double length, double radius, bool curlsUp) {
  const QPointF end = start + QPointF(length, 0);
  QPainterPath path(start);
  path.lineTo(end);
  const QPointF centre = end + QPointF(0, curlsUp ? -radius : radius);
  path.arcTo(circleBox(centre, radius), curlsUp ? 270 : 90, curlsUp ? 270 : -270);
  return path;
}

void drawDryAir(Canvas& canvas) {
  canvas.stroke(gust({3, 8.5}, 11, 2.75, true), kFlow, kStroke);
  canvas.crispLine({3, 12.5}, {21, 12.5}, kEdge, kStroke);
  canvas.stroke(gust({3, 16.5}, 8, 2.5, false), kFlow, kStroke);
}

void drawOtherLiquids(Canvas& canvas) {
  const QPainterPath flask =
      polygon({{10, 3}, {14, 3}, {14, 9}, {20.5, 19.5}, {19.5, 21}, {4.5, 21}, {3.5, 19.5}, {10, 9}});
  canvas.fill(flask, kPaper);
  canvas.fill(slice(flask, 14, 22), kFlow);
  canvas.edge(flask);
  canvas.crispLine({8.5, 3}, {15.5, 3}, kEdge, kStroke);
}

void drawOtherGases(Canvas& canvas) {
  QPainterPath body({7, 10.5});
  body.arcTo(QRectF(7, 6, 10, 9), 180, -180);
  body.lineTo(17, 21.5);
  body.lineTo(7, 21.5);
  body.closeSubpath();
  canvas.fill(body, kMetal);
  canvas.fill(slice(body, 0, 10.5), kFlow);
  canvas.edge(body);
  canvas.shape(rectangle(canvas.crisp(QRectF(QPointF(10.5, 3.5), QPointF(13.5, 6.5)))), kMetal);
  canvas.crispLine({8.5, 2.5}, {15.5, 2.5}, kEdge, kStroke);
}

void drawStandardPipes(Canvas& canvas) {
  const QPointF centre(12, 12);
  constexpr double outside = 9.5, bore = 6;
  canvas.shape(disc(centre, outside).subtracted(disc(centre, bore)), kMetal);
  canvas.shape(disc(centre, bore), kMedium);
  // the bore's diameter, its arrows touching the wall
  constexpr double head = 3;
  const QPointF from = polar(centre, bore - 0.5, 225), to = polar(centre, bore - 0.5, 45);
  const QPointF direction = (to - from) / QLineF(from, to).length();
  canvas.stroke(segment(from + direction * head * 0.7, to - direction * head * 0.7), kFlow, 1.4);
  canvas.arrowHead(to, direction, head, kFlow);
  canvas.arrowHead(from, -direction, head, kFlow);
}

// A gear wheel of `teeth` teeth between the root and the tip circle.
QPainterPath gearWheel(QPointF centre, int teeth, double rootRadius, double tipRadius) {
  QPolygonF outline;
  const double pitch = 360.0 / teeth;
  for (int tooth = 0; tooth < teeth; ++tooth) {
    const double middle = tooth * pitch;
    outline << polar(centre, rootRadius, middle - 0.3 * pitch) << polar(centre, tipRadius, middle - 0.17 * pitch)
            << polar(centre, tipRadius, middle + 0.17 * pitch) << polar(centre, rootRadius, middle + 0.3 * pitch);
  }
  return polygon(outline);
}

void drawSettings(Canvas& canvas) {
  const QPointF centre(12, 12);
  canvas.shape(gearWheel(centre, 8, 7, 9.5).subtracted(disc(centre, 3.5)), kMetal);
}

void drawHelp(Canvas& canvas) {
  const QPointF centre(12, 12);
  badge(canvas, centre, 9.5);
  const QPointF hookCentre(12, 9.2);
  constexpr double hook = 3.2;
  QPainterPath question(polar(hookCentre, hook, 155));
  question.arcTo(circleBox(hookCentre, hook), 155, -215);
  question.quadTo(QPointF(12, 12.6), QPointF(12, 14.5));
  canvas.stroke(question, kPaper, 2.2);
  canvas.fill(disc({12, 17.8}, 1.4), kPaper);
}

using Drawing = void (*)(Canvas&);

struct ToolPicture {
  std::string_view tool;
  Drawing draw;
};

const ToolPicture kPictures[] = {
    {"ToolButton1", drawNewProject},    {"ToolButton3", drawOpenProject},    {"ToolButton2", drawSave},
    {"ToolButton5", drawPressureLoss},  {"ToolButton7", drawElementChoice},  {"ToolButton8", drawResultTable},
    {"ToolButton9", drawWaterAndSteam}, {"ToolButton10", drawDryAir},        {"ToolButton11", drawOtherLiquids},
    {"ToolButton13", drawOtherGases},   {"ToolButton14", drawStandardPipes}, {"ToolButton12", drawSettings},
    {"ToolButton17", drawHelp},
};

}  // namespace

QIcon toolbarIcon(std::string_view toolName) {
  const auto* found = std::find_if(std::begin(kPictures), std::end(kPictures),
                                   [toolName](const ToolPicture& candidate) { return candidate.tool == toolName; });
  if (found == std::end(kPictures)) return {};
  QIcon icon;
  for (int pixels : kSizes) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Canvas canvas(painter, pixels);
    found->draw(canvas);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace linecalc::gui
