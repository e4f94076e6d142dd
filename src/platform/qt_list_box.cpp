#include "platform/qt_list_box.h"

#include <algorithm>
#include <utility>

#include <QAbstractListModel>
#include <QScopedValueRollback>

#include "platform/qt_keys.h"
#include "platform/qt_text.h"

namespace tidemark {

class ListBox::LinesModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    const std::vector<std::string>& Lines() const { return lines_; }

    // Rows come and go at the end only and the others get their new text: the view then keeps its
    // place, which a reset of the model would lose.
    void Show(std::vector<std::string> lines) {
        const bool is_new = lines != lines_;
        const int before = static_cast<int>(lines_.size());
        const int now = static_cast<int>(lines.size());
        if (now > before) {
            beginInsertRows({}, before, now - 1);
            lines_ = std::move(lines);
            endInsertRows();
        } else if (now < before) {
            beginRemoveRows({}, now, before - 1);
            lines_ = std::move(lines);
            endRemoveRows();
        } else {
            lines_ = std::move(lines);
        }
        const int kept = std::min(before, now);
        if (kept > 0 && is_new) Q_EMIT dataChanged(index(0), index(kept - 1));
    }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(lines_.size());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !index.isValid()) return {};
        return To_qt(lines_[static_cast<std::size_t>(index.row())]);
    }

  private:
    std::vector<std::string> lines_;
};

ListBox::ListBox(const QString& name, const QString& spoken, ListContent content, QWidget* parent)
    : QListView(parent), content_(std::move(content)), lines_(new LinesModel(this)) {
    setObjectName(name);
    setAccessibleName(spoken);
    setModel(lines_);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    connect(this, &QListView::doubleClicked, this, &ListBox::Double_clicked);
}

int ListBox::Selected() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

void ListBox::Select(int position) {
    const QModelIndex line = lines_->index(position);
    if (line.isValid())
        selectionModel()->setCurrentIndex(line, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clear();
}

void ListBox::Refresh() {
    const QScopedValueRollback rebuilding(rebuilding_, true);
    const int before = Selected();
    lines_->Show(content_.Lines());
    const int selected = content_.Selected;
    if (selected != before || selected != Selected()) Select(selected);
}

const std::vector<std::string>& ListBox::Lines() const {
    return lines_->Lines();
}

// A few lines: the lists of one panel share its free height among them.
QSize ListBox::sizeHint() const {
    const int line = fontMetrics().height();
    return {fontMetrics().averageCharWidth() * 36, line * 4 + 2 * frameWidth()};
}

// Two lines still show where a list goes on, on a screen that has no room for more.
QSize ListBox::minimumSizeHint() const {
    return {QListView::minimumSizeHint().width(), 2 * (fontMetrics().height() + frameWidth())};
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    if (Key_code(*event) == KeyDelete) content_.Delete();
    QListView::keyPressEvent(event);
}

// Of lines that are still to be laid out the view would make one current and select another: the
// layout scrolls in between.
void ListBox::mousePressEvent(QMouseEvent* event) {
    executeDelayedItemsLayout();
    QListView::mousePressEvent(event);
}

// The view would make the first line current, as if it had been chosen.
void ListBox::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (Selected() < 0) selectionModel()->clearCurrentIndex();
}

void ListBox::selectionChanged(const QItemSelection& now, const QItemSelection& before) {
    QListView::selectionChanged(now, before);
    if (rebuilding_) return;
    content_.Selected = Selected();
    Q_EMIT Clicked();
}

// One line, always: neither Ctrl nor a click beside the lines takes the selection away.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent*) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

}  // namespace tidemark
