#pragma once

#include <span>

namespace linecalc::gui::picture {

class Sketch;

// One picture of the catalogue: its number and the function that draws it on the canvas.
struct PictureEntry {
  int number = 0;
  void (*draw)(Sketch&) = nullptr;
};

// The pictures by element family, each in its own source file.
std::span<const PictureEntry> straightPipePictures();  // straight pipes, inlets, changes of section, reversible changes
std::span<const PictureEntry> bendPictures();          // bends and expansion joints
std::span<const PictureEntry> branchPictures();        // tees, branch pieces, breeches pipes
std::span<const PictureEntry> valvePictures();         // shut-off, control and check valves
std::span<const PictureEntry> restrictionPictures();   // orifices, nozzles, the element of known resistance
std::span<const PictureEntry> screenPictures();        // perforated plates, grids, screens, strainers

// The picture of a number, nullptr for an unknown number.
const PictureEntry* findPicture(int number);

}  // namespace linecalc::gui::picture
