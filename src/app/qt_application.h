// The program as Qt sees it, and the one border for errors.
#pragma once

#include <QApplication>

namespace tidemark {

// An exception that leaves an event handler is caught here and shown in a plain box; the program
// goes on with the project as it was before that event.
class TidemarkApplication : public QApplication {
    Q_OBJECT

  public:
    TidemarkApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    void Show_error(const QString& what);

    bool showing_error_ = false;
};

}  // namespace tidemark
