// Straight pipes, pipe inlets, changes of section and the reversible pressure changes: flow from
// left to right along a horizontal axis.
#include <QLineF>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

// The length of a run between two ends, dimensioned below it.
void lengthBelow(Sketch& s, double left, double right, double pipeBottom) {
  const double dimensionY = pipeBottom + 13;
  s.extensionLine(QPointF(left, pipeBottom + 2), QPointF(left, dimensionY + 4));
  s.extensionLine(QPointF(right, pipeBottom + 2), QPointF(right, dimensionY + 4));
  s.dimension(QPointF(left, dimensionY), QPointF(right, dimensionY), QStringLiteral("L"), -1);
}

// --- straight pipes: side view on the left, cross-section on the right ---------------------------

constexpr double kRunLeft = 12;
constexpr double kRunRight = 128;
constexpr double kRunAxis = 62;
constexpr QPointF kSectionCentre(166, 62);

void straightRun(Sketch& s, double bore, double wall = kWall) {
  s.ducts({ductAlong(segment(QPointF(kRunLeft, kRunAxis), QPointF(kRunRight, kRunAxis)), bore, Qt::RoundJoin, wall)});
  s.centreLine(QPointF(kRunLeft - 6, kRunAxis), QPointF(kRunRight + 6, kRunAxis));
  lengthBelow(s, kRunLeft, kRunRight, kRunAxis + bore / 2 + wall);
}

void circularPipe(Sketch& s) {
  straightRun(s, 40);
  s.flowArrow(QPointF(24, kRunAxis), QPointF(76, kRunAxis));
  s.dimension(QPointF(112, kRunAxis + 20), QPointF(112, kRunAxis - 20), QStringLiteral("D"));
  roundSection(s, kSectionCentre, 40, {});
}

void rectangularPipe(Sketch& s) {
  constexpr double sheet = 3.5;
  straightRun(s, 32, sheet);
  s.flowArrow(QPointF(24, kRunAxis), QPointF(90, kRunAxis));
  rectangularSection(s, QRectF(140, kRunAxis - 16, 52, 32), QStringLiteral("B"), QStringLiteral("H"), sheet);
}

void annularPipe(Sketch& s) {
  constexpr double bore = 44;
  constexpr double core = 16;
  straightRun(s, bore);
  s.section(bar(QPointF(kRunLeft, kRunAxis), QPointF(kRunRight, kRunAxis), core));
  s.flowArrow(QPointF(24, kRunAxis - 15), QPointF(80, kRunAxis - 15));
  s.dimension(QPointF(116, kRunAxis + bore / 2), QPointF(116, kRunAxis - bore / 2), QStringLiteral("D"));
  roundSection(s, kSectionCentre, bore, {});
  s.section(disc(kSectionCentre, core / 2));
  // the core's diameter below the section
  const double below = kSectionCentre.y() + bore / 2 + kWall + 8;
  for (double side : {-1.0, 1.0}) {
    s.extensionLine(kSectionCentre + QPointF(side * core / 2, core / 2 + 1),
                    QPointF(kSectionCentre.x() + side * core / 2, below + 3));
  }
  s.dimension(QPointF(kSectionCentre.x() - core / 2, below), QPointF(kSectionCentre.x() + core / 2, below),
              QStringLiteral("Di"), -1);
}

void channel(Sketch& s) {
  constexpr double masonry = 11;
  straightRun(s, 36, masonry);
  s.flowArrow(QPointF(24, kRunAxis), QPointF(90, kRunAxis));
  rectangularSection(s, QRectF(146, kRunAxis - 18, 40, 36), QStringLiteral("B"), QStringLiteral("H"), masonry);
}

void otherShapePipe(Sketch& s) {
  straightRun(s, 36);
  s.flowArrow(QPointF(24, kRunAxis), QPointF(90, kRunAxis));
  // A horseshoe section stands for any shape given by its area and wetted circumference.
  QPainterPath shape(QPointF(146, 80));
  shape.lineTo(186, 80);
  shape.lineTo(186, 64);
  shape.arcTo(QRectF(146, 44, 40, 40), 0, 180);
  shape.closeSubpath();
  s.ducts({ductAround(shape)});
  s.label(QPointF(166, 68), QStringLiteral("A"));
}

