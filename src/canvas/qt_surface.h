// The drawing surface on the screen: keeps what was drawn and paints the part that is exposed.
#pragma once

#include <functional>
#include <vector>

#include <QLineF>
#include <QPainter>
#include <QPen>

#include "platform/drawing_surface.h"

namespace tidemark {

// What is drawn is kept as a list, not as pixels, so its size follows the drawing and not the
// image. Positions that are no finite numbers are left out.
class QtSurface : public DrawingSurface {
  public:
    // `changed` is called at the first operation after each Paint, not at every one.
    explicit QtSurface(std::function<void()> changed);

    void Erase() override;
    void Pen_width(int pixels) override;
    void Pen_colour(Colour colour) override;
    void Line(CanvasPoint from, CanvasPoint to) override;
    void Circle(CanvasPoint centre, double radius, Colour colour) override;

    // Paints the drawings that may touch `exposed`, in the order in which they were drawn, except
    // those that lie in `spared`. A canvas pixel is `zoom` of the painter's units; pens and rings
    // are as wide at every zoom. The caller clips.
    void Paint(QPainter& painter, const QRect& exposed, double zoom, const QRectF& spared = {});

    // The part of `area` that no drawing touches which leads out of it; in the painter's units.
    QRectF Without_borders(const QRectF& area, double zoom) const;

  private:
    // Neighbours in the list that are painted together: lines of one pen, or one circle (its only
    // line is then a radius).
    struct Batch {
        QPen Pen;
        bool IsCircle;
        int First, Count;                 // of lines_
        double Left, Top, Right, Bottom;  // of the lines' ends
        double Reach;                     // how far the strokes come from them, at most
    };

    static QRectF Place_of(const Batch& batch, double zoom);
    void Add(const QLineF& line, Batch& batch);
    void Start_batch(const QPen& pen, bool is_circle, double reach);
    void Paint(QPainter& painter, const Batch& batch, double zoom, const QRectF& spared) const;
    void Announce_change();

    std::vector<QLineF> lines_;
    std::vector<Batch> batches_;
    QPen pen_;
    bool pen_is_new_ = true;  // the last batch is not in the current pen
    bool announced_ = false;
    std::function<void()> changed_;
};

}  // namespace tidemark
