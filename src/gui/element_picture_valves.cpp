// Shut-off, control and check valves: a body on a straight pipe, its closing part shown open.
#include <QLineF>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

Duct pipeAcross(double axisY, double bore) {
  return ductAlong(segment(QPointF(8, axisY), QPointF(192, axisY)), bore);
}

void pipeDiameter(Sketch& s, double x, double axisY, double bore, double labelSide = 1) {
  s.dimension(QPointF(x, axisY + bore / 2), QPointF(x, axisY - bore / 2), QStringLiteral("D"), labelSide);
}

// The stem from the closing part out through the bonnet, and the handwheel across its end.
void stemWithHandwheel(Sketch& s, QPointF from, QPointF to) {
  const double degrees = QLineF(from, to).angle();
  s.part(bar(from, to, 4));
  s.part(bar(polar(to, 22, degrees + 90), polar(to, 22, degrees - 90), 4.5));
  s.part(disc(to, 4));
}

// A spring pressing the closing part onto its seat, between two points.
void spring(Sketch& s, QPointF from, QPointF to) {
  constexpr int turns = 5;
  const double degrees = QLineF(from, to).angle();
  const QPointF step = (to - from) / (2 * turns);
  QPolygonF coil{from};
  for (int i = 0; i < 2 * turns; ++i) coil << polar(from + step * (i + 0.5), 6, degrees + (i % 2 ? -90 : 90));
  coil << to;
  s.outline(polyline(coil));
}

// --- globe pattern: a straight body, the seat in a Z-shaped partition, the disc lifted by the flow
// coming from below ------------------------------------------------------------------------------

constexpr QPointF kGlobeCentre(100, 84);
constexpr double kGlobeBore = 30;
constexpr double kSeatY = 90;
constexpr double kSeatHalf = 8;

QPainterPath bonnetAbove(double width, double top) {
  const QPainterPath bonnet = rectangle(QRectF(kGlobeCentre.x() - width / 2, top, width, 60 - top));
  return bonnet;
}

void globeBody(Sketch& s, const Duct& bonnet) {
  s.ducts({pipeAcross(kGlobeCentre.y(), kGlobeBore), ductAround(ellipse(kGlobeCentre, 40, 30)), bonnet});
  constexpr double partitionLeft = 84;
  constexpr double partitionRight = 116;
  s.section(band(polyline({{partitionLeft, 53}, {partitionLeft, kSeatY}, {kGlobeCentre.x() - kSeatHalf, kSeatY}}), 5,
                 Qt::MiterJoin));
  s.section(band(polyline({{kGlobeCentre.x() + kSeatHalf, kSeatY}, {partitionRight, kSeatY}, {partitionRight, 114}}), 5,
                 Qt::MiterJoin));
  s.flowArrow(QPointF(36, kGlobeCentre.y()), QPointF(60, kGlobeCentre.y()));
  s.flowArrow(QPointF(146, kGlobeCentre.y() - 4), QPointF(186, kGlobeCentre.y() - 4));
  QPainterPath throughSeat(QPointF(70, 104));
  throughSeat.cubicTo(QPointF(90, 108), QPointF(101, 104), QPointF(100, 79));
  s.flowArrow(throughSeat);
  pipeDiameter(s, 24, kGlobeCentre.y(), kGlobeBore);
}

void globeDisc(Sketch& s) {
  s.part(bar(QPointF(88, 74), QPointF(112, 74), 5));
}

void straightSeatValve(Sketch& s) {
  globeBody(s, wallBlock(bonnetAbove(28, 34)));
  globeDisc(s);
  stemWithHandwheel(s, QPointF(100, 73), QPointF(100, 14));
}

void straightSeatCheckValve(Sketch& s) {
  globeBody(s, ductAround(bonnetAbove(16, 34)));
  globeDisc(s);
  spring(s, QPointF(100, 71), QPointF(100, 34));
}

// --- oblique pattern: the seat plane inclined across the body, the stem at right angles to it -------

constexpr QPointF kObliqueCentre(96, 84);
constexpr double kSeatPlaneDegrees = 120;  // the partition runs from upper left to lower right
constexpr double kObliqueStemDegrees = kSeatPlaneDegrees - 90;

