#include "element_picture_sketch.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QPainterPathStroker>
#include <QPen>
#include <QtMath>
#include <cmath>

namespace linecalc::gui::picture {

namespace {

const QColor kMediumColour(214, 234, 248);
const QColor kWallFill(226, 226, 226);
const QColor kHatch(130, 130, 130);
const QColor kEdge(60, 60, 60);
const QColor kPartColour(88, 92, 98);
const QColor kBeyondColour(100, 100, 100);
const QColor kFlowColour(21, 101, 192);
const QColor kDimensionColour(34, 34, 34);
const QColor kCentreColour(120, 120, 120);

constexpr double kHatchSpacing = 3;
constexpr double kDimensionArrowLength = 5;
constexpr double kDimensionArrowWidth = 3.2;
constexpr double kFlowArrowLength = 9;
constexpr double kFlowArrowWidth = 7.5;
constexpr double kFlowPenWidth = 2.2;

// Degrees folded into (-180, 180].
double signedDegrees(double degrees) {
  double folded = std::fmod(degrees, 360.0);
  if (folded > 180) folded -= 360;
  if (folded <= -180) folded += 360;
  return folded;
}

QPointF unit(QPointF vector) {
  const double length = std::hypot(vector.x(), vector.y());
  return length > 0 ? vector / length : QPointF(1, 0);
}

// The left-hand normal of a direction as seen on the drawing (up for a left-to-right direction).
QPointF leftNormal(QPointF direction) {
  return {direction.y(), -direction.x()};
}

// The tangent points, centre and arc of a fillet of `radius` between two rays from a corner.
struct FilletArc {
  QPointF first;
  QPointF second;
  QPointF centre;
  double startDegrees = 0;
  double sweepDegrees = 0;
};

FilletArc filletArc(QPointF corner, double rayDegrees, double otherRayDegrees, double radius) {
  const double opening = signedDegrees(otherRayDegrees - rayDegrees);
  const double half = qDegreesToRadians(std::abs(opening) / 2);
  FilletArc arc;
  arc.first = polar(corner, radius / std::tan(half), rayDegrees);
  arc.second = polar(corner, radius / std::tan(half), otherRayDegrees);
  arc.centre = polar(corner, radius / std::sin(half), rayDegrees + opening / 2);
  arc.startDegrees = QLineF(arc.centre, arc.first).angle();
  arc.sweepDegrees = signedDegrees(QLineF(arc.centre, arc.second).angle() - arc.startDegrees);
  return arc;
}

QFont letterFont() {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(11);
  font.setItalic(true);
  return font;
}

}  // namespace

QPointF polar(QPointF origin, double distance, double degrees) {
  const double radians = qDegreesToRadians(degrees);
  return origin + QPointF(distance * std::cos(radians), -distance * std::sin(radians));
}

QRectF circleBox(QPointF centre, double radius) {
  return {centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)};
}

QPointF crossing(QPointF onFirst, double firstDegrees, QPointF onSecond, double secondDegrees) {
  QPointF point;
  QLineF(onFirst, polar(onFirst, 1, firstDegrees))
      .intersects(QLineF(onSecond, polar(onSecond, 1, secondDegrees)), &point);
  return point;
}

QPainterPath segment(QPointF from, QPointF to) {
  QPainterPath path(from);
  path.lineTo(to);
  return path;
}

QPainterPath polyline(const QPolygonF& points) {
  QPainterPath path;
  path.addPolygon(points);
  return path;
}

QPainterPath polygon(const QPolygonF& corners) {
  QPainterPath path = polyline(corners);
  path.closeSubpath();
  return path;
}

QPainterPath rectangle(const QRectF& box) {
  QPainterPath path;
  path.addRect(box);
  return path;
}

QPainterPath ellipse(QPointF centre, double radiusX, double radiusY) {
  QPainterPath path;
  path.addEllipse(centre, radiusX, radiusY);
  return path;
}

