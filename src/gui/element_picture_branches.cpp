// Tees, branch pieces and breeches pipes: the flow divides or combines.
#include <QLineF>
#include <cmath>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

// --- tees: a main pipe along kMainY, the branch rising at kTeeX ----------------------------------

constexpr double kMainY = 96;
constexpr double kTeeX = 100;

Duct mainPipe(double bore) {
  return ductAlong(segment(QPointF(8, kMainY), QPointF(192, kMainY)), bore);
}
Duct risingBranch(QPointF from, double bore) {
  return ductAlong(segment(from, QPointF(from.x(), 8)), bore);
}

// The flow enters from the left and leaves to the right and up the branch.
void teeFlow(Sketch& s, double branchStart) {
  s.flowArrow(QPointF(38, kMainY), QPointF(78, kMainY));
  s.flowArrow(QPointF(128, kMainY), QPointF(176, kMainY));
  s.flowArrow(QPointF(kTeeX, branchStart), QPointF(kTeeX, branchStart - 36));
}

void mainDiameter(Sketch& s, double bore, const QString& letter) {
  s.dimension(QPointF(22, kMainY + bore / 2), QPointF(22, kMainY - bore / 2), letter);
}

void sharpTee(Sketch& s) {
  constexpr double mainBore = 36;
  constexpr double branchBore = 24;
  s.ducts({mainPipe(mainBore), risingBranch(QPointF(kTeeX, kMainY), branchBore)});
  teeFlow(s, kMainY - mainBore / 2 - 4);
  mainDiameter(s, mainBore, QStringLiteral("D1"));
  s.dimension(QPointF(kTeeX - branchBore / 2, 24), QPointF(kTeeX + branchBore / 2, 24), QStringLiteral("D2"));
}

// Both tees with a spherical body: three pipes opening into a sphere.
constexpr QPointF kSphereCentre(kTeeX, kMainY);
constexpr double kSphereRadius = 30;
constexpr double kSphereBranchBore = 26;

void sphericalBody(Sketch& s, std::vector<Duct> neck) {
  neck.push_back(mainPipe(kSphereBranchBore));
  neck.push_back(risingBranch(kSphereCentre, kSphereBranchBore));
  neck.push_back(ductAround(disc(kSphereCentre, kSphereRadius)));
  s.ducts(neck);
  teeFlow(s, kSphereCentre.y() - kSphereRadius - 4);
  mainDiameter(s, kSphereBranchBore, QStringLiteral("D"));
}

void sphericalTee(Sketch& s) {
  sphericalBody(s, {});
}

// The medium that rounds the neck between one wall of a pipe and the sphere it opens into: a
// fillet touching the wall and the sphere, reaching in to the sphere's centre.
Duct neckRounding(double pipeDegrees, double side, double rounding) {
  const double half = kSphereBranchBore / 2;
  const double sideDegrees = pipeDegrees + side * 90;
  const double filletAlong = std::sqrt(std::pow(kSphereRadius + rounding, 2) - std::pow(half + rounding, 2));
  const QPointF filletCentre = polar(polar(kSphereCentre, filletAlong, pipeDegrees), half + rounding, sideDegrees);
  const QPointF onWall = polar(polar(kSphereCentre, filletAlong, pipeDegrees), half, sideDegrees);
  const QPointF onSphere =
      kSphereCentre + (filletCentre - kSphereCentre) * (kSphereRadius / (kSphereRadius + rounding));
  const QPointF corner = polar(
      polar(kSphereCentre, std::sqrt(kSphereRadius * kSphereRadius - half * half), pipeDegrees), half, sideDegrees);
  QPainterPath region(onWall);
  region.lineTo(corner);
  region.lineTo(kSphereCentre);
  region.lineTo(onSphere);
  const double start = QLineF(filletCentre, onSphere).angle();
  region.arcTo(circleBox(filletCentre, rounding), start,
               std::remainder(QLineF(filletCentre, onWall).angle() - start, 360.0));
  region.closeSubpath();
  return ductAround(region);
}

// All three necks rounded where the pipes meet the sphere.
void sphericalTeeRoundedNecks(Sketch& s) {
  std::vector<Duct> necks;
  for (double pipeDegrees : {0.0, 90.0, 180.0}) {
    for (double side : {-1.0, 1.0}) necks.push_back(neckRounding(pipeDegrees, side, 16));
  }
  sphericalBody(s, necks);
}

// Equal bores, the corners of the branch rounded, the bottom of the main pipe straight.
void roundedTee(Sketch& s) {
  constexpr double bore = 34;
  constexpr double rounding = 14;
  const double wallY = kMainY - bore / 2;
  s.ducts({mainPipe(bore), risingBranch(QPointF(kTeeX, kMainY), bore),
           ductAround(fillet(QPointF(kTeeX - bore / 2, wallY), 90, 180, rounding)),
           ductAround(fillet(QPointF(kTeeX + bore / 2, wallY), 90, 0, rounding))});
  teeFlow(s, wallY - 4);
  mainDiameter(s, bore, QStringLiteral("D"));
}

// --- branch pieces: a branch at the angle w to the main pipe, its obtuse edge rounded with R ------
// Dividing, the branch leaves forwards; combining, it comes in from upstream.

constexpr double kBranchMainY = 100;
constexpr double kBranchMainBore = 34;
constexpr double kBranchBore = 24;
constexpr double kBranchAngle = 45;