void corrugatedPipe(Sketch& s) {
  constexpr double axis = 66;
  constexpr double left = 10;
  constexpr double right = 170;  // ends in a trough
  constexpr double innerRadius = 18;
  constexpr double depth = 7;
  constexpr double pitch = 20;
  QPolygonF upperWall;
  for (double x = left; x <= right; x += 1) {
    const double wave = (1 - std::cos(2 * std::numbers::pi * (x - left) / pitch)) / 2;
    upperWall << QPointF(x, axis - innerRadius - depth * wave);
  }
  s.ducts({ductBetween(upperWall, axis)});
  s.centreLine(QPointF(left - 4, axis), QPointF(right + 4, axis));
  s.flowArrow(QPointF(22, axis), QPointF(80, axis));
  s.dimension(QPointF(130, axis + innerRadius), QPointF(130, axis - innerRadius), QStringLiteral("D"));
  // pitch T between two troughs, above the pipe
  const double troughTop = axis - innerRadius - kWall;
  const double crestTop = troughTop - depth;
  s.extensionLine(QPointF(70, troughTop - 2), QPointF(70, 16));
  s.extensionLine(QPointF(90, troughTop - 2), QPointF(90, 16));
  s.dimension(QPointF(70, 20), QPointF(90, 20), QStringLiteral("T"));
  // depth t of a wave, between the outside of the last crest and of the end trough
  s.extensionLine(QPointF(right - pitch / 2, crestTop), QPointF(right + 14, crestTop));
  s.extensionLine(QPointF(right + 2, troughTop), QPointF(right + 14, troughTop));
  s.dimension(QPointF(right + 10, troughTop), QPointF(right + 10, crestTop), QStringLiteral("t"), -1);
  lengthBelow(s, left, right, axis + innerRadius + kWall);
}

// --- inlets: a vessel on the left, its wall face at x = kFace, the pipe leading away to the right -

constexpr double kFace = 50;
constexpr double kVesselWall = 14;
constexpr double kInletAxis = 70;
constexpr double kInletBore = 40;

// The vessel and the pipe; `extras` are rounded edges carved into the wall.
void vesselWithPipe(Sketch& s, const Duct& pipe, std::vector<Duct> extras = {}) {
  const QPainterPath vessel = rectangle(QRectF(QPointF(8, 8), QPointF(kFace, 132))).subtracted(pipe.outer);
  extras.push_back(openSpace(vessel));
  extras.push_back(wallBlock(rectangle(QRectF(QPointF(kFace, 8), QPointF(kFace + kVesselWall, 132)))));
  extras.push_back(pipe);
  s.ducts(extras);
}

Duct straightInletPipe(double from) {
  return ductAlong(segment(QPointF(from, kInletAxis), QPointF(192, kInletAxis)), kInletBore);
}

void inletDimensions(Sketch& s) {
  s.centreLine(QPointF(10, kInletAxis), QPointF(196, kInletAxis));
  s.flowArrow(QPointF(16, kInletAxis), QPointF(100, kInletAxis));
  s.dimension(QPointF(160, kInletAxis + kInletBore / 2), QPointF(160, kInletAxis - kInletBore / 2),
              QStringLiteral("D"));
}

void sharpInlet(Sketch& s) {
  vesselWithPipe(s, straightInletPipe(kFace));
  inletDimensions(s);
}

void roundedInlet(Sketch& s) {
  constexpr double edgeRadius = 22;
  const QPointF upperEdge(kFace, kInletAxis - kInletBore / 2);
  const QPointF lowerEdge(kFace, kInletAxis + kInletBore / 2);
  vesselWithPipe(s, straightInletPipe(kFace),
                 {ductAround(fillet(upperEdge, 90, 0, edgeRadius)), ductAround(fillet(lowerEdge, 270, 0, edgeRadius))});
  inletDimensions(s);
}

