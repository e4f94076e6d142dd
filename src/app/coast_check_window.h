// The window with what the coast check finds.
#pragma once

#include <optional>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "app/coast_watch_window.h"
#include "coast/mend.h"
#include "model/session.h"
#include "platform/qt_list_box.h"

namespace tidemark {

// It stays open beside the map and shows the findings as they are after each step. A tool window:
// the main window's keys work in it too.
class CoastCheck : public QDialog {
    Q_OBJECT

  public:
    CoastCheck(Document& document, Session& session, CoastWatch& watch, QWidget* owner);

    // The line that is chosen while the window is open; null when there is none.
    const Finding* Chosen() const;

  Q_SIGNALS:
    void Chosen_changed();                   // or what it is about, or whether it is shown at all
    void Show_wanted();                      // the map is to show the chosen finding
    void Go_wanted(const Finding& finding);  // the lists are to select what it is about

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void Lay_out();
    std::vector<std::string> Lines() const;
    std::optional<FindingKind> Wanted_kind() const;
    void Refresh();
    void Filter_chosen();
    void Line_chosen();
    void Show_chosen();
    void Go_to_chosen();
    void MendButton_Click();
    void MendAllButton_Click();
    void Show_result(const MendResult& result);

    Document& document_;
    Session& session_;
    CoastWatch& watch_;
    Findings shown_;
    int chosen_ = -1;  // of what is shown
    QComboBox* KindFilter_;
    QLabel* FindingSummary_;
    ListBox* FindingList_;
    QLabel* FindingText_;
    QLabel* MendResult_;
    QPushButton *MendButton_, *MendAllButton_;
};

}  // namespace tidemark
