#include "toolbar_icons.h"

#include <QAction>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QToolBar>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "gui/gui_fixture.h"
#include "my_window_view.h"

namespace linecalc::test {
namespace {

using gui::toolbarIcon;

const std::vector<std::string> kToolNames = {
    "ToolButton1",  "ToolButton3",  "ToolButton2",  "ToolButton5",  "ToolButton7",  "ToolButton8", "ToolButton9",
    "ToolButton10", "ToolButton11", "ToolButton13", "ToolButton14", "ToolButton12", "ToolButton17"};
const int kPixelSizes[] = {16, 24, 32, 48};

QImage picture(const QIcon& icon, int pixels, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(pixels, pixels), mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The smallest rectangle holding every pixel that is not fully transparent.
QRect drawnArea(const QImage& image) {
  QRect area;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) > 0) area |= QRect(x, y, 1, 1);
  return area;
}

// The share of the square where the picture, laid on `background`, differs from it by a clearly
// visible step of grey.
double visibleShare(const QImage& image, const QColor& background) {
  QImage laid(image.size(), QImage::Format_ARGB32);
  laid.fill(background);
  QPainter(&laid).drawImage(0, 0, image);
  int visible = 0;
  for (int y = 0; y < laid.height(); ++y)
    for (int x = 0; x < laid.width(); ++x)
      if (std::abs(qGray(laid.pixel(x, y)) - qGray(background.rgb())) >= 64) ++visible;
  return double(visible) / (laid.width() * laid.height());
}

TEST(ToolbarIcons, EveryToolHasAPictureAtEverySize) {
  for (const std::string& name : kToolNames) {
    const QIcon icon = toolbarIcon(name);
    ASSERT_FALSE(icon.isNull()) << name;
    const QList<QSize> sizes = icon.availableSizes();
    for (int pixels : kPixelSizes) {
      EXPECT_TRUE(sizes.contains(QSize(pixels, pixels))) << name << " " << pixels;
      EXPECT_EQ(picture(icon, pixels).size(), QSize(pixels, pixels)) << name << " " << pixels;
    }
  }
}

TEST(ToolbarIcons, DrawingFillsTheSquareWithoutTouchingItsBorder) {
  // A drawing scaled wrongly for one size ends in a corner of the square or runs over its edge.
  for (const std::string& name : kToolNames)
    for (int pixels : kPixelSizes) {
      const QRect area = drawnArea(picture(toolbarIcon(name), pixels));
      ASSERT_FALSE(area.isNull()) << name << " is blank at " << pixels;
      EXPECT_TRUE(QRect(1, 1, pixels - 2, pixels - 2).contains(area))
          << name << " at " << pixels << " reaches the border: " << area.left() << "," << area.top() << " to "
          << area.right() << "," << area.bottom();
      EXPECT_GE(std::max(area.width(), area.height()), pixels * 3 / 4) << name << " at " << pixels;
      const QPoint offCentre = area.center() - QPoint(pixels / 2, pixels / 2);
      EXPECT_LE(offCentre.manhattanLength(), pixels / 6) << name << " at " << pixels;
    }
}

TEST(ToolbarIcons, AllPicturesDiffer) {
  for (std::size_t first = 0; first < kToolNames.size(); ++first)
    for (std::size_t second = first + 1; second < kToolNames.size(); ++second)
      EXPECT_NE(picture(toolbarIcon(kToolNames[first]), 24), picture(toolbarIcon(kToolNames[second]), 24))
          << kToolNames[first] << " and " << kToolNames[second];
}

TEST(ToolbarIcons, GreyedPictureStaysVisible) {
  // A disabled button shows its picture in greys close to the window's; pale fills without dark
  // edges would vanish.
  const QColor window = QApplication::palette().color(QPalette::Disabled, QPalette::Window);
  for (const std::string& name : kToolNames) {
    const QImage picture24 = picture(toolbarIcon(name), 24, QIcon::Disabled);
    EXPECT_GE(visibleShare(picture24, window), 0.08) << name;
  }
}

TEST(ToolbarIcons, NameOfNoToolButtonGivesNoPicture) {
  EXPECT_TRUE(toolbarIcon("").isNull());
  EXPECT_TRUE(toolbarIcon("ToolButton4").isNull());
  EXPECT_TRUE(toolbarIcon("Neu1").isNull());
  EXPECT_TRUE(toolbarIcon("toolbutton1").isNull());
}

class ToolbarIconsInWindowTest : public GuiTest {};

TEST_F(ToolbarIconsInWindowTest, EveryToolButtonShowsItsPicture) {
  gui::MyWindowView view(app, words);
  const auto* toolbar = view.findChild<QToolBar*>(QStringLiteral("tools"));
  ASSERT_NE(toolbar, nullptr);
  int buttons = 0;
  for (const QAction* button : toolbar->actions()) {
    if (button->isSeparator()) continue;
    ++buttons;
    const std::string name = button->objectName().toStdString();
    EXPECT_EQ(picture(button->icon(), 24), picture(toolbarIcon(name), 24)) << name;
  }
  EXPECT_EQ(buttons, static_cast<int>(kToolNames.size()));
  EXPECT_EQ(picture(view.action("ToolButton5")->icon(), 48), picture(toolbarIcon("ToolButton5"), 48));
}

}  // namespace
}  // namespace linecalc::test
