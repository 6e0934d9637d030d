#include <xcb/xcb.h>

#include <QWindow>
#include <optional>

#include "desktop/places_by_colour.h"
#include "desktop/point_painter.h"
#include "desktop/screen_image.h"
#include "desktop/x11_connection.h"
#include "desktop/x11_requests.h"

namespace starfolds {
namespace {

// Measured cost for client and server together, in nanoseconds: of a point, of a change of the
// colour, and of a pixel of an image. Only their ratios matter, which are similar on other
// machines.
constexpr std::int64_t kPointCost = 12;
constexpr std::int64_t kColourCost = 150;
constexpr double kPictureCost = 0.4;

class X11PointPainter : public PointPainter {
 public:
  X11PointPainter(xcb_connection_t* connection, xcb_window_t window)
      : connection_(connection),
        context_(xcb_generate_id(connection)),
        requests_(connection, window, context_) {
    const std::uint32_t noExposures = 0;
    xcb_create_gc(connection, context_, window, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
  }
  ~X11PointPainter() override { xcb_free_gc(connection_, context_); }

  bool Prepare(std::span<const PixelChange> changes, const PixelScale& scale, std::int64_t area,
               PointDrawing& drawing) override {
    const double picture = kPictureCost * static_cast<double>(area);
    const auto points = static_cast<std::int64_t>(changes.size()) * kPointCost;
    if (static_cast<double>(points) > picture) return false;
    sorted_.Sort(changes);
    const auto colours = static_cast<std::int64_t>(sorted_.Groups().size()) * kColourCost;
    if (static_cast<double>(points + colours) > picture) return false;
    drawing.Bytes.clear();
    drawing.Requests = 0;
    for (const PlacesByColour::Group& group : sorted_.Groups()) DrawGroup(group, scale, drawing);
    return true;
  }

  void Draw(const PointDrawing& drawing) override { requests_.Send(drawing); }

 private:
  void DrawGroup(const PlacesByColour::Group& group, const PixelScale& scale,
                 PointDrawing& drawing) {
    requests_.SetForeground(ScreenWord(group.Ink), drawing);
    const auto places = sorted_.Places().subspan(group.Begin, group.Count);
    if (scale.IsOneToOne()) {
      requests_.DrawPoints(places, drawing);
    } else {
      requests_.DrawBlocks(places, scale, drawing);
    }
  }

  xcb_connection_t* connection_;
  xcb_gcontext_t context_;
  X11Requests requests_;
  PlacesByColour sorted_;
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
