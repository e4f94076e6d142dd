#include "canvas/map_canvas_window.h"

#include <cmath>
#include <optional>
#include <utility>

#include <QPaintEvent>
#include <QtMath>

#include "canvas/qt_marks.h"

namespace tidemark {

namespace {

QSize Screen_pixels(QSize size, double ratio) {
    return {static_cast<int>(std::ceil(size.width() * ratio)),
            static_cast<int>(std::ceil(size.height() * ratio))};
}

PixelGrid Grid_of(QPoint corner, double zoom, double ratio) {
    return {zoom * ratio, corner.x() * ratio, corner.y() * ratio};
}

// How far what was painted on one grid has to be moved to lie on the other; none when it cannot.
std::optional<QPoint> Way_between(const std::optional<PixelGrid>& from, const PixelGrid& to) {
    if (!from || from->Factor != to.Factor) return std::nullopt;
    const QPointF way(from->Left - to.Left, from->Top - to.Top);
    return way == way.toPoint() ? std::optional(way.toPoint()) : std::nullopt;
}

}  // namespace

MapCanvas::MapCanvas(QWidget* viewport)
    : QWidget(viewport), surface_([this] {
          shown_grid_.reset();
          update();
      }) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(0, 0);
}

void MapCanvas::Take_image(QImage image) {
    picture_.Take(std::move(image));
    backdrop_grid_.reset();
    shown_grid_.reset();
    Show_at(scale_);
}

void MapCanvas::Show_at(const MapScale& scale) {
    const bool is_zoomed = scale.Zoom() != scale_.Zoom();
    scale_ = scale;
    const ViewSize size = scale.Shown_size({Image_size().width(), Image_size().height()});
    // All of it is painted again. Of an opaque widget Qt would first move what is on the screen.
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setGeometry(-scale.Left(), -scale.Top(), size.Width, size.Height);
    setAttribute(Qt::WA_OpaquePaintEvent);
    update();
    // The pointer is now over another place, without having moved; the cross is where it was.
    if (is_zoomed && !cross_) Tell_pointer();
}

QRect MapCanvas::Visible_part() const {
    return rect() & QRect(-pos(), parentWidget()->size());
}

void MapCanvas::paintEvent(QPaintEvent* event) {
    const QRect visible = Visible_part();
    if (visible.contains(event->rect())) {
        Bring_up_to_date(visible);
        QPainter painter(this);
        painter.drawPixmap(visible.topLeft(), Marked(visible));
        for (const auto* const frame : {&finding_frame_, &pointer_frame_})
            Paint_lines(painter, *frame, scale_.Zoom());
        if (cross_) Paint_cross(painter, *cross_, scale_.Zoom());
        return;
    }
    // A picture may be taken of more than the viewport shows.
    const QRect part = event->rect();
    const double ratio = devicePixelRatioF();
    QImage image = picture_.Pixels(QRect({0, 0}, Screen_pixels(part.size(), ratio)),
                                   Grid_of(part.topLeft(), scale_.Zoom(), ratio));
    image.setDevicePixelRatio(ratio);
    QPainter painter(this);
    painter.drawImage(part.topLeft(), image);
    painter.setClipRect(part);
    surface_.Paint(painter, part, scale_.Zoom());
}

// Makes backdrop_ hold the visible part of the image, computing only what it does not hold yet.
void MapCanvas::Bring_image_up_to_date(const PixelGrid& grid, QSize size) {
    QRegion missing(QRect({0, 0}, size));
    if (backdrop_.size() != size) {
        backdrop_ = QPixmap(size);
    } else if (const auto way = Way_between(backdrop_grid_, grid)) {
        backdrop_.scroll(way->x(), way->y(), backdrop_.rect());
        missing -= backdrop_.rect().translated(*way);
    }
    backdrop_grid_ = grid;
    if (missing.isEmpty()) return;
    QPainter painter(&backdrop_);
    for (const QRect& part : missing)
        painter.drawImage(part.topLeft(), picture_.Pixels(part, grid));
}

