// A list of text lines of which at most one is selected.
#pragma once

#include <string>
#include <vector>

#include <QListView>

namespace tidemark {

// Positions count from 0; -1 stands for no line. New lines replace the old ones in place, so the
// scroll position and the keyboard focus stay where the user has them.
class ListBox : public QListView {
    Q_OBJECT

  public:
    // `name` becomes the object name; `spoken` is what accessibility tools call the list.
    ListBox(const QString& name, const QString& spoken, QWidget* parent = nullptr);

    int Selected() const;
    // Announced by Clicked when it changes the selection; -1 takes the selection away.
    void Select(int position);

    // Shows `lines` and selects `selected` among them, without announcing it: a rebuild ends in a
    // redraw of its own. The selected line is scrolled into view only when it is another than
    // before.
    void Show_lines(std::vector<std::string> lines, int selected);
    const std::vector<std::string>& Lines() const;

  Q_SIGNALS:
    void Clicked();                  // another line was selected, by the user or by Select
    void Key_pressed(int key_code);  // those of qt_keys.h; the list then takes the key as well

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

    LinesModel* lines_;
    bool rebuilding_ = false;
};

}  // namespace tidemark
