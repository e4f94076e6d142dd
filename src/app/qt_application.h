// The program as Qt sees it, and the one border for errors.
#pragma once

#include <QApplication>

namespace tidemark {

// An exception that leaves an event handler is caught here and shown in a plain box, and the
// program goes on. Rules work out what can fail before they change anything, so the project is then
// as it was before that event.
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
