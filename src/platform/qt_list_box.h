// A list of text lines of which at most one is selected.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QListView>

namespace tidemark {

// What a list shows and what its Delete key does.
struct ListContent {
    std::function<std::vector<std::string>()> Lines;  // as they are now
    int& Selected;                                    // the selected line's position
    std::function<void()> Delete;                     // the selected line
};

// Positions count from 0; -1 stands for no line. The list shows what Refresh finds in its content
// and writes the user's choice there. New lines replace the old ones in place, so the scroll
// position and the keyboard focus stay where the user has them. Of the keys only Delete does
// anything but select.
class ListBox : public QListView {
    Q_OBJECT

  public:
    // `name` becomes the object name; `spoken` is what accessibility tools call the list.
    ListBox(const QString& name, const QString& spoken, ListContent content,
            QWidget* parent = nullptr);

    // Shows the content's lines and its selection, without announcing it. The selected line is
    // scrolled into view only when it is another than before.
    void Refresh();

    int Selected() const;
    const std::vector<std::string>& Lines() const;

    // Letters and blanks must not move the selection that Delete acts on.
    void keyboardSearch(const QString&) override {}

  Q_SIGNALS:
    void Clicked();         // the user has selected another line
    void Double_clicked();  // on a line, which is selected then

  protected:
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void selectionChanged(const QItemSelection& now, const QItemSelection& before) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    class LinesModel;

    void Select(int position);

    ListContent content_;
    LinesModel* lines_;
    bool rebuilding_ = false;
};

}  // namespace tidemark
