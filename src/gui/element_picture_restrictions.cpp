// Orifices, nozzles and the element of a known resistance coefficient: the flow is throttled
// in a pipe of diameter D1 to the throat D2.
#include <QLineF>
#include <QTransform>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

constexpr double kAxis = 70;
constexpr double kPipeRadius = 30;
constexpr double kThroatRadius = 14;
constexpr double kBoreWall = kAxis - kPipeRadius;      // the pipe's upper inner wall
constexpr double kOuterWall = kBoreWall - kWall;       // the pipe's upper outer wall
constexpr double kThroatWall = kAxis - kThroatRadius;  // the throat's upper edge
constexpr double kFlangeTop = kOuterWall - kFlange;    // where a clamped plate ends outside

QPainterPath mirrored(const QPainterPath& upper) {
  return QTransform(1, 0, 0, -1, 0, 2 * kAxis).map(upper);
}

// The pipe with a pair of flanges clamping the restriction between `upstreamFace` and `downstreamFace`;
// `taps` are the bores of pressure tappings through the flanges.
void flangedPipe(Sketch& s, double upstreamFace, double downstreamFace, std::vector<Duct> taps = {}) {
  taps.push_back(ductAlong(segment(QPointF(8, kAxis), QPointF(192, kAxis)), 2 * kPipeRadius));
  taps.push_back(wallBlock(flangePair(upstreamFace, downstreamFace, kAxis, kPipeRadius + kWall)));
  s.ducts(taps);
  s.centreLine(QPointF(4, kAxis), QPointF(196, kAxis));
}

// Both halves of a cut restriction, given by its upper half.
void restriction(Sketch& s, const QPainterPath& upperHalf) {
  s.section(upperHalf);
  s.section(mirrored(upperHalf));
}

// D1 upstream, D2 at the throat's edge (at x = edge) and the flow arrow in front.
void throttleDimensions(Sketch& s, double edge, double dimensionX) {
  s.dimension(QPointF(22, kAxis + kPipeRadius), QPointF(22, kAxis - kPipeRadius), QStringLiteral("D1"));
  s.extensionLine(QPointF(edge + 1, kThroatWall), QPointF(dimensionX + 4, kThroatWall));
  s.extensionLine(QPointF(edge + 1, 2 * kAxis - kThroatWall), QPointF(dimensionX + 4, 2 * kAxis - kThroatWall));
  s.dimension(QPointF(dimensionX, 2 * kAxis - kThroatWall), QPointF(dimensionX, kThroatWall), QStringLiteral("D2"), -1);
  s.flowArrow(QPointF(34, kAxis), QPointF(78, kAxis));
}

// The standard orifice: a plate with a square inlet edge, bevelled on its outlet side, and corner
// tappings on both sides.
void isoOrifice(Sketch& s) {
  constexpr double face = 96;
  constexpr double thickness = 8;
  std::vector<Duct> taps;
  for (double x : {face - 4, face + thickness + 4}) {
    taps.push_back(ductAlong(segment(QPointF(x, kBoreWall + 1), QPointF(x, kOuterWall - 18)), 2.5, Qt::RoundJoin, 1.5));
  }
  flangedPipe(s, face, face + thickness, taps);
  restriction(s, polygon({{face, kFlangeTop},
                          {face, kThroatWall},
                          {face + 3, kThroatWall},
                          {face + thickness, kThroatWall - 5},
                          {face + thickness, kFlangeTop}}));
  throttleDimensions(s, face + 3, 124);
}

void sharpOrifice(Sketch& s) {
  constexpr double face = 98;
  constexpr double thickness = 4;
  flangedPipe(s, face, face + thickness);
  restriction(s, rectangle(QRectF(QPointF(face, kFlangeTop), QPointF(face + thickness, kThroatWall))));
  throttleDimensions(s, face + thickness, 120);
}

// The inlet edge rounded with R.
void roundedOrifice(Sketch& s) {
  constexpr double face = 92;
  constexpr double thickness = 14;
  constexpr double rounding = 9;
  flangedPipe(s, face, face + thickness);
  QPainterPath plate(QPointF(face, kFlangeTop));
  plate.lineTo(face, kThroatWall - rounding);
  plate.arcTo(circleBox(QPointF(face + rounding, kThroatWall - rounding), rounding), 180, 90);
  plate.lineTo(face + thickness, kThroatWall);
  plate.lineTo(face + thickness, kFlangeTop);
  plate.closeSubpath();
  restriction(s, plate);
  throttleDimensions(s, face + thickness, 128);
  s.radius(QPointF(face + rounding, kThroatWall - rounding), rounding, 225);
}

// A thick disc of length L with a cylindrical bore.
void perforatedDisc(Sketch& s) {
  constexpr double face = 88;
  constexpr double length = 24;
  flangedPipe(s, face, face + length);
  restriction(s, rectangle(QRectF(QPointF(face, kFlangeTop), QPointF(face + length, kThroatWall))));
  throttleDimensions(s, face + length, 132);
  for (double x : {face, face + length}) s.extensionLine(QPointF(x, kFlangeTop - 2), QPointF(x, 6));
  s.dimension(QPointF(face, 12), QPointF(face + length, 12), QStringLiteral("L"), -1);
}