void branchPiece(Sketch& s, bool combining) {
  constexpr double rounding = 26;
  const QPointF junction(combining ? 116 : 84, kBranchMainY);
  const double branchDegrees = combining ? 180 - kBranchAngle : kBranchAngle;
  const double mainRay = combining ? 0 : 180;  // along the main pipe's wall from the obtuse edge
  const double wallSide = combining ? -90 : 90;
  const QPointF branchWall = polar(junction, kBranchBore / 2, branchDegrees + wallSide);
  const QPointF edge = crossing(branchWall, branchDegrees, QPointF(0, kBranchMainY - kBranchMainBore / 2), 0);
  s.ducts({ductAlong(segment(QPointF(8, kBranchMainY), QPointF(192, kBranchMainY)), kBranchMainBore),
           ductAlong(segment(junction, polar(junction, 112, branchDegrees)), kBranchBore),
           ductAround(fillet(edge, mainRay, branchDegrees, rounding))});
  s.centreLine(junction, polar(junction, 118, branchDegrees));
  s.centreLine(QPointF(4, kBranchMainY), QPointF(196, kBranchMainY));
  s.angle(junction, 28, combining ? 180 : 0, branchDegrees);
  const QPointF centre = filletCentre(edge, mainRay, branchDegrees, rounding);
  s.radius(centre, rounding, QLineF(centre, edge).angle());
  s.dimension(QPointF(176, kBranchMainY + kBranchMainBore / 2), QPointF(176, kBranchMainY - kBranchMainBore / 2),
              QStringLiteral("D1"));
  const QPointF across = polar(junction, 84, branchDegrees);
  s.dimension(polar(across, kBranchBore / 2, branchDegrees - 90), polar(across, kBranchBore / 2, branchDegrees + 90),
              QStringLiteral("D2"), combining ? 1 : -1);
  s.flowArrow(QPointF(14, kBranchMainY), QPointF(junction.x() - 26, kBranchMainY));
  s.flowArrow(QPointF(junction.x() + 36, kBranchMainY), QPointF(160, kBranchMainY));
  const QPointF branchNear = polar(junction, 40, branchDegrees);
  const QPointF branchFar = polar(junction, 74, branchDegrees);
  if (combining) {
    s.flowArrow(branchFar, branchNear);
  } else {
    s.flowArrow(branchNear, branchFar);
  }
}

void dividingBranch(Sketch& s) {
  branchPiece(s, false);
}
void combiningBranch(Sketch& s) {
  branchPiece(s, true);
}

// --- breeches pipes: one pipe forking into two legs ----------------------------------------------

constexpr double kForkY = 70;
constexpr double kLegBore = 26;

void legFlow(Sketch& s, QPointF fork, QPointF upperLegEnd, double legDegrees) {
  s.flowArrow(QPointF(32, kForkY), QPointF(fork.x() - 4, kForkY));
  s.flowArrow(polar(upperLegEnd, 40, legDegrees + 180), polar(upperLegEnd, 8, legDegrees + 180));
  const QPointF lowerLegEnd(upperLegEnd.x(), 2 * kForkY - upperLegEnd.y());
  s.flowArrow(polar(lowerLegEnd, 40, 180 - legDegrees), polar(lowerLegEnd, 8, 180 - legDegrees));
  s.dimension(QPointF(24, kForkY + kLegBore / 2), QPointF(24, kForkY - kLegBore / 2), QStringLiteral("D"));
}

void straightBreeches(Sketch& s) {
  constexpr QPointF fork(70, kForkY);
  constexpr double legDegrees = 36;
  const QPointF upperEnd = polar(fork, 84, legDegrees);
  const QPointF lowerEnd = polar(fork, 84, -legDegrees);
  s.ducts({ductAlong(segment(QPointF(8, kForkY), fork), kLegBore), ductAlong(segment(fork, upperEnd), kLegBore),
           ductAlong(segment(fork, lowerEnd), kLegBore)});
  s.centreLine(QPointF(4, kForkY), polar(fork, 96, 0));
  s.centreLine(fork, polar(fork, 92, legDegrees));
  s.angle(fork, 62, 0, legDegrees);
  legFlow(s, fork, upperEnd, legDegrees);
}

void curvedBreeches(Sketch& s) {
  constexpr QPointF fork(60, kForkY);
  constexpr double radius = 50;
  constexpr double legDegrees = 35;
  const QPointF upperCentre = fork - QPointF(0, radius);
  const QPointF lowerCentre = fork + QPointF(0, radius);
  QPainterPath upperLeg(fork);
  upperLeg.arcTo(circleBox(upperCentre, radius), 270, legDegrees);
  const QPointF upperEnd = polar(upperLeg.currentPosition(), 62, legDegrees);
  upperLeg.lineTo(upperEnd);
  QPainterPath lowerLeg(fork);
  lowerLeg.arcTo(circleBox(lowerCentre, radius), 90, -legDegrees);
  lowerLeg.lineTo(polar(lowerLeg.currentPosition(), 62, -legDegrees));
  s.ducts({ductAlong(segment(QPointF(8, kForkY), fork), kLegBore), ductAlong(upperLeg, kLegBore),
           ductAlong(lowerLeg, kLegBore)});
  s.centreLine(QPointF(4, kForkY), QPointF(fork.x() + 10, kForkY));
  s.radius(upperCentre, radius, 270 + legDegrees * 0.6);
  legFlow(s, fork, upperEnd, legDegrees);
}

constexpr PictureEntry kPictures[] = {
    {2201, sharpTee},       {2202, sphericalTee},    {2203, roundedTee},       {2204, sphericalTeeRoundedNecks},
    {2205, dividingBranch}, {2206, combiningBranch}, {2207, straightBreeches}, {2208, curvedBreeches},
};

}  // namespace

std::span<const PictureEntry> branchPictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