void inletAtAngle(Sketch& s) {
  constexpr double pipeDegrees = 45;
  constexpr double bore = 32;
  const QPointF mouth(kFace, 92);  // where the pipe's axis meets the wall face
  const Duct pipe = ductAlong(segment(polar(mouth, 30, pipeDegrees + 180), polar(mouth, 104, pipeDegrees)), bore);
  const QPainterPath beyondFace = rectangle(QRectF(QPointF(kFace, 0), QPointF(kCanvasWidth, kCanvasHeight)));
  vesselWithPipe(s, {pipe.bore.intersected(beyondFace), pipe.outer.intersected(beyondFace)});
  s.centreLine(polar(mouth, 40, pipeDegrees + 180), polar(mouth, 110, pipeDegrees));
  s.flowArrow(polar(mouth, 14, pipeDegrees), polar(mouth, 66, pipeDegrees));
  const QPointF across = polar(mouth, 84, pipeDegrees);
  s.dimension(polar(across, bore / 2, pipeDegrees - 90), polar(across, bore / 2, pipeDegrees + 90),
              QStringLiteral("D"));
  // The angle between the wall and the pipe's axis, drawn on the vessel's side.
  s.angle(mouth, 22, 270, pipeDegrees + 180);
}

void protrudingInlet(Sketch& s) {
  vesselWithPipe(s, straightInletPipe(22));
  inletDimensions(s);
}

// --- changes of section: round passages of varying bore ------------------------------------------

constexpr double kAxis = 70;

void sectionChange(Sketch& s, const QPolygonF& upperWall, double upstreamRadius, double downstreamRadius) {
  s.ducts({ductBetween(upperWall, kAxis)});
  s.centreLine(QPointF(6, kAxis), QPointF(194, kAxis));
  s.flowArrow(QPointF(44, kAxis), QPointF(140, kAxis));
  s.dimension(QPointF(28, kAxis + upstreamRadius), QPointF(28, kAxis - upstreamRadius), QStringLiteral("D1"));
  s.dimension(QPointF(172, kAxis + downstreamRadius), QPointF(172, kAxis - downstreamRadius), QStringLiteral("D2"));
}

constexpr double kSmallRadius = 16;
constexpr double kLargeRadius = 34;

void suddenExpansion(Sketch& s) {
  sectionChange(
      s,
      {{10, kAxis - kSmallRadius}, {96, kAxis - kSmallRadius}, {96, kAxis - kLargeRadius}, {190, kAxis - kLargeRadius}},
      kSmallRadius, kLargeRadius);
}

void suddenContraction(Sketch& s) {
  sectionChange(s,
                {{10, kAxis - kLargeRadius},
                 {100, kAxis - kLargeRadius},
                 {100, kAxis - kSmallRadius},
                 {190, kAxis - kSmallRadius}},
                kLargeRadius, kSmallRadius);
}

// A cone between two pipes; the angle w is drawn between the cone's wall and the wall of the pipe
// at its narrow end, on the side of the medium.
void cone(Sketch& s, double upstreamRadius, double downstreamRadius) {
  constexpr double start = 76;
  constexpr double end = 118;
  const QPointF coneStart(start, kAxis - upstreamRadius);
  const QPointF coneEnd(end, kAxis - downstreamRadius);
  sectionChange(s, {{10, coneStart.y()}, coneStart, coneEnd, {190, coneEnd.y()}}, upstreamRadius, downstreamRadius);
  const bool widening = downstreamRadius > upstreamRadius;
  const QPointF vertex = widening ? coneStart : coneEnd;
  const double reference = widening ? 0 : 180;
  const double wallDegrees = QLineF(vertex, widening ? coneEnd : coneStart).angle();
  s.extensionLine(vertex, polar(vertex, 46, reference));
  s.angle(vertex, 38, reference, wallDegrees);
}

void gradualExpansion(Sketch& s) {
  cone(s, kSmallRadius, kLargeRadius);
}
void gradualContraction(Sketch& s) {
  cone(s, kLargeRadius, kSmallRadius);
}

