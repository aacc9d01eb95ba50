// Bends, knees and expansion joints: the flow turns or the pipe makes room for its expansion.
#include <QLineF>
#include <cmath>
#include <numbers>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

// --- bends turning the flow from rightwards to upwards about a centre of curvature ---------------

constexpr QPointF kBendCentre(70, 36);
constexpr double kBendRadius = 62;
constexpr double kBendBore = 34;
constexpr double kInletY = kBendCentre.y() + kBendRadius;
constexpr double kOutletX = kBendCentre.x() + kBendRadius;

QPainterPath bendCentreline(QPointF centre, double radius, double inletStart, double outletEnd) {
  QPainterPath path(QPointF(inletStart, centre.y() + radius));
  path.lineTo(centre.x(), centre.y() + radius);
  path.arcTo(circleBox(centre, radius), 270, 90);
  path.lineTo(centre.x() + radius, outletEnd);
  return path;
}

QPainterPath arcOfBend(QPointF centre, double radius, double fromDegrees, double toDegrees) {
  QPainterPath path(polar(centre, radius, fromDegrees));
  path.arcTo(circleBox(centre, radius), fromDegrees, toDegrees - fromDegrees);
  return path;
}

// The end planes of the bend, the turning angle w at the centre and the radius R to the axis.
void bendGeometry(Sketch& s, double reach) {
  s.centreLine(kBendCentre, kBendCentre + QPointF(0, kBendRadius + reach));
  s.centreLine(kBendCentre, kBendCentre + QPointF(kBendRadius + reach, 0));
  s.angle(kBendCentre, 16, 270, 360);
  s.radius(kBendCentre, kBendRadius, 330);
}

void circularBendSideView(Sketch& s, double wall, const QString& widthLetter) {
  s.ducts({ductAlong(bendCentreline(kBendCentre, kBendRadius, 8, 6), kBendBore, Qt::RoundJoin, wall)});
  bendGeometry(s, kBendBore / 2 + wall + 4);
  s.flowArrow(arcOfBend(kBendCentre, kBendRadius, 278, 352));
  s.dimension(QPointF(30, kInletY + kBendBore / 2), QPointF(30, kInletY - kBendBore / 2), widthLetter);
}

void circularBend(Sketch& s) {
  circularBendSideView(s, kWall, QStringLiteral("D"));
}

void rectangularBend(Sketch& s) {
  constexpr double sheet = 3.5;
  circularBendSideView(s, sheet, QStringLiteral("B"));
  rectangularSection(s, QRectF(160, 98, 32, 26), {}, QStringLiteral("H"), sheet);
}

// A mitre bend of three joints: straight pieces tangent to the bend radius, each turning 30 degrees.
void segmentBend(Sketch& s) {
  constexpr int joints = 3;
  constexpr double turn = 90.0 / joints;
  const double vertexRadius = kBendRadius / std::cos(turn / 2 * std::numbers::pi / 180);
  QPolygonF axis{{8, kInletY}, {kBendCentre.x(), kInletY}};
  for (int joint = 0; joint < joints; ++joint) axis << polar(kBendCentre, vertexRadius, 270 + turn / 2 + joint * turn);
  axis << QPointF(kOutletX, kBendCentre.y()) << QPointF(kOutletX, 6);
  QPainterPath centreline(axis.front());
  for (const QPointF& point : axis) centreline.lineTo(point);
  s.ducts({ductAlong(centreline, kBendBore, Qt::MiterJoin)});
  // the seams of the mitres run through the bend's centre
  const double seamHalf = (kBendBore / 2 + kWall) / std::cos(turn / 2 * std::numbers::pi / 180);
  for (int joint = 0; joint < joints; ++joint) {
    const double degrees = 270 + turn / 2 + joint * turn;
    QPainterPath seam(polar(kBendCentre, vertexRadius - seamHalf, degrees));
    seam.lineTo(polar(kBendCentre, vertexRadius + seamHalf, degrees));
    s.outline(seam);
  }
  s.centreLine(kBendCentre, kBendCentre + QPointF(0, kBendRadius + 26));
  s.centreLine(kBendCentre, kBendCentre + QPointF(kBendRadius + 26, 0));
  s.angle(kBendCentre, 16, 270, 360);
  s.flowArrow(arcOfBend(kBendCentre, kBendRadius, 280, 350));
  s.dimension(QPointF(30, kInletY + kBendBore / 2), QPointF(30, kInletY - kBendBore / 2), QStringLiteral("D"));
}