QPainterPath obliqueBonnet(double length, double width) {
  return bar(polar(kObliqueCentre, 18, kObliqueStemDegrees), polar(kObliqueCentre, 18 + length, kObliqueStemDegrees),
             width);
}

void obliqueBody(Sketch& s, const Duct& bonnet) {
  s.ducts({pipeAcross(kObliqueCentre.y(), kGlobeBore), ductAround(ellipse(kObliqueCentre, 46, 28)), bonnet});
  for (double side : {0.0, 180.0}) {
    s.section(bar(polar(kObliqueCentre, kSeatHalf, kSeatPlaneDegrees + side),
                  polar(kObliqueCentre, 36, kSeatPlaneDegrees + side), 5));
  }
  s.part(bar(polar(polar(kObliqueCentre, 5, kObliqueStemDegrees), 13, kSeatPlaneDegrees),
             polar(polar(kObliqueCentre, 5, kObliqueStemDegrees), 13, kSeatPlaneDegrees + 180), 5));
  s.flowArrow(QPointF(30, kObliqueCentre.y()), QPointF(56, kObliqueCentre.y()));
  s.flowArrow(QPointF(150, kObliqueCentre.y() + 6), QPointF(186, kObliqueCentre.y() + 6));
  pipeDiameter(s, 20, kObliqueCentre.y(), kGlobeBore);
}

void obliqueSeatValve(Sketch& s) {
  obliqueBody(s, wallBlock(obliqueBonnet(30, 26)));
  stemWithHandwheel(s, polar(kObliqueCentre, 8, kObliqueStemDegrees), polar(kObliqueCentre, 80, kObliqueStemDegrees));
}

void obliqueSeatCheckValve(Sketch& s) {
  obliqueBody(s, ductAround(obliqueBonnet(26, 16)));
  spring(s, polar(kObliqueCentre, 8, kObliqueStemDegrees), polar(kObliqueCentre, 44, kObliqueStemDegrees));
}

// --- angle valve: in from below through the seat, out to the right ------------------------------

void angleValve(Sketch& s) {
  constexpr QPointF centre(84, 80);
  constexpr double bore = 28;
  constexpr double outletY = 66;
  constexpr double plateY = 92;
  const QPainterPath bonnet = rectangle(QRectF(centre.x() - 13, 36, 26, 18));
  s.ducts({ductAlong(segment(QPointF(centre.x(), 136), centre), bore),
           ductAlong(segment(QPointF(centre.x(), outletY), QPointF(192, outletY)), bore), ductAround(disc(centre, 30)),
           wallBlock(bonnet)});
  s.section(bar(QPointF(50, plateY), QPointF(centre.x() - kSeatHalf, plateY), 5));
  s.section(bar(QPointF(centre.x() + kSeatHalf, plateY), QPointF(118, plateY), 5));
  s.part(bar(QPointF(centre.x() - 12, plateY - 9), QPointF(centre.x() + 12, plateY - 9), 5));
  stemWithHandwheel(s, QPointF(centre.x(), plateY - 10), QPointF(centre.x(), 14));
  s.flowArrow(QPointF(centre.x(), 134), QPointF(centre.x(), 112));
  s.flowArrow(QPointF(126, outletY), QPointF(156, outletY));
  pipeDiameter(s, 176, outletY, bore);
}

// --- gate valve: a gate lowered from its housing leaves the opening H above the pipe's bottom -----

void gateValve(Sketch& s) {
  constexpr double axis = 90;
  constexpr double bore = 36;
  constexpr double opening = 15;
  const double bottom = axis + bore / 2;
  const QPainterPath housing = rectangle(QRectF(90, 28, 20, axis - 28));
  s.ducts({pipeAcross(axis, bore), ductAround(housing, 6)});
  s.part(bar(QPointF(100, 32), QPointF(100, bottom - opening), 12));
  stemWithHandwheel(s, QPointF(100, 32), QPointF(100, 8));
  s.extensionLine(QPointF(108, bottom - opening), QPointF(130, bottom - opening));
  s.dimension(QPointF(124, bottom), QPointF(124, bottom - opening), QStringLiteral("H"), -1);
  s.flowArrow(QPointF(36, axis), QPointF(82, axis));
  s.flowArrow(QPointF(140, axis), QPointF(184, axis));
  pipeDiameter(s, 24, axis, bore);
}