// The standard nozzle: a quarter-round inlet into a cylindrical throat, with a recess at the outlet.
void isoNozzle(Sketch& s) {
  constexpr double face = 84;
  constexpr double length = 30;
  flangedPipe(s, face, face + length);
  QPainterPath body(QPointF(face, kFlangeTop));
  body.lineTo(face, kBoreWall + 3);
  body.quadTo(QPointF(face, kThroatWall), QPointF(face + 14, kThroatWall));
  body.lineTo(face + length - 5, kThroatWall);
  body.lineTo(face + length - 5, kThroatWall - 4);
  body.lineTo(face + length, kThroatWall - 4);
  body.lineTo(face + length, kFlangeTop);
  body.closeSubpath();
  restriction(s, body);
  throttleDimensions(s, face + length - 5, 136);
}

// The long-radius nozzle: a thin quarter-ellipse reaching upstream into the pipe, held by a plate
// at its outlet.
void longRadiusNozzle(Sketch& s) {
  constexpr double mount = 128;
  constexpr double shell = 3;
  flangedPipe(s, mount, mount + 6);
  QPainterPath contour(QPointF(58, kBoreWall + 5));
  contour.cubicTo(QPointF(58, kThroatWall - 7), QPointF(78, kThroatWall - shell / 2),
                  QPointF(100, kThroatWall - shell / 2));
  contour.lineTo(mount + 1, kThroatWall - shell / 2);
  restriction(
      s,
      band(contour, shell).united(rectangle(QRectF(QPointF(mount, kFlangeTop), QPointF(mount + 6, kThroatWall - 1)))));
  throttleDimensions(s, mount + 6, 156);
}

// The venturi nozzle: the nozzle's inlet, a short throat and a cone back to the pipe, opening at w.
void venturiNozzle(Sketch& s) {
  constexpr double throatEnd = 92;
  constexpr double diffuserEnd = 160;
  QPolygonF wall{{8, kBoreWall}, {56, kBoreWall}, {56, kBoreWall + 6}};
  for (double t = 0.1; t <= 1.0; t += 0.1) {  // quarter-round inlet, as a quadratic curve
    const double x = 56 + 16 * t * t;
    const double y = (1 - t) * (1 - t) * (kBoreWall + 6) + (2 * (1 - t) * t + t * t) * kThroatWall;
    wall << QPointF(x, y);
  }
  wall << QPointF(throatEnd, kThroatWall) << QPointF(diffuserEnd, kBoreWall) << QPointF(192, kBoreWall);
  s.ducts({ductBetween(wall, kAxis)});
  s.centreLine(QPointF(4, kAxis), QPointF(196, kAxis));
  // the cone's walls drawn back to where they meet on the axis
  const double halfAngle = QLineF(QPointF(throatEnd, kThroatWall), QPointF(diffuserEnd, kBoreWall)).angle();
  const QPointF apex = crossing(QPointF(throatEnd, kThroatWall), halfAngle, QPointF(0, kAxis), 0);
  s.extensionLine(QPointF(throatEnd, kThroatWall), apex);
  s.extensionLine(QPointF(throatEnd, 2 * kAxis - kThroatWall), apex);
  s.angle(apex, 30, -halfAngle, halfAngle);
  s.dimension(QPointF(throatEnd - 6, 2 * kAxis - kThroatWall), QPointF(throatEnd - 6, kThroatWall),
              QStringLiteral("D2"), -1);
  s.dimension(QPointF(178, kAxis + kPipeRadius), QPointF(178, kAxis - kPipeRadius), QStringLiteral("D1"));
  s.flowArrow(QPointF(110, kAxis), QPointF(152, kAxis));
}

// A housing of unknown inside whose loss is given by its coefficient; the pipe is round (D) or
// rectangular (B x H).
void knownCoefficient(Sketch& s) {
  constexpr double axis = 48;
  constexpr double bore = 28;
  QPainterPath line(QPointF(8, axis));
  line.lineTo(192, axis);
  s.ducts({ductAlong(line, bore), ductAround(rectangle(QRectF(QPointF(76, 22), QPointF(124, 74))))});
  s.label(QPointF(100, axis), QString(QChar(0x03B6)));
  s.flowArrow(QPointF(16, axis), QPointF(64, axis));
  s.flowArrow(QPointF(136, axis), QPointF(184, axis));
  roundSection(s, QPointF(60, 108), 38, QStringLiteral("D"));
  rectangularSection(s, QRectF(112, 96, 48, 30), QStringLiteral("B"), QStringLiteral("H"));
}

constexpr PictureEntry kPictures[] = {
    {2601, isoOrifice}, {2602, sharpOrifice},      {2603, roundedOrifice}, {2604, perforatedDisc},
    {2605, isoNozzle},  {26051, longRadiusNozzle}, {2606, venturiNozzle},  {2802, knownCoefficient},
};

}  // namespace

std::span<const PictureEntry> restrictionPictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