// A cast bend: short radius, thick walls, a flange at each end.
void castIronBend(Sketch& s) {
  constexpr QPointF centre(72, 46);
  constexpr double radius = 40;
  constexpr double bore = 34;
  constexpr double castWall = 8;
  constexpr double flangeReach = bore / 2 + castWall + 9;
  constexpr double inletStart = 22;
  constexpr double outletEnd = 14;
  const double inletY = centre.y() + radius;
  const double outletX = centre.x() + radius;
  const QPainterPath inletFlange = rectangle(QRectF(inletStart, inletY - flangeReach, 9, 2 * flangeReach));
  const QPainterPath outletFlange = rectangle(QRectF(outletX - flangeReach, outletEnd, 2 * flangeReach, 9));
  s.ducts({ductAlong(bendCentreline(centre, radius, inletStart, outletEnd), bore, Qt::RoundJoin, castWall),
           wallBlock(inletFlange), wallBlock(outletFlange)});
  for (double offset : {-1.0, 1.0}) {  // bolt holes of the flanges
    s.centreLine(QPointF(inletStart - 4, inletY + offset * (flangeReach - 4.5)),
                 QPointF(inletStart + 13, inletY + offset * (flangeReach - 4.5)));
    s.centreLine(QPointF(outletX + offset * (flangeReach - 4.5), outletEnd - 4),
                 QPointF(outletX + offset * (flangeReach - 4.5), outletEnd + 13));
  }
  s.centreLine(QPointF(inletStart - 8, inletY), QPointF(centre.x(), inletY));
  s.centreLine(QPointF(outletX, centre.y()), QPointF(outletX, outletEnd - 8));
  s.flowArrow(arcOfBend(centre, radius, 276, 354));
  s.dimension(QPointF(48, inletY + bore / 2), QPointF(48, inletY - bore / 2), QStringLiteral("DN"));
}

// --- knees: two pipes meeting in one mitre, the outlet turned by w -------------------------------

constexpr QPointF kKneeVertex(92, 98);
constexpr double kKneeTurn = 45;

void kneeSideView(Sketch& s, double wall, const QString& widthLetter) {
  constexpr double bore = 34;
  QPainterPath centreline(QPointF(8, kKneeVertex.y()));
  centreline.lineTo(kKneeVertex);
  centreline.lineTo(polar(kKneeVertex, 100, kKneeTurn));
  s.ducts({ductAlong(centreline, bore, Qt::MiterJoin, wall)});
  const double seamHalf = (bore / 2 + wall) / std::cos(kKneeTurn / 2 * std::numbers::pi / 180);
  QPainterPath seam(polar(kKneeVertex, seamHalf, 90 + kKneeTurn / 2));
  seam.lineTo(polar(kKneeVertex, seamHalf, 270 + kKneeTurn / 2));
  s.outline(seam);
  s.centreLine(kKneeVertex, polar(kKneeVertex, 64, 0));
  s.centreLine(kKneeVertex, polar(kKneeVertex, 104, kKneeTurn));
  s.angle(kKneeVertex, 58, 0, kKneeTurn);
  s.flowArrow(QPointF(40, kKneeVertex.y()), QPointF(82, kKneeVertex.y()));
  s.flowArrow(polar(kKneeVertex, 20, kKneeTurn), polar(kKneeVertex, 56, kKneeTurn));
  s.dimension(QPointF(24, kKneeVertex.y() + bore / 2), QPointF(24, kKneeVertex.y() - bore / 2), widthLetter);
}

void circularKnee(Sketch& s) {
  kneeSideView(s, kWall, QStringLiteral("D"));
  roundSection(s, QPointF(170, 112), 22, {});
}