// --- reversible pressure changes ----------------------------------------------------------------

void heightDifference(Sketch& s) {
  constexpr double inletLevel = 112;
  constexpr double outletLevel = 40;
  const QPolygonF run{{40, inletLevel}, {84, inletLevel}, {128, outletLevel}, {190, outletLevel}};
  s.ducts({ductAlong(roundedPolyline(run, 16), 18)});
  s.flowArrow(QPointF(95, 94), QPointF(119, 55));
  s.extensionLine(QPointF(38, inletLevel), QPointF(14, inletLevel));
  s.extensionLine(QPointF(122, outletLevel), QPointF(14, outletLevel));
  s.dimension(QPointF(22, inletLevel), QPointF(22, outletLevel), QStringLiteral("H"), -1);
}

// A smooth change between two sections, each marked by its plane and number.
QPolygonF smoothTransition(double axis, double upstreamRadius, double downstreamRadius) {
  QPolygonF wall;
  for (double x = 10; x <= 190; x += 2) {
    const double blend = std::clamp((x - 80) / 40, 0.0, 1.0);
    const double radius =
        upstreamRadius + (downstreamRadius - upstreamRadius) * (1 - std::cos(std::numbers::pi * blend)) / 2;
    wall << QPointF(x, axis - radius);
  }
  return wall;
}

void sectionPlanes(Sketch& s, double axis, double upstreamRadius, double downstreamRadius, double wall) {
  const double planes[] = {40, 160};
  const double radii[] = {upstreamRadius, downstreamRadius};
  for (int i = 0; i < 2; ++i) {
    const double reach = radii[i] + wall + 5;
    s.centreLine(QPointF(planes[i], axis - reach), QPointF(planes[i], axis + reach));
    s.label(QPointF(planes[i], axis - reach - 6), QString::number(i + 1));
  }
  s.centreLine(QPointF(6, axis), QPointF(194, axis));
  s.flowArrow(QPointF(56, axis), QPointF(146, axis));
}

void dynamicChangeRound(Sketch& s) {
  constexpr double upstream = 28;
  constexpr double downstream = 15;
  s.ducts({ductBetween(smoothTransition(kAxis, upstream, downstream), kAxis)});
  sectionPlanes(s, kAxis, upstream, downstream, kWall);
  s.dimension(QPointF(26, kAxis + upstream), QPointF(26, kAxis - upstream), QStringLiteral("D1"));
  s.dimension(QPointF(176, kAxis + downstream), QPointF(176, kAxis - downstream), QStringLiteral("D2"), -1);
}

void dynamicChangeRectangular(Sketch& s) {
  constexpr double axis = 44;
  constexpr double upstream = 16;
  constexpr double downstream = 9;
  constexpr double sheet = 3.5;
  s.ducts({ductBetween(smoothTransition(axis, upstream, downstream), axis, sheet)});
  sectionPlanes(s, axis, upstream, downstream, sheet);
  // the sections against the flow, drawn larger than the side view so that their letters fit
  rectangularSection(s, QRectF(12, 86, 64, 36), QStringLiteral("B1"), QStringLiteral("H1"), sheet);
  rectangularSection(s, QRectF(128, 92, 52, 26), QStringLiteral("B2"), QStringLiteral("H2"), sheet);
}

constexpr PictureEntry kPictures[] = {
    {1601, circularPipe},
    {1602, rectangularPipe},
    {1603, annularPipe},
    {1604, channel},
    {1605, otherShapePipe},
    {1606, corrugatedPipe},
    {1701, sharpInlet},
    {1702, roundedInlet},
    {1703, inletAtAngle},
    {1704, protrudingInlet},
    {1801, suddenExpansion},
    {1802, gradualExpansion},
    {1803, suddenContraction},
    {1804, gradualContraction},
    {2801, heightDifference},
    {3202, dynamicChangeRound},
    {3203, dynamicChangeRectangular},
};

}  // namespace

std::span<const PictureEntry> straightPipePictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
