// Perforated plates, grids, screens and strainers: a section along the pipe and, for the plates
// and grids, the view against the flow on the free area.
#include <QLineF>
#include <cmath>

#include "element_picture_families.h"
#include "element_picture_sketch.h"

namespace linecalc::gui::picture {

namespace {

// --- plates and grids: section on the left, view against the flow on the right ------------------

enum class Shape { Round, Rectangular };

constexpr double kAxis = 66;
constexpr double kBore = 56;
constexpr double kTop = kAxis - kBore / 2;
constexpr double kBottom = kAxis + kBore / 2;
constexpr double kInsertX = 64;  // upstream face of the plate or grid
constexpr QPointF kFrontCentre(160, kAxis);
constexpr double kSheet = 3.5;
constexpr double kPipeEnd = 112;
const QRectF kRectangularOpening(134, kTop + 4, 42, kBore - 8);

void sectionAlongPipe(Sketch& s, Shape shape) {
  const double wall = shape == Shape::Round ? kWall : kSheet;
  s.ducts({ductAlong(segment(QPointF(8, kAxis), QPointF(kPipeEnd, kAxis)), kBore, Qt::RoundJoin, wall)});
  s.centreLine(QPointF(4, kAxis), QPointF(kPipeEnd + 4, kAxis));
  s.flowArrow(QPointF(28, kAxis), QPointF(kInsertX - 6, kAxis));
  if (shape == Shape::Round) s.dimension(QPointF(18, kBottom), QPointF(18, kTop), QStringLiteral("D"));
}

// The opening seen against the flow, and the region inside it that the plate or grid covers.
QPainterPath frontView(Sketch& s, Shape shape) {
  if (shape == Shape::Round) {
    roundSection(s, kFrontCentre, kBore, {});
    return disc(kFrontCentre, kBore / 2);
  }
  rectangularSection(s, kRectangularOpening, {}, {}, kSheet);
  return rectangle(kRectangularOpening);
}

// The duct's letters over the front view, drawn last so that they stay readable.
void frontDimensions(Sketch& s, Shape shape) {
  if (shape == Shape::Round) return;
  const QRectF& opening = kRectangularOpening;
  const double below = opening.bottom() + kSheet + 9;
  for (double x : {opening.left(), opening.right()}) {
    s.extensionLine(QPointF(x, opening.bottom() + kSheet + 2), QPointF(x, below + 3));
  }
  s.dimension(QPointF(opening.left(), below), QPointF(opening.right(), below), QStringLiteral("B"), -1);
  const double beside = opening.right() + kSheet + 8;
  for (double y : {opening.top(), opening.bottom()}) {
    s.extensionLine(QPointF(opening.right() + kSheet + 2, y), QPointF(beside + 3, y));
  }
  s.dimension(QPointF(beside, opening.bottom()), QPointF(beside, opening.top()), QStringLiteral("H"), -1);
}

// Holes of a plate on a square pitch, inside `area`.
QPainterPath holePattern(const QPainterPath& area, double diameter, double pitch) {
  QPainterPath holes;
  const QRectF box = area.boundingRect();
  for (double y = kFrontCentre.y() - std::floor((kFrontCentre.y() - box.top()) / pitch) * pitch; y < box.bottom();
       y += pitch) {
    for (double x = kFrontCentre.x() - std::floor((kFrontCentre.x() - box.left()) / pitch) * pitch; x < box.right();
         x += pitch) {
      const QPainterPath hole = disc(QPointF(x, y), diameter / 2);
      if (area.contains(hole.boundingRect())) holes.addPath(hole);
    }
  }
  return holes;
}

// The plate cut along the pipe: holes of `hole` at `pitch`, symmetric to the axis, the webs between.
void plateSection(Sketch& s, double thickness, double hole, double pitch) {
  QPainterPath plate = rectangle(QRectF(kInsertX, kTop - 2, thickness, kBore + 4));
  for (double centre = kAxis + pitch / 2; centre + hole / 2 < kBottom; centre += pitch) {
    for (double y : {centre, 2 * kAxis - centre}) {
      plate = plate.subtracted(rectangle(QRectF(kInsertX - 1, y - hole / 2, thickness + 2, hole)));
    }
  }
  s.section(plate);
}

void perforatedPlate(Sketch& s, Shape shape, bool thick) {
  sectionAlongPipe(s, shape);
  const double thickness = thick ? 12 : 3.5;
  constexpr double hole = 6;
  constexpr double pitch = 12;
  plateSection(s, thickness, hole, pitch);
  const double throughHole = kAxis - 3 * pitch / 2;
  s.flowArrow(QPointF(kInsertX + thickness + 4, throughHole), QPointF(kPipeEnd - 4, throughHole));
  const QPainterPath opening = frontView(s, shape);
  const QPainterPath holes = holePattern(opening, 8, 13);
  s.part(opening.subtracted(holes));
  s.medium(holes);
  frontDimensions(s, shape);
  if (!thick) return;
  // hole diameter d and pitch a, beside the plate
  const double plateBack = kInsertX + thickness;
  const double holeTop = kAxis - pitch / 2 - hole / 2;
  for (double y : {holeTop, holeTop + hole}) s.extensionLine(QPointF(plateBack + 1, y), QPointF(plateBack + 20, y));
  s.dimension(QPointF(plateBack + 16, holeTop + hole), QPointF(plateBack + 16, holeTop), QStringLiteral("d"), -1);
  const double centreBelow = kAxis + 3 * pitch / 2;
  s.centreLine(QPointF(kInsertX - 3, centreBelow - pitch), QPointF(plateBack + 40, centreBelow - pitch));
  s.centreLine(QPointF(kInsertX - 3, centreBelow), QPointF(plateBack + 40, centreBelow));
  s.dimension(QPointF(plateBack + 34, centreBelow), QPointF(plateBack + 34, centreBelow - pitch), QStringLiteral("a"),
              -1);
}

void thinPlateRound(Sketch& s) {
  perforatedPlate(s, Shape::Round, false);
}
void thinPlateRectangular(Sketch& s) {
  perforatedPlate(s, Shape::Rectangular, false);
}
void thickPlateRound(Sketch& s) {
  perforatedPlate(s, Shape::Round, true);
}
void thickPlateRectangular(Sketch& s) {
  perforatedPlate(s, Shape::Rectangular, true);
}

// --- grids and screens ----------------------------------------------------------------------------

enum class Mesh { MetalGrid, WireScreen, DoubleGrid };

// Bars across `area` in both directions: `width` wide at `pitch`, shifted by `offset`.
QPainterPath lattice(const QPainterPath& area, double width, double pitch, double offset) {
  const QRectF box = area.boundingRect();
  QPainterPath bars;
  for (double x = box.left() + offset; x < box.right(); x += pitch)
    bars.addRect(QRectF(x - width / 2, box.top(), width, box.height()));
  for (double y = box.top() + offset; y < box.bottom(); y += pitch)
    bars.addRect(QRectF(box.left(), y - width / 2, box.width(), width));
  return bars.simplified().intersected(area);
}

// The grid's members cut along the pipe: flat bars for a grid, round wires woven up and down for a screen.
void meshSection(Sketch& s, Mesh mesh) {
  if (mesh == Mesh::WireScreen) {
    for (double y = kTop + 3; y < kBottom - 1; y += 5) {
      const int row = static_cast<int>(std::lround((y - kTop) / 5));
      s.part(disc(QPointF(kInsertX + (row % 2 ? 3.5 : 0.5), y), 1.6));
    }
    QPainterPath warp(QPointF(kInsertX + 2, kTop - 1));
    warp.lineTo(kInsertX + 2, kBottom + 1);
    s.outline(warp);
    return;
  }
  const int grids = mesh == Mesh::DoubleGrid ? 2 : 1;
  for (int grid = 0; grid < grids; ++grid) {
    const double x = kInsertX + grid * 13;
    const double shift = grid * 4;
    for (double y = kTop + 4 + shift; y < kBottom - 2; y += 8) s.section(rectangle(QRectF(x, y - 1.5, 9, 3)));
  }
}

void screen(Sketch& s, Mesh mesh, Shape shape) {
  sectionAlongPipe(s, shape);
  meshSection(s, mesh);
  const double behind = kInsertX + (mesh == Mesh::DoubleGrid ? 26 : 14);
  s.flowArrow(QPointF(behind, kAxis + 2), QPointF(kPipeEnd - 4, kAxis + 2));
  const QPainterPath opening = frontView(s, shape);
  switch (mesh) {
    case Mesh::MetalGrid:
      s.part(lattice(opening, 2.5, 8, 4));
      break;
    case Mesh::WireScreen:
      s.part(lattice(opening, 0.8, 4, 2));
      break;
    case Mesh::DoubleGrid:
      s.part(lattice(opening, 2.5, 8, 4));
      s.outline(lattice(opening, 1.5, 8, 0));
      break;
  }
  frontDimensions(s, shape);
}

void metalGridRound(Sketch& s) {
  screen(s, Mesh::MetalGrid, Shape::Round);
}
void metalGridRectangular(Sketch& s) {
  screen(s, Mesh::MetalGrid, Shape::Rectangular);
}
void wireScreenRound(Sketch& s) {
  screen(s, Mesh::WireScreen, Shape::Round);
}
void wireScreenRectangular(Sketch& s) {
  screen(s, Mesh::WireScreen, Shape::Rectangular);
}
void doubleGridRound(Sketch& s) {
  screen(s, Mesh::DoubleGrid, Shape::Round);
}
void doubleGridRectangular(Sketch& s) {
  screen(s, Mesh::DoubleGrid, Shape::Rectangular);
}

// --- strainers --------------------------------------------------------------------------------------

// A screen wall drawn as a row of short pieces with gaps: the medium passes between them.
void sieve(Sketch& s, QPointF from, QPointF to) {
  const double length = QLineF(from, to).length();
  const QPointF along = (to - from) / length;
  for (double at = 0; at < length; at += 5) s.part(bar(from + along * at, from + along * std::min(at + 3, length), 2));
}

void strainerPipe(Sketch& s, double axis, double bore, std::vector<Duct> body) {
  body.push_back(ductAlong(segment(QPointF(8, axis), QPointF(192, axis)), bore));
  s.ducts(body);
  s.dimension(QPointF(22, axis + bore / 2), QPointF(22, axis - bore / 2), QStringLiteral("D"));
  s.flowArrow(QPointF(32, axis), QPointF(62, axis));
  s.flowArrow(QPointF(150, axis), QPointF(186, axis));
}

// The Y strainer: a cylindrical screen in a leg slanting down from the body, closed by a cap.
void yStrainer(Sketch& s) {
  constexpr double axis = 48;
  constexpr QPointF mouth(92, 52);
  constexpr double legDegrees = -50;
  const QPointF legEnd = polar(mouth, 70, legDegrees);
  const QPainterPath body = ellipse(QPointF(100, axis), 32, 20);
  s.ducts({ductAround(body), ductAlong(segment(mouth, legEnd), 34),
           wallBlock(bar(legEnd, polar(legEnd, 8, legDegrees), 50))});
  strainerPipe(s, axis, 26, {});
  for (double side : {-1.0, 1.0}) {
    const QPointF start = polar(mouth, 12 * side, legDegrees + 90);
    sieve(s, polar(start, 8, legDegrees), polar(start, 66, legDegrees));
  }
  QPainterPath intoScreen(QPointF(72, axis + 2));
  intoScreen.quadTo(polar(mouth, 14, legDegrees), polar(mouth, 46, legDegrees));
  s.flowArrow(intoScreen);
}

// The basket filter: a pot below the pipe holding a basket that the medium passes from inside out.
void basketFilter(Sketch& s) {
  constexpr double axis = 40;
  QPainterPath pot;
  pot.addRoundedRect(QRectF(66, 30, 68, 96), 14, 14);
  const QPainterPath cover = rectangle(QRectF(62, 16, 76, 10));
  strainerPipe(s, axis, 24, {ductAround(pot), wallBlock(cover)});
  sieve(s, QPointF(80, 56), QPointF(80, 112));
  sieve(s, QPointF(120, 56), QPointF(120, 112));
  sieve(s, QPointF(80, 112), QPointF(120, 112));
  s.section(rectangle(QRectF(66, 54, 16, 4)));
  s.section(rectangle(QRectF(118, 54, 16, 4)));
  QPainterPath intoBasket(QPointF(70, axis + 4));
  intoBasket.quadTo(QPointF(100, axis + 4), QPointF(100, 98));
  s.flowArrow(intoBasket);
  QPainterPath outOfBasket(QPointF(124, 100));
  outOfBasket.quadTo(QPointF(128, axis + 6), QPointF(146, axis));
  s.flowArrow(outOfBasket);
}

// The hat (cone) strainer: a cone of screen clamped between flanges, its point upstream.
void hatStrainer(Sketch& s) {
  constexpr double axis = 70;
  constexpr double bore = 44;
  constexpr double ring = 120;
  constexpr double ringWidth = 4;
  const double outerRadius = bore / 2 + kWall;
  strainerPipe(s, axis, bore, {wallBlock(flangePair(ring, ring + ringWidth, axis, outerRadius))});
  const QRectF clamped(ring, axis - outerRadius - kFlange, ringWidth, 2 * (outerRadius + kFlange));
  const QRectF screenOpening(ring - 1, axis - bore / 2 + 3, ringWidth + 2, bore - 6);
  s.section(rectangle(clamped).subtracted(rectangle(screenOpening)));
  const QPointF apex(70, axis);
  sieve(s, QPointF(ring, axis - bore / 2 + 3), apex);
  sieve(s, QPointF(ring, axis + bore / 2 - 3), apex);
  s.centreLine(QPointF(4, axis), QPointF(196, axis));
}

constexpr PictureEntry kPictures[] = {
    {3001, thinPlateRound},  {3002, thinPlateRectangular},  {3003, thickPlateRound}, {3004, thickPlateRectangular},
    {3010, metalGridRound},  {3011, metalGridRectangular},  {3012, wireScreenRound}, {3013, wireScreenRectangular},
    {3014, doubleGridRound}, {3015, doubleGridRectangular}, {3016, yStrainer},       {3017, basketFilter},
    {3018, hatStrainer},
};

}  // namespace

std::span<const PictureEntry> screenPictures() {
  return kPictures;
}

}  // namespace linecalc::gui::picture