void rectangularKnee(Sketch& s) {
  constexpr double sheet = 3.5;
  kneeSideView(s, sheet, QStringLiteral("B"));
  rectangularSection(s, QRectF(154, 100, 36, 26), {}, QStringLiteral("H"), sheet);
}

// --- expansion joints ---------------------------------------------------------------------------

void bellowsJoint(Sketch& s) {
  constexpr double axis = 70;
  constexpr double radius = 20;
  constexpr double start = 72;
  constexpr double waveLength = 20;
  constexpr int waves = 3;
  constexpr double end = start + waves * waveLength;
  constexpr double height = 15;
  QPolygonF bellows;
  for (double x = start; x <= end + 0.01; x += 1) {
    const double hump = std::sin(std::numbers::pi * (x - start) / waveLength);
    bellows << QPointF(x, axis - radius - height * hump * hump);
  }
  QPainterPath inletPipe(QPointF(8, axis));
  inletPipe.lineTo(start, axis);
  QPainterPath outletPipe(QPointF(end, axis));
  outletPipe.lineTo(192, axis);
  s.ducts({ductAlong(inletPipe, 2 * radius), ductAlong(outletPipe, 2 * radius), ductBetween(bellows, axis, 2.5)});
  s.centreLine(QPointF(4, axis), QPointF(196, axis));
  s.flowArrow(QPointF(46, axis), QPointF(160, axis));
  s.dimension(QPointF(28, axis + radius), QPointF(28, axis - radius), QStringLiteral("D"));
}

constexpr double kLoopBore = 14;
constexpr double kFootY = 116;

void loopFlowAndDiameter(Sketch& s) {
  s.flowArrow(QPointF(8, kFootY), QPointF(42, kFootY));
  s.dimension(QPointF(172, kFootY + kLoopBore / 2), QPointF(172, kFootY - kLoopBore / 2), QStringLiteral("D"), -1);
}

// The lyre: from each foot the pipe turns inwards and up into one wide loop, like an omega.
void lyraBend(Sketch& s) {
  constexpr QPointF loopCentre(100, 54);
  constexpr double loopRadius = 40;
  constexpr double neck = 14;  // how far the feet's curves reach towards the loop
  const QPointF loopStart = polar(loopCentre, loopRadius, 240);
  const QPointF loopEnd = polar(loopCentre, loopRadius, 300);
  QPainterPath centreline(QPointF(8, kFootY));
  centreline.lineTo(52, kFootY);
  centreline.cubicTo(QPointF(76, kFootY), loopStart - polar(QPointF(), neck, 150), loopStart);
  centreline.arcTo(circleBox(loopCentre, loopRadius), 240, -300);
  centreline.cubicTo(loopEnd + polar(QPointF(), neck, 210), QPointF(124, kFootY), QPointF(148, kFootY));
  centreline.lineTo(192, kFootY);
  s.ducts({ductAlong(centreline, kLoopBore, Qt::RoundJoin, 4)});
  loopFlowAndDiameter(s);
}

// The U-bend: the pipe rises by L, runs across and comes down again.
void uBend(Sketch& s) {
  constexpr double top = 28;
  const QPolygonF run{{8, kFootY}, {64, kFootY}, {64, top}, {136, top}, {136, kFootY}, {192, kFootY}};
  s.ducts({ductAlong(roundedPolyline(run, 18), kLoopBore, Qt::RoundJoin, 4)});
  s.centreLine(QPointF(64, kFootY), QPointF(136, kFootY));
  s.centreLine(QPointF(64, top), QPointF(136, top));
  s.dimension(QPointF(100, kFootY), QPointF(100, top), QStringLiteral("L"), -1);
  loopFlowAndDiameter(s);
}

constexpr PictureEntry kPictures[] = {
    {2101, circularBend},    {2102, segmentBend},  {2103, castIronBend}, {2104, rectangularBend}, {2105, circularKnee},
    {2106, rectangularKnee}, {2301, bellowsJoint}, {2302, lyraBend},     {2303, uBend},
};

}  // namespace

std::span<const PictureEntry> bendPictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
