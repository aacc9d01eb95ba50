#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <vector>

class QPainter;

// The drawing vocabulary of the element pictures: a fixed canvas in logical units, the shapes of
// pipes and fittings (bores, walls, fillets), and the annotation (flow arrow, dimensions, angles).
namespace linecalc::gui::picture {

// Every picture is drawn on this canvas; drawElementPicture scales it into the target rectangle.
inline constexpr double kCanvasWidth = 200;
inline constexpr double kCanvasHeight = 140;
// Thickness of a pipe wall on the canvas.
inline constexpr double kWall = 5;

// The point `distance` away from `origin` in the direction `degrees`, counted counter-clockwise
// from the right as seen on the drawing (Qt's arc convention).
QPointF polar(QPointF origin, double distance, double degrees);

// Plain shapes: open lines, closed outlines.
QPainterPath segment(QPointF from, QPointF to);
QPainterPath polyline(const QPolygonF& points);
QPainterPath polygon(const QPolygonF& corners);
QPainterPath rectangle(const QRectF& box);
QPainterPath ellipse(QPointF centre, double radiusX, double radiusY);
// A closed rectangle of `width` centred on the segment from `from` to `to` (stems, plates, bars).
QPainterPath bar(QPointF from, QPointF to, double width);
// A closed circle.
QPainterPath disc(QPointF centre, double radius);
// The band of `width` around a centre line, with flat ends.
QPainterPath band(const QPainterPath& centreline, double width, Qt::PenJoinStyle join = Qt::RoundJoin);
// A polyline through `points` whose inner corners are rounded with `radius`.
QPainterPath roundedPolyline(const QPolygonF& points, double radius);
// The region that rounds the corner between two rays from `corner` (directions in degrees) with a
// fillet of `radius`: the corner's point, the two tangent points and the arc between them.
QPainterPath fillet(QPointF corner, double rayDegrees, double otherRayDegrees, double radius);
// The centre of the arc of that fillet.
QPointF filletCentre(QPointF corner, double rayDegrees, double otherRayDegrees, double radius);
// The circle's bounding box, for arcs.
QRectF circleBox(QPointF centre, double radius);

// Where two lines through the given points cross (lines taken as unbounded).
QPointF crossing(QPointF onFirst, double firstDegrees, QPointF onSecond, double secondDegrees);

// A piece of a flow passage: the bore that carries the medium and the outline of bore plus wall.
// Walls are the union of the outlines less the union of the bores, so joined pieces open into
// one another (a branch opens into its main pipe).
struct Duct {
  QPainterPath bore;
  QPainterPath outer;
};
// A pipe of `bore` along a centre line, open at both ends.
Duct ductAlong(const QPainterPath& centreline, double bore, Qt::PenJoinStyle join = Qt::RoundJoin, double wall = kWall);
// A closed chamber (valve body, sphere, fillet) with a wall all round it.
Duct ductAround(const QPainterPath& region, double wall = kWall);
// Medium carved into the walls of other pieces (a rounded edge, a vessel), without a wall of its own.
inline Duct openSpace(const QPainterPath& region) {
  return {region, region};
}
// Solid wall without medium (a vessel wall, a flange).
inline Duct wallBlock(const QPainterPath& region) {
  return {QPainterPath(), region};
}
// A round passage of varying bore, given by its upper wall from upstream to downstream and
// mirrored about the axis; open at both ends.
Duct ductBetween(const QPolygonF& upperWall, double axisY, double wall = kWall);

class Sketch {
 public:
  explicit Sketch(QPainter& painter);

  // The flowing medium: light blue.
  void medium(const QPainterPath& region);
  // A wall or body cut by the section plane: hatched.
  void section(const QPainterPath& region);
  // A thin or moving part (plate, disc, gate, stem): solid dark grey.
  void part(const QPainterPath& region);
  // A part seen beyond the section plane (handwheel, screen behind): grey outline.
  void outline(const QPainterPath& path);
  // Joined duct pieces: the medium of all bores, the hatched walls around them.
  void ducts(const std::vector<Duct>& pieces);

  // The blue arrow of the flow direction.
  void flowArrow(QPointF from, QPointF to);
  // A curved flow arrow along a path, its head at the path's end.
  void flowArrow(const QPainterPath& path);
  // A dimension line between two points, with its letter beside it; labelSide +1 puts the letter
  // to the left of the direction from `from` to `to` (above a left-to-right line), -1 to the right.
  // `labelAt` places the letter along the line (0 at `from`, 1 at `to`). A short dimension gets
  // its arrows from outside.
  void dimension(QPointF from, QPointF to, const QString& letter, double labelSide = 1, double labelAt = 0.5);
  // A radius: from the centre to the arc, one arrow at the arc, the letter beyond the midpoint.
  void radius(QPointF centre, double distance, double degrees, const QString& letter = QStringLiteral("R"));
  // An angle between two directions from a vertex, as an arc with arrows and its letter.
  void angle(QPointF vertex, double arcRadius, double fromDegrees, double toDegrees,
             const QString& letter = QStringLiteral("w"));
  // A thin extension line from the part to a dimension.
  void extensionLine(QPointF from, QPointF to);
  // A dash-dotted centre line or axis.
  void centreLine(QPointF from, QPointF to);
  // A letter or short text centred on a point.
  void label(QPointF centre, const QString& text);

  // Every letter and text written so far, in drawing order.
  const QStringList& labels() const { return labels_; }

 private:
  void arrowHead(QPointF tip, QPointF direction, double length, double width, const QColor& colour);
  QPainter& painter_;
  QStringList labels_;
};

// The flanges that clamp an insert between two faces across a pipe, above and below it; their
// height and width are kFlange.
inline constexpr double kFlange = 9;
QPainterPath flangePair(double upstreamFace, double downstreamFace, double axisY, double outerRadius);

// The cross-section of a round pipe seen along the flow: wall ring, medium, centre lines; the bore
// is dimensioned with `letter` unless it is empty.
void roundSection(Sketch& sketch, QPointF centre, double bore, const QString& letter, double wall = kWall);
// The cross-section of a rectangular duct: `inner` is the clear opening, dimensioned with the two
// letters (width across, height up) inside the opening; an empty letter leaves its dimension out.
void rectangularSection(Sketch& sketch, const QRectF& inner, const QString& widthLetter, const QString& heightLetter,
                        double wall = kWall);

}  // namespace linecalc::gui::picture