QPainterPath bar(QPointF from, QPointF to, double width) {
  const QPointF side = leftNormal(unit(to - from)) * (width / 2);
  return polygon({from + side, to + side, to - side, from - side});
}

QPainterPath disc(QPointF centre, double radius) {
  return ellipse(centre, radius, radius);
}

QPainterPath band(const QPainterPath& centreline, double width, Qt::PenJoinStyle join) {
  QPainterPathStroker stroker;
  stroker.setWidth(width);
  stroker.setCapStyle(Qt::FlatCap);
  stroker.setJoinStyle(join);
  stroker.setMiterLimit(6);
  return stroker.createStroke(centreline).simplified();
}

QPainterPath roundedPolyline(const QPolygonF& points, double radius) {
  QPainterPath path;
  if (points.isEmpty()) return path;
  path.moveTo(points.front());
  for (qsizetype i = 1; i + 1 < points.size(); ++i) {
    const QPointF corner = points[i];
    const FilletArc arc =
        filletArc(corner, QLineF(corner, points[i - 1]).angle(), QLineF(corner, points[i + 1]).angle(), radius);
    path.lineTo(arc.first);
    path.arcTo(circleBox(arc.centre, radius), arc.startDegrees, arc.sweepDegrees);
  }
  path.lineTo(points.back());
  return path;
}

QPainterPath fillet(QPointF corner, double rayDegrees, double otherRayDegrees, double radius) {
  const FilletArc arc = filletArc(corner, rayDegrees, otherRayDegrees, radius);
  QPainterPath path(corner);
  path.lineTo(arc.first);
  path.arcTo(circleBox(arc.centre, radius), arc.startDegrees, arc.sweepDegrees);
  path.closeSubpath();
  return path;
}

QPointF filletCentre(QPointF corner, double rayDegrees, double otherRayDegrees, double radius) {
  return filletArc(corner, rayDegrees, otherRayDegrees, radius).centre;
}

Duct ductAlong(const QPainterPath& centreline, double bore, Qt::PenJoinStyle join, double wall) {
  return {band(centreline, bore, join), band(centreline, bore + 2 * wall, join)};
}

Duct ductAround(const QPainterPath& region, double wall) {
  return {region, region.united(band(region, 2 * wall, Qt::RoundJoin))};
}

Duct ductBetween(const QPolygonF& upperWall, double axisY, double wall) {
  const QTransform mirror(1, 0, 0, -1, 0, 2 * axisY);
  QPolygonF outline = upperWall;
  const QPolygonF lowerWall = mirror.map(upperWall);
  for (auto point = lowerWall.crbegin(); point != lowerWall.crend(); ++point) outline << *point;
  const QPainterPath bore = polygon(outline);
  const QPainterPath upperBand = band(polyline(upperWall), 2 * wall, Qt::MiterJoin);
  return {bore, bore.united(upperBand).united(mirror.map(upperBand))};
}

Sketch::Sketch(QPainter& painter) : painter_(painter) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::TextAntialiasing);
  painter_.setFont(letterFont());
}

void Sketch::medium(const QPainterPath& region) {
  painter_.fillPath(region, kMediumColour);
}

void Sketch::section(const QPainterPath& region) {
  painter_.fillPath(region, kWallFill);
  painter_.save();
  painter_.setClipPath(region, Qt::IntersectClip);
  painter_.setPen(QPen(kHatch, 0.5));
  const QRectF box = region.boundingRect();
  // Hatching at 45 degrees: lines x + y = c across the bounding box.
  for (double c = box.left() + box.top(); c <= box.right() + box.bottom(); c += kHatchSpacing) {
    painter_.drawLine(QPointF(c - box.top(), box.top()), QPointF(c - box.bottom(), box.bottom()));
  }
  painter_.restore();
  painter_.strokePath(region, QPen(kEdge, 1.0));
}

void Sketch::part(const QPainterPath& region) {
  painter_.fillPath(region, kPartColour);
  painter_.strokePath(region, QPen(kEdge, 0.6));
}