// Moves what shown_ holds to where it lies on the grid. Returns the part of it that is right: that
// which no line touches that leads out of the picture. Where the map is not shrunk there are few
// lines in it, and long ones, that cost less than to look for that part.
QRect MapCanvas::Move_shown(const PixelGrid& grid, QSize size) {
    const auto way = Way_between(shown_grid_, grid);
    if (shown_.size() != size) {
        shown_ = QPixmap(size);
        return {};
    }
    if (!way || scale_.Zoom() >= 1) return {};
    const QRect moved = shown_.rect() & shown_.rect().translated(*way);
    if (moved.isEmpty()) return {};
    const double ratio = devicePixelRatioF();
    const QPointF corner(grid.Left, grid.Top);
    const QRectF area((moved.topLeft() + corner) / ratio, QSizeF(moved.size()) / ratio);
    const QRectF kept = surface_.Without_borders(area, scale_.Zoom());
    const QPointF from = kept.topLeft() * ratio - corner, to = kept.bottomRight() * ratio - corner;
    const QRect whole_pixels(QPoint(qCeil(from.x()), qCeil(from.y())),
                             QPoint(qFloor(to.x()) - 1, qFloor(to.y()) - 1));
    // Too little of it is not worth moving.
    if (whole_pixels.width() < size.width() / 4 || whole_pixels.height() < size.height() / 4)
        return {};
    shown_.scroll(way->x(), way->y(), shown_.rect());
    return whole_pixels;
}

void MapCanvas::Bring_up_to_date(const QRect& visible) {
    const double ratio = devicePixelRatioF();
    const QSize size = Screen_pixels(visible.size(), ratio);
    const PixelGrid grid = Grid_of(visible.topLeft(), scale_.Zoom(), ratio);
    if (shown_grid_ == grid && shown_.size() == size) return;
    Bring_image_up_to_date(grid, size);
    shown_.setDevicePixelRatio(1);
    QRect kept = Move_shown(grid, size);
    shown_grid_ = grid;
    marked_grid_.reset();
    // Painted is a frame along the whole border: lines are cut off at the bounds of what the
    // painter is clipped to, which have to be the same for all pictures.
    kept &= shown_.rect().adjusted(1, 1, -1, -1);
    QPainter painter(&shown_);
    if (!kept.isEmpty()) painter.setClipRegion(QRegion(shown_.rect()) - kept);
    painter.drawPixmap(0, 0, backdrop_);
    painter.scale(ratio, ratio);
    painter.translate(-visible.topLeft());
    const QPointF corner(grid.Left, grid.Top);
    const QRectF spared((kept.topLeft() + corner) / ratio, QSizeF(kept.size()) / ratio);
    surface_.Paint(painter, visible, scale_.Zoom(), spared);
}

// What is shown, with the marks over it.
const QPixmap& MapCanvas::Marked(const QRect& visible) {
    shown_.setDevicePixelRatio(devicePixelRatioF());
    if (marks_.Is_empty()) return shown_;
    if (marked_grid_ == shown_grid_) return marked_;
    marked_grid_ = shown_grid_;
    marked_ = shown_;
    QPainter painter(&marked_);
    painter.translate(-visible.topLeft());
    Paint_marks(painter, marks_, visible, scale_.Zoom());
    return marked_;
}

void MapCanvas::Show_marks(MapMarks marks) {
    marks_ = std::move(marks);
    marked_grid_.reset();
    if (marks_.Is_empty()) marked_ = QPixmap();
    update();
}

void MapCanvas::Show_pointer_frame(std::vector<MarkLine> frame) {
    Show_frame(pointer_frame_, std::move(frame));
}

void MapCanvas::Show_finding_frame(std::vector<MarkLine> frame) {
    Show_frame(finding_frame_, std::move(frame));
}

void MapCanvas::Show_frame(std::vector<MarkLine>& shown, std::vector<MarkLine> frame) {
    if (frame == shown) return;
    Update_around(shown);
    shown = std::move(frame);
    Update_around(shown);
}

void MapCanvas::Update_around(const std::vector<MarkLine>& lines) {
    for (const MarkLine& line : lines)
        update(Reach_of(line, scale_.Zoom()).intersected(Visible_part()));
}

void MapCanvas::Update_around_cross() {
    if (cross_) update(Reach_of_cross(*cross_, scale_.Zoom()).intersected(Visible_part()));
}

}  // namespace tidemark