// --- cock and butterfly valve: the closing part turned by w out of the open position ----------------

void plugCock(Sketch& s) {
  constexpr QPointF centre(100, 80);
  constexpr double bore = 28;
  constexpr double plugRadius = 30;
  constexpr double turn = 30;
  s.ducts({pipeAcross(centre.y(), bore), ductAround(disc(centre, plugRadius), 8)});
  s.part(disc(centre, plugRadius)
             .subtracted(bar(polar(centre, plugRadius + 1, turn + 180), polar(centre, plugRadius + 1, turn), bore)));
  // the stem's square and the lever show the plug's position from outside
  s.part(bar(QPointF(centre.x(), centre.y() - plugRadius - 8), QPointF(centre.x(), 26), 8));
  s.part(bar(QPointF(centre.x(), 26), polar(QPointF(centre.x(), 26), 50, turn), 5));
  s.centreLine(polar(centre, 44, turn + 180), polar(centre, 44, turn));
  s.centreLine(QPointF(4, centre.y()), QPointF(196, centre.y()));
  s.angle(centre, 22, 0, turn);
  s.flowArrow(QPointF(34, centre.y()), QPointF(62, centre.y()));
  s.flowArrow(QPointF(142, centre.y()), QPointF(184, centre.y()));
  pipeDiameter(s, 22, centre.y(), bore);
}

void butterflyValve(Sketch& s) {
  constexpr QPointF centre(100, 76);
  constexpr double bore = 44;
  constexpr double turn = 30;
  const QPainterPath upperBody = rectangle(QRectF(88, centre.y() - bore / 2 - 12, 24, 12));
  const QPainterPath lowerBody = rectangle(QRectF(88, centre.y() + bore / 2, 24, 12));
  s.ducts({pipeAcross(centre.y(), bore), wallBlock(upperBody), wallBlock(lowerBody)});
  s.part(bar(polar(centre, bore / 2 - 1, turn + 180), polar(centre, bore / 2 - 1, turn), 4.5));
  s.part(disc(centre, 3.5));
  s.centreLine(QPointF(4, centre.y()), QPointF(196, centre.y()));
  s.angle(centre, 32, 0, turn);
  s.flowArrow(QPointF(36, centre.y()), QPointF(74, centre.y()));
  s.flowArrow(QPointF(146, centre.y() + 10), QPointF(186, centre.y() + 10));
  pipeDiameter(s, 22, centre.y(), bore);
}

// --- swing check valve: a flap hinged above the seat, swung open by the flow ---------------------------

void swingCheckValve(Sketch& s) {
  constexpr double axis = 90;
  constexpr double bore = 32;
  constexpr QPointF hinge(90, 66);
  s.ducts({pipeAcross(axis, bore), ductAround(ellipse(QPointF(110, 76), 34, 30))});
  const double top = axis - bore / 2;
  const double bottom = axis + bore / 2;
  s.part(bar(QPointF(84, top), QPointF(84, top + 7), 4));
  s.part(bar(QPointF(84, bottom), QPointF(84, bottom - 7), 4));
  s.part(bar(QPointF(hinge.x(), 47), hinge, 3));
  s.part(bar(hinge, polar(hinge, 36, 305), 4.5));
  s.part(disc(hinge, 3));
  s.flowArrow(QPointF(34, axis), QPointF(74, axis));
  s.flowArrow(QPointF(138, axis), QPointF(166, axis));
  pipeDiameter(s, 180, axis, bore, -1);
}

constexpr PictureEntry kPictures[] = {
    {2401, straightSeatValve},
    {2402, obliqueSeatValve},
    {2403, angleValve},
    {2404, gateValve},
    {2405, plugCock},
    {2406, butterflyValve},
    {2501, straightSeatCheckValve},
    {2502, obliqueSeatCheckValve},
    {2503, swingCheckValve},
};

}  // namespace

std::span<const PictureEntry> valvePictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
