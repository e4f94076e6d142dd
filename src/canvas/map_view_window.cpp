#include "canvas/map_view_window.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QStyle>
#include <QWheelEvent>

#include "canvas/qt_image_file.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

constexpr int ScrollStep = 32;  // pixels

class BusyCursor {
  public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

QRect Qt_rect(const ViewRect& rect) {
    return {rect.Left, rect.Top, rect.Width, rect.Height};
}

QScrollBar* Scroll_bar(const char* name, const char* spoken, Qt::Orientation orientation,
                       QWidget* parent) {
    auto* const bar = new QScrollBar(orientation, parent);
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
    bar.setRange(0, Max_int(layout.Maximum, 0));
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
}

bool MapView::Show_image(const std::string& path) {
    const QFileInfo file(To_qt(path));
    if (!file.isFile() || !file.isReadable()) return false;
    const FileState state{file.filePath(), file.size(), file.lastModified()};
    if (state != shown_file_) {
        if (!Decode(state.Path)) return false;
        shown_file_ = state;
    }
    const auto layout = Layout_for(Picture2_->size());
    if (!layout) return false;
    Lay_out(*layout);
    shown_path_ = path;
    return true;
}

void MapView::Show_nothing() {
    shown_file_ = {};
    shown_path_.clear();
    Picture2_->Show_image({});
    for (QWidget* const part :
         {Picture1_, static_cast<QWidget*>(HScroll1_), static_cast<QWidget*>(VScroll1_)})
        part->hide();
    BeginLabel_->show();
}

bool MapView::Decode(const QString& path) {
    const BusyCursor busy;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    QImage image =
        Read_map_image(file, [this](QSize size) { return Layout_for(size).has_value(); });
    if (image.isNull()) return false;
    Picture2_->Show_image(std::move(image));
    return true;
}

std::optional<ViewLayout> MapView::Layout_for(QSize image) const {
    return Lay_out_view({width(), height()}, {image.width(), image.height()},
                        style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, HScroll1_));
}

void MapView::Lay_out(const ViewLayout& layout) {
    Picture1_->setGeometry(Qt_rect(layout.Viewport));
    Picture2_->move(0, 0);
    Lay_out_bar(*HScroll1_, layout.Horizontal, layout.Viewport.Width);
    Lay_out_bar(*VScroll1_, layout.Vertical, layout.Viewport.Height);
    BeginLabel_->hide();
    Picture1_->show();
}

void MapView::HScroll1_Change(int value) {
    Picture2_->move(-value, Picture2_->y());
}

void MapView::VScroll1_Change(int value) {
    Picture2_->move(Picture2_->x(), -value);
}

void MapView::resizeEvent(QResizeEvent*) {
    BeginLabel_->setGeometry(rect());
    Q_EMIT Resized();
}

// The wheel turned over the map turns the bar of its direction.
void MapView::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    const bool across = qAbs(turned.x()) > qAbs(turned.y());
    QCoreApplication::sendEvent(across ? HScroll1_ : VScroll1_, event);
}

}  // namespace tidemark
