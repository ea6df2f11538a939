#pragma once

#include <QObject>

namespace tarnwick {

class QtDesktop;

/// Ends the program without the player: when a signal tells it to, and when the session ends (the toolkit
/// asks the application to quit then). The event loop ends after it.
class UnattendedEnd : public QObject {
  public:
    /// Acts while it lives. Throws std::system_error.
    explicit UnattendedEnd(QtDesktop& desktop);

    /// Takes the questions back that wait for an answer, and ends the program as soon as the event that asked
    /// them is over: a window must not go from under the handler that it is busy with.
    void begin();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QtDesktop& desktop_;
};

}  // namespace tarnwick
