#include "canvas/map_view_window.h"

#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>

#include "canvas/qt_image_file.h"
#include "platform/qt_busy_cursor.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

constexpr int ScrollStep = 32;  // pixels

QRect Qt_rect(const ViewRect& rect) {
    return {rect.Left, rect.Top, rect.Width, rect.Height};
}

// Of a scroll bar with the keyboard, Qt turns the arrows across the wrong way.
class MapScrollBar : public QScrollBar {
  public:
    using QScrollBar::QScrollBar;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Left)
            triggerAction(SliderSingleStepSub);
        else if (event->key() == Qt::Key_Right)
            triggerAction(SliderSingleStepAdd);
        else
            QScrollBar::keyPressEvent(event);
    }
};

QScrollBar* Scroll_bar(const char* name, const char* spoken, Qt::Orientation orientation,
                       QWidget* parent) {
    auto* const bar = new MapScrollBar(orientation, parent);
    bar->setObjectName(name);
    bar->setAccessibleName(spoken);
    bar->setSingleStep(ScrollStep);
    bar->setFocusPolicy(Qt::TabFocus);
    bar->hide();
    return bar;
}

// Places a bar without moving the canvas: its value stays where it is in its new range.
void Lay_out_bar(QScrollBar& bar, const ScrollBarLayout& layout, int page) {
    const QSignalBlocker blocker(bar);
    bar.setGeometry(Qt_rect(layout.Place));
    bar.setRange(0, qMax(layout.Maximum, 0));
    bar.setPageStep(page);
    bar.setVisible(layout.Visible);
}

}  // namespace

MapView::MapView(QWidget* parent)
    : QWidget(parent),
      BeginLabel_(new QLabel(
          "To begin, choose Background > Load background image, or File > Open Project.", this)),
      Picture1_(new QWidget(this)),
      Picture2_(new MapCanvas(Picture1_)),
      HScroll1_(Scroll_bar("HScroll1", "Across the map", Qt::Horizontal, this)),
      VScroll1_(Scroll_bar("VScroll1", "Down the map", Qt::Vertical, this)) {
    setObjectName("MapView");
    BeginLabel_->setObjectName("BeginLabel");
    BeginLabel_->setAlignment(Qt::AlignCenter);
    BeginLabel_->setForegroundRole(QPalette::PlaceholderText);
    Picture1_->setObjectName("Picture1");
    Picture1_->hide();
    Picture2_->setObjectName("Picture2");
    Picture2_->setAccessibleName("Map");
    setTabOrder(Picture2_, VScroll1_);
    setTabOrder(VScroll1_, HScroll1_);
    connect(HScroll1_, &QScrollBar::valueChanged, this, &MapView::HScroll1_Change);
    connect(VScroll1_, &QScrollBar::valueChanged, this, &MapView::VScroll1_Change);
    connect(Picture2_, &MapCanvas::Panned, this, &MapView::Pan_to);
}

bool MapView::Show_image(const std::string& path) {
    const QFileInfo file(To_qt(path));
    if (!file.isFile() || !file.isReadable()) return false;
    const FileState state{file.filePath(), file.size(), file.lastModified()};
    const bool is_new = state != shown_file_;
    if (is_new) {
        if (!Decode(state.Path)) return false;
        shown_file_ = state;
    }
    if (!Fits(Canvas_size())) return false;
    shown_path_ = path;
    if (is_new && !scale_.Is_natural()) {
        Lay_out(MapScale());
        Turn_bars();
    } else if (scale_.Is_natural()) {
        Lay_out(MapScale());  // the bars keep their values
    } else {
        Keep_middle();
    }
    if (is_new) Q_EMIT Zoom_changed();
    return true;
}

void MapView::Show_nothing() {
    shown_file_ = {};
    shown_path_.clear();
    Picture2_->Take_image({});
    scale_ = MapScale();
    for (QWidget* const part :
         {Picture1_, static_cast<QWidget*>(HScroll1_), static_cast<QWidget*>(VScroll1_)})
        part->hide();
    BeginLabel_->show();
    Q_EMIT Zoom_changed();
}

bool MapView::Decode(const QString& path) {
    const BusyCursor busy(Qt::WaitCursor);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    QImage image = Read_map_image(file, [this](QSize size) { return Fits(size); });
    if (image.isNull()) return false;
    Picture2_->Take_image(std::move(image));
    return true;
}

int MapView::Bar_thickness() const {
    return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, HScroll1_);
}

// Whether an image is small enough to be shown, at whatever zoom.
bool MapView::Fits(QSize image) const {
    return Lay_out_view({width(), height()}, {image.width(), image.height()}, Bar_thickness())
        .has_value();
}

// Shows the map at this zoom, scrolled as far as there is any of it.
void MapView::Lay_out(const MapScale& scale) {
    const ViewSize map = scale.Shown_size({Canvas_size().width(), Canvas_size().height()});
    const ViewLayout layout = Lay_out_map({width(), height()}, map, Bar_thickness());
    Picture1_->setGeometry(Qt_rect(layout.Viewport));
    Lay_out_bar(*HScroll1_, layout.Horizontal, layout.Viewport.Width);
    Lay_out_bar(*VScroll1_, layout.Vertical, layout.Viewport.Height);
    scale_ = scale;
    scale_.Scroll_to(qBound(0, scale.Left(), HScroll1_->maximum()),
                     qBound(0, scale.Top(), VScroll1_->maximum()));
    Picture2_->Show_at(scale_);
    BeginLabel_->hide();
    Picture1_->show();
}

void MapView::Keep_middle() {
    MapScale scale = scale_;
    scale.Put(middle_, Middle());
    Lay_out(scale);
    Turn_bars();
}

// To where the canvas is.
void MapView::Turn_bars() {
    const QSignalBlocker across(HScroll1_), down(VScroll1_);
    HScroll1_->setValue(scale_.Left());
    VScroll1_->setValue(scale_.Top());
}

void MapView::Move_to(int left, int top) {
    scale_.Scroll_to(left, top);
    middle_ = scale_.To_canvas(Middle());
    Picture2_->Show_at(scale_);
}

void MapView::HScroll1_Change(int value) {
    Move_to(value, scale_.Top());
}

void MapView::VScroll1_Change(int value) {
    Move_to(scale_.Left(), value);
}

void MapView::resizeEvent(QResizeEvent*) {
    BeginLabel_->setGeometry(rect());
    Q_EMIT Resized();
}

}  // namespace tidemark
