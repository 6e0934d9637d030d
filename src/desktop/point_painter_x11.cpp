#include <xcb/xcb.h>

#include <QWindow>
#include <algorithm>
#include <optional>
#include <vector>

#include "desktop/places_by_colour.h"
#include "desktop/point_painter.h"
#include "desktop/screen_image.h"
#include "desktop/x11_connection.h"

namespace starfolds {
namespace {

// Measured cost for client and server together, in nanoseconds: of a point, of a change of the
// colour, and of a pixel of an image. Only their ratios matter, which are similar on other
// machines.
constexpr std::int64_t kPointCost = 12;
constexpr std::int64_t kColourCost = 150;
constexpr double kPictureCost = 0.4;

/// Every server accepts requests of up to 65535 words.
constexpr std::size_t kMostShapes = 0x4000;

class X11PointPainter : public PointPainter {
 public:
  X11PointPainter(xcb_connection_t* connection, xcb_window_t window)
      : connection_(connection), window_(window), context_(xcb_generate_id(connection)) {
    const std::uint32_t noExposures = 0;
    xcb_create_gc(connection, context_, window, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
  }
  ~X11PointPainter() override { xcb_free_gc(connection_, context_); }

  bool Draw(std::span<const PixelChange> changes, const PixelScale& scale,
            std::int64_t area) override {
    const double picture = kPictureCost * static_cast<double>(area);
    const auto points = static_cast<std::int64_t>(changes.size()) * kPointCost;
    if (static_cast<double>(points) > picture || !sorted_.Sort(changes)) return false;
    const auto colours = static_cast<std::int64_t>(sorted_.Groups().size()) * kColourCost;
    if (static_cast<double>(points + colours) > picture) return false;
    for (const PlacesByColour::Group& group : sorted_.Groups()) DrawGroup(group, scale);
    xcb_flush(connection_);
    return true;
  }

 private:
  void DrawGroup(const PlacesByColour::Group& group, const PixelScale& scale) {
    const std::uint32_t word = ScreenWord(group.Ink);
    xcb_change_gc(connection_, context_, XCB_GC_FOREGROUND, &word);
    const auto places = sorted_.Places().subspan(group.Begin, group.Count);
    for (std::size_t begin = 0; begin < places.size(); begin += kMostShapes) {
      const auto part = places.subspan(begin, std::min(kMostShapes, places.size() - begin));
      if (scale.IsOneToOne()) {
        DrawPoints(part);
      } else {
        DrawBlocks(part, scale);
      }
    }
  }

  void DrawPoints(std::span<const PixelPlace> places) {
    points_.clear();
    for (const PixelPlace place : places) {
      points_.push_back(
          {static_cast<std::int16_t>(ColumnOf(place)), static_cast<std::int16_t>(RowOf(place))});
    }
    xcb_poly_point(connection_, XCB_COORD_MODE_ORIGIN, window_, context_,
                   static_cast<std::uint32_t>(points_.size()), points_.data());
  }

  void DrawBlocks(std::span<const PixelPlace> places, const PixelScale& scale) {
    blocks_.clear();
    for (const PixelPlace place : places) {
      const int left = scale.Columns.Begin(ColumnOf(place));
      const int top = scale.Rows.Begin(RowOf(place));
      const int width = scale.Columns.End(ColumnOf(place)) - left;
      const int height = scale.Rows.End(RowOf(place)) - top;
      blocks_.push_back({static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                         static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height)});
    }
    xcb_poly_fill_rectangle(connection_, window_, context_,
                            static_cast<std::uint32_t>(blocks_.size()), blocks_.data());
  }

  xcb_connection_t* connection_;
  xcb_window_t window_;
  xcb_gcontext_t context_;
  PlacesByColour sorted_;
  std::vector<xcb_point_t> points_;
  std::vector<xcb_rectangle_t> blocks_;
};

/// nullopt if the window is gone.
std::optional<xcb_visualid_t> VisualOf(xcb_connection_t* connection, xcb_window_t window) {
  const auto attributes = Ask(connection, xcb_get_window_attributes(connection, window),
                              xcb_get_window_attributes_reply);
  if (!attributes) return std::nullopt;
  return attributes->visual;
}

/// Whether the server's pixel format is 0xRRGGBB.
bool HasOurColours(const xcb_visualtype_t& visual) {
  return visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && visual.red_mask == 0xFF0000U &&
         visual.green_mask == 0xFF00U && visual.blue_mask == 0xFFU;
}

bool KnowsOurColours(xcb_connection_t* connection, xcb_visualid_t visual) {
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screens.rem > 0; xcb_screen_next(&screens)) {
    auto depths = xcb_screen_allowed_depths_iterator(screens.data);
    for (; depths.rem > 0; xcb_depth_next(&depths)) {
      auto visuals = xcb_depth_visuals_iterator(depths.data);
      for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
        if (visuals.data->visual_id == visual) return HasOurColours(*visuals.data);
      }
    }
  }
  return false;
}

}  // namespace

std::unique_ptr<PointPainter> MakePointPainter(QWindow& window) {
  xcb_connection_t* const connection = ToolkitConnection();
  if (connection == nullptr) return nullptr;
  const auto id = static_cast<xcb_window_t>(window.winId());
  const auto visual = VisualOf(connection, id);
  if (!visual || !KnowsOurColours(connection, *visual)) return nullptr;
  return std::make_unique<X11PointPainter>(connection, id);
}

}  // namespace starfolds