void Sketch::outline(const QPainterPath& path) {
  painter_.strokePath(path, QPen(kBeyondColour, 1.0));
}

void Sketch::ducts(const std::vector<Duct>& pieces) {
  QPainterPath bores;
  QPainterPath outers;
  for (const Duct& piece : pieces) {
    bores = bores.united(piece.bore);
    outers = outers.united(piece.outer);
  }
  medium(bores);
  section(outers.subtracted(bores));
}

void Sketch::flowArrow(QPointF from, QPointF to) {
  flowArrow(segment(from, to));
}

void Sketch::flowArrow(const QPainterPath& path) {
  const double length = path.length();
  if (length <= kFlowArrowLength) return;
  // The shaft stops inside the head, so that the head keeps its sharp tip.
  const double shaftLength = length - 0.7 * kFlowArrowLength;
  QPainterPath shaft(path.pointAtPercent(0));
  for (double along = 1.5; along < shaftLength; along += 1.5)
    shaft.lineTo(path.pointAtPercent(path.percentAtLength(along)));
  shaft.lineTo(path.pointAtPercent(path.percentAtLength(shaftLength)));
  painter_.strokePath(shaft, QPen(kFlowColour, kFlowPenWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
  arrowHead(path.pointAtPercent(1), polar(QPointF(), 1, path.angleAtPercent(1)), kFlowArrowLength, kFlowArrowWidth,
            kFlowColour);
}

void Sketch::arrowHead(QPointF tip, QPointF direction, double length, double width, const QColor& colour) {
  const QPointF base = tip - direction * length;
  const QPointF side = leftNormal(direction) * (width / 2);
  painter_.fillPath(polygon({tip, base + side, base - side}), colour);
}

void Sketch::dimension(QPointF from, QPointF to, const QString& letter, double labelSide, double labelAt) {
  painter_.setPen(QPen(kDimensionColour, 0.7));
  const QPointF direction = unit(to - from);
  if (QLineF(from, to).length() >= 3 * kDimensionArrowLength) {
    painter_.drawLine(from, to);
    arrowHead(from, -direction, kDimensionArrowLength, kDimensionArrowWidth, kDimensionColour);
    arrowHead(to, direction, kDimensionArrowLength, kDimensionArrowWidth, kDimensionColour);
  } else {
    const double overhang = 2 * kDimensionArrowLength;
    painter_.drawLine(from - direction * overhang, to + direction * overhang);
    arrowHead(from, direction, kDimensionArrowLength, kDimensionArrowWidth, kDimensionColour);
    arrowHead(to, -direction, kDimensionArrowLength, kDimensionArrowWidth, kDimensionColour);
  }
  const QPointF normal = leftNormal(direction) * labelSide;
  const QRectF text = QFontMetricsF(painter_.font()).boundingRect(letter);
  const double clearance = 2.5 + std::abs(normal.x()) * text.width() / 2 + std::abs(normal.y()) * text.height() / 2;
  label(from + (to - from) * labelAt + normal * clearance, letter);
}

void Sketch::radius(QPointF centre, double distance, double degrees, const QString& letter) {
  painter_.setPen(QPen(kDimensionColour, 0.7));
  const QPointF end = polar(centre, distance, degrees);
  painter_.drawLine(centre, end);
  painter_.fillPath(disc(centre, 1.2), kDimensionColour);
  arrowHead(end, unit(end - centre), kDimensionArrowLength, kDimensionArrowWidth, kDimensionColour);
  label(polar(polar(centre, distance * 0.55, degrees), 7, degrees + 90), letter);
}

void Sketch::angle(QPointF vertex, double arcRadius, double fromDegrees, double toDegrees, const QString& letter) {
  painter_.setPen(QPen(kDimensionColour, 0.7));
  const double sweep = toDegrees - fromDegrees;
  const double turning = sweep > 0 ? 1 : -1;
  constexpr double arrowLength = 4.5;
  // A short arc gets its arrows from outside, on an arc drawn on past both ends.
  const bool outside = std::abs(qDegreesToRadians(sweep)) * arcRadius < 3 * arrowLength;
  const double overhang = outside ? turning * qRadiansToDegrees(2 * arrowLength / arcRadius) : 0;
  const QRectF box = circleBox(vertex, arcRadius);
  QPainterPath arc;
  arc.arcMoveTo(box, fromDegrees - overhang);
  arc.arcTo(box, fromDegrees - overhang, sweep + 2 * overhang);
  painter_.strokePath(arc, painter_.pen());
  const double tipTurn = (outside ? -90 : 90) * turning;  // from the radius to the tangent the tip points along
  arrowHead(polar(vertex, arcRadius, fromDegrees), polar(QPointF(), 1, fromDegrees - tipTurn), arrowLength, 3,
            kDimensionColour);
  arrowHead(polar(vertex, arcRadius, toDegrees), polar(QPointF(), 1, toDegrees + tipTurn), arrowLength, 3,
            kDimensionColour);
  label(polar(vertex, arcRadius + 8, (fromDegrees + toDegrees) / 2), letter);
}

void Sketch::extensionLine(QPointF from, QPointF to) {
  painter_.setPen(QPen(kDimensionColour, 0.5));
  painter_.drawLine(from, to);
}

void Sketch::centreLine(QPointF from, QPointF to) {
  QPen pen(kCentreColour, 0.5);
  pen.setDashPattern({16, 4, 3, 4});
  painter_.setPen(pen);
  painter_.drawLine(from, to);
}

void Sketch::label(QPointF centre, const QString& text) {
  const QRectF box = QFontMetricsF(painter_.font()).boundingRect(text);
  painter_.setPen(kDimensionColour);
  painter_.drawText(
      QRectF(centre.x() - box.width() / 2 - 1, centre.y() - box.height() / 2, box.width() + 2, box.height()),
      Qt::AlignCenter, text);
  labels_ << text;
}

QPainterPath flangePair(double upstreamFace, double downstreamFace, double axisY, double outerRadius) {
  QPainterPath flanges;
  for (double top : {axisY - outerRadius - kFlange, axisY + outerRadius}) {
    flanges.addRect(QRectF(upstreamFace - kFlange, top, kFlange, kFlange));
    flanges.addRect(QRectF(downstreamFace, top, kFlange, kFlange));
  }
  return flanges;
}

void roundSection(Sketch& sketch, QPointF centre, double bore, const QString& letter, double wall) {
  const double radius = bore / 2;
  sketch.ducts({ductAround(disc(centre, radius), wall)});
  const double reach = radius + wall + 4;
  sketch.centreLine(centre - QPointF(reach, 0), centre + QPointF(reach, 0));
  sketch.centreLine(centre - QPointF(0, reach), centre + QPointF(0, reach));
  if (!letter.isEmpty()) sketch.dimension(polar(centre, radius, 225), polar(centre, radius, 45), letter);
}

void rectangularSection(Sketch& sketch, const QRectF& inner, const QString& widthLetter, const QString& heightLetter,
                        double wall) {
  const QPainterPath opening = rectangle(inner);
  sketch.ducts({{opening, opening.united(band(opening, 2 * wall, Qt::MiterJoin))}});
  // the width's letter left of the height's line, the height's letter right of it
  const double across = inner.bottom() - inner.height() * 0.3;
  const double up = inner.right() - inner.width() * 0.4;
  if (!widthLetter.isEmpty())
    sketch.dimension(QPointF(inner.left(), across), QPointF(inner.right(), across), widthLetter, 1, 0.33);
  if (!heightLetter.isEmpty())
    sketch.dimension(QPointF(up, inner.bottom()), QPointF(up, inner.top()), heightLetter, -1);
}

}  // namespace linecalc::gui::picture
